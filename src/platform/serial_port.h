// A serial line, 8 data bits, no parity, one stop bit. On a port that is not open every operation
// does nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/event.h"

namespace zepril {

class SerialPort {
 public:
  virtual ~SerialPort() = default;
  // `device`: a port number ("3") or the name of a device. False when it can't be opened.
  virtual bool Open(const std::string& device, int baud) = 0;
  // The same for a device that was lost: only the one that was chosen at START counts as back,
  // never another that has its place among the devices now.
  virtual bool Reopen(const std::string& device, int baud) { return Open(device, baud); }
  // START chooses anew what a port number means.
  virtual void ForgetDevice() {}
  // The name by which the device is known again in another run.
  virtual std::string LastingName(const std::string& device) const { return device; }
  virtual void Close() = 0;
  virtual bool IsOpen() const = 0;
  virtual void Write(std::string_view bytes) = 0;
  // Takes everything received so far out of the buffer.
  virtual std::string ReadAll() = 0;
  virtual std::size_t BytesToWrite() const = 0;
  // All bytes that were ever taken to be sent, those that were dropped later too.
  virtual std::uint64_t BytesWritten() const { return 0; }
  // What was written and has not left yet never leaves.
  virtual void DropUnsent() {}
  // Whether the modem says that it is ready, as it does while it has its power (DSR). Nothing when
  // the line can't tell.
  virtual std::optional<bool> ModemReady() const { return std::nullopt; }
  // Why the port is not open, as a sentence for the operator; empty when all is well.
  virtual std::string Trouble() const { return {}; }

  // Bytes have come into the buffer; may be empty.
  Event<> DataArrived;
};

}  // namespace zepril
