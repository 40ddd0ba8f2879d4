// A device of the tool at the end of a pseudo-terminal: a program opens it like any serial device.
//
// The device's name is given by a symbolic link, which goes with the device. What it prints while
// nobody has it open is lost, as on a real line. One thread; everything happens in `Serve`.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace zepril {

class PtyLine {
 public:
  // Bytes that a program does not read, beyond which what is printed is lost.
  static constexpr std::size_t kMostUnsent = 65536;

  // Makes the device and `link` to it. Nothing when there is no pseudo-terminal to be had, or when
  // something of that name is there already; only the link of a device that was killed gives way.
  static std::unique_ptr<PtyLine> Open(const std::string& link);
  // Takes over `device`, whose other end is at `path` and which does not block.
  PtyLine(int device, std::string path);
  ~PtyLine();
  PtyLine(const PtyLine&) = delete;
  PtyLine& operator=(const PtyLine&) = delete;

  const std::string& Link() const { return link_; }

  // Gives what is there to `take` and writes what is unsent; waits for at most `milliseconds` when
  // there is nothing.
  void Serve(int milliseconds, const std::function<void(std::string_view bytes)>& take);
  void Say(std::string_view text);
  // Whether a program has it open.
  bool SomebodyIsThere(int milliseconds = 0);
  // It is turned off, and its link goes. Nothing is served any more.
  void HangUp();

 private:
  bool MakeLink(const std::string& link);
  void Write();

  int device_;
  std::string path_;  // of the program's end
  std::string link_;
  std::string unsent_;
};

}  // namespace zepril
