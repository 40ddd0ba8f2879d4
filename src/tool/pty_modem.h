// A modem model at the end of a pseudo-terminal: a program opens it like any serial device. One
// thread; everything happens in `Serve`.
#pragma once

#include <memory>
#include <string>

#include "tool/modem_model.h"
#include "tool/pty_line.h"

namespace zepril {

class PtyModem {
 public:
  static constexpr std::size_t kMostUnsent = PtyLine::kMostUnsent;

  // Makes the device and `link` to it; nothing when PtyLine can't.
  static std::unique_ptr<PtyModem> Open(const std::string& link, std::unique_ptr<ModemModel> model);
  PtyModem(std::unique_ptr<PtyLine> line, std::unique_ptr<ModemModel> model);
  PtyModem(const PtyModem&) = delete;
  PtyModem& operator=(const PtyModem&) = delete;

  ModemModel& Model() { return *model_; }
  const std::string& Link() const { return line_->Link(); }

  // Takes and gives what is there; waits for at most `milliseconds` when there is nothing.
  void Serve(int milliseconds);
  // The modem hears `packet`.
  void Hear(const AirPacket& packet);
  // The modem is turned off in the middle of whatever it does, and its link goes. Nothing is served
  // any more.
  void HangUp() { line_->HangUp(); }
  // Bytes taken from the program since the beginning.
  std::size_t BytesTaken() const { return taken_; }

 private:
  std::unique_ptr<PtyLine> line_;
  std::unique_ptr<ModemModel> model_;
  std::size_t taken_ = 0;
};

}  // namespace zepril
