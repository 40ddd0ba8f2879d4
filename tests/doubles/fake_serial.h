// A serial line played by the test.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/serial_port.h"

namespace zepril {

class FakeSerial final : public SerialPort {
 public:
  bool Open(const std::string& device, int baud) override {
    Device = device;
    Baud = baud;
    open_ = !Absent;
    return open_;
  }
  void Close() override {
    open_ = false;
    Waiting = 0;
  }
  bool IsOpen() const override { return open_; }
  void Write(std::string_view bytes) override {
    if (!open_ || TellsCall(bytes)) return;
    Written += bytes;
    Count += bytes.size();
    if (OnWrite) OnWrite(bytes);
  }
  std::string ReadAll() override {
    if (!open_) return {};
    if (!Reads.empty()) {  // one piece a read
      std::string piece = Reads.front();
      Reads.erase(Reads.begin());
      return piece;
    }
    return {};
  }
  std::size_t BytesToWrite() const override { return open_ ? Waiting : 0; }
  std::uint64_t BytesWritten() const override { return Count; }
  std::optional<bool> ModemReady() const override { return open_ ? Ready : std::nullopt; }
  void DropUnsent() override {
    Waiting = 0;
    ++Drops;
  }
  std::string Trouble() const override { return open_ ? std::string() : Why; }

  // Pulled out; as long as `Absent` stays it can't be opened again.
  void Vanish() {
    open_ = false;
    Absent = true;
  }

  // The call that the modem tells when it is asked for it; empty: it does not answer. The questions
  // it answers, and what leads back to converse behind them, are not among what was written.
  std::string Call;
  bool Absent = false;
  std::string Why;  // told as the trouble while it is not open
  std::string Device;
  int Baud = 0;
  std::string Written;
  std::optional<bool> Ready;  // what the line tells of the modem's power
  std::uint64_t Count = 0;    // of all bytes written
  std::size_t Waiting = 0;    // bytes not yet taken by the line
  int Drops = 0;              // how often these were dropped
  std::vector<std::string> Reads;
  std::function<void(std::string_view)> OnWrite;

 private:
  bool TellsCall(std::string_view bytes) {
    if (Call.empty()) return false;
    if (bytes == "\x03*\r") return Answer("\r\ncmd:", true);
    if (bytes == "K\r" && asked_) return Answer("", false);
    if (bytes == "MYCALL\r" && asked_) return Answer("MYCALL   " + Call + "\r\ncmd:", true);
    if (bytes == "\x1BI\r") return Answer("* I " + Call + " *\r\n", false);
    if (bytes == "\x1BMYCALL\r\n") return Answer("*** MYCALL: " + Call + "\r\n", false);
    return false;
  }
  bool Answer(const std::string& text, bool asked) {
    asked_ = asked;
    if (!text.empty()) Reads.push_back(text);
    return true;
  }

  bool asked_ = false;
  bool open_ = false;
};

}  // namespace zepril
