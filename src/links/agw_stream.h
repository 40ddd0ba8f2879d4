// Cuts the byte stream of an engine into whole frames.
//
// A TCP stream may split a frame or join several; the program's data event wants one whole frame at
// a time. Frames are re-assembled by the length in their header. A header that can't be one (a
// length over 64 KiB, reserved bytes or a kind that make no sense) is handed on raw with everything
// that came, and the stream starts afresh.
//
// The program's parser wants exactly CR CR behind the information. One widespread engine ends its
// text CR NUL, and one widespread radio sends information that ends in CR by itself: both are
// mended here, below the logic.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace zepril {

class AgwStream {
 public:
  static constexpr std::size_t kLongestData = 65536;

  // `frame` gets each whole frame, header included.
  explicit AgwStream(std::function<void(std::string_view frame)> frame);

  void Feed(std::string_view bytes);
  // What has not become a frame is handed on raw, and the stream starts afresh: its length was a
  // lie.
  void GiveUp();
  // Forgets what has not become a frame; for a new connection.
  void Reset() { pending_.clear(); }
  std::size_t PendingBytes() const { return pending_.size(); }

 private:
  std::function<void(std::string_view)> frame_;
  std::string pending_;
};

// The frame with exactly one CR CR behind the information of its monitor text; frames of
// connections only where they end in NUL, other frames unchanged. The length in the header follows.
std::string WithMonitorEnding(std::string_view frame);

}  // namespace zepril
