// A serial line by Qt's serial port: 8 data bits, no parity, one stop bit, no handshake.
//
// Bytes are taken from the line whenever the event loop runs, in waits too, and lie in a buffer
// until they are read. A device that vanishes closes the port by itself; what had come can still be
// read, and the port can be opened again when the device is back.
#pragma once

#include <QSerialPort>

#include <string>

#include "core/state/radio.h"
#include "platform/qt/serial_devices.h"
#include "platform/serial_port.h"

namespace zepril {

class QtSerialPort final : public SerialPort {
 public:
  // Received bytes beyond this many empty the buffer first; written ones are dropped.
  static constexpr std::size_t kLongestBuffer = kLongestReceiveBuffer;

  QtSerialPort();
  ~QtSerialPort() override;
  QtSerialPort(const QtSerialPort&) = delete;
  QtSerialPort& operator=(const QtSerialPort&) = delete;

  // `device` as SerialDevicePath reads it. An open port is closed first. The device that it means
  // when it is first found there is kept: later the text means no other one.
  bool Open(const std::string& device, int baud) override;
  // Chooses nothing by its place among the devices any more.
  bool Reopen(const std::string& device, int baud) override;
  void ForgetDevice() override { kept_ = {}; }
  std::string LastingName(const std::string& device) const override;
  // Never waits for a modem that takes nothing: what it has not taken by now is lost.
  void Close() override;
  bool IsOpen() const override { return open_; }
  void Write(std::string_view bytes) override;
  // On a port whose device vanished: what had come before.
  std::string ReadAll() override;
  // Counts what the system holds back too.
  std::size_t BytesToWrite() const override;
  std::optional<bool> ModemReady() const override;
  std::uint64_t BytesWritten() const override { return written_; }
  void DropUnsent() override;

  // Asked for the device of a port number; may be empty.
  PortBook DeviceOfNumber;

  // Why the last opening failed or the port closed by itself, as a sentence for the operator; empty
  // when all is well.
  std::string Trouble() const override { return trouble_; }

 private:
  enum class Choice { May, MayNot };
  bool OpenDevice(const std::string& device, int baud, Choice choice);
  SerialTrouble FindDevice(const std::string& device, Choice choice);
  bool Fail(SerialTrouble trouble);
  void TakeReceived();
  void ErrorCame(QSerialPort::SerialPortError error);
  bool DeviceIsGone() const;

  QSerialPort port_;
  std::string kept_text_;  // that means the kept device
  ChosenDevice kept_;
  std::string path_;
  std::string buffer_;
  std::string trouble_;
  std::uint64_t written_ = 0;
  bool open_ = false;
};

}  // namespace zepril
