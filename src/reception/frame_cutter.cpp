// Finds the first complete header, and gives up on text that never becomes a frame.
#include "reception/frame_cutter.h"

namespace zepril {
namespace {

bool IsMarker(std::string_view text) {
  return text == " <UI>" || text == " [UI]" || text == " (UI)";
}

}  // namespace

std::size_t FindHeaderEnd(std::string_view text) {
  constexpr std::size_t kBeforeColon = 5;
  std::size_t colon = text.find(":\r\n", kBeforeColon);
  while (colon != std::string_view::npos) {
    const std::size_t begin = colon - kBeforeColon;
    if (IsMarker(text.substr(begin, kBeforeColon))) return begin;
    colon = text.find(":\r\n", colon + 1);
  }
  return std::string_view::npos;
}

CutOutcome CutFrame(std::string& rx_buffer, std::string& frame) {
  constexpr std::size_t kLongestWithoutHeader = 2000;
  constexpr std::size_t kLongestWaiting = 400;

  // The first complete header.
  const std::size_t header_end = FindHeaderEnd(rx_buffer);
  if (header_end == std::string::npos) {
    // Kept: the reset leaves a truth value as text. What counts is that the old text is gone; the
    // word has no line feed, so a frame appended right behind it is lost.
    if (rx_buffer.size() > kLongestWithoutHeader) rx_buffer = "False";
    return CutOutcome::NoHeader;
  }

  // A frame begins behind a line feed.
  const std::size_t opening = rx_buffer.rfind('\n', header_end);
  if (opening == std::string::npos) {
    rx_buffer.erase(0, header_end + kHeaderEndLength);
    return CutOutcome::Dropped;
  }

  // It reaches to the third line feed: one opens it, one ends the header, one the information.
  const std::size_t second = header_end + kHeaderEndLength - 1;
  const std::size_t third = rx_buffer.find('\n', second + 1);
  if (third == std::string::npos) {
    rx_buffer.erase(0, opening);
    return rx_buffer.size() > kLongestWaiting ? CutOutcome::Stuck : CutOutcome::Incomplete;
  }
  frame.assign(rx_buffer, opening + 1, third - opening - 1);
  if (frame.ends_with('\r')) frame.pop_back();
  rx_buffer.erase(0, third);
  return CutOutcome::Frame;
}

}  // namespace zepril
