// A modem model at the end of a pseudo-terminal: a program opens it like any serial device.
//
// The device's name is given by a symbolic link, which goes with the modem. What the modem prints
// while nobody has the device open is lost, as on a real line. One thread; everything happens in
// `Serve`.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "tool/modem_model.h"

namespace zepril {

class PtyModem {
 public:
  // Bytes that a program does not read, beyond which what is printed is lost.
  static constexpr std::size_t kMostUnsent = 65536;

  // Makes the device and `link` to it. Nothing when there is no pseudo-terminal to be had, or when
  // something of that name is there already; only the link of a modem that was killed gives way.
  static std::unique_ptr<PtyModem> Open(const std::string& link, std::unique_ptr<ModemModel> model);
  // Takes over `device`, whose other end is at `path` and which does not block.
  PtyModem(int device, std::string path, std::unique_ptr<ModemModel> model);
  ~PtyModem();
  PtyModem(const PtyModem&) = delete;
  PtyModem& operator=(const PtyModem&) = delete;

  ModemModel& Model() { return *model_; }
  const std::string& Link() const { return link_; }

  // Takes and gives what is there; waits for at most `milliseconds` when there is nothing.
  void Serve(int milliseconds);
  // The modem hears `packet`.
  void Hear(const AirPacket& packet);
  // The modem is turned off in the middle of whatever it does, and its link goes. Nothing is served
  // any more.
  void HangUp();
  // Bytes taken from the program since the beginning.
  std::size_t BytesTaken() const { return taken_; }

 private:
  bool MakeLink(const std::string& link);
  bool SomebodyIsThere(int milliseconds);
  void Say(std::string_view text);
  void Write();

  int device_;
  std::string path_;  // of the program's end
  std::string link_;
  std::unique_ptr<ModemModel> model_;
  std::string unsent_;
  std::size_t taken_ = 0;
};

}  // namespace zepril
