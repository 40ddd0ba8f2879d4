// Decides how much of the text is whole, and bounds what waits.
#include "links/serial_text.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "core/state/radio.h"

namespace zepril {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

bool IsHeader(std::string_view line) {
  return line.ends_with("<UI>:") || line.ends_with("[UI]:") || line.ends_with("(UI):");
}

// How much of the text is whole: up to the last line end, but not a last header that still waits
// for its information.
std::size_t WholePart(std::string_view text) {
  const std::size_t last = text.rfind(kLineEnd);
  if (last == std::string_view::npos) return 0;
  const std::size_t before = last == 0 ? last : text.rfind(kLineEnd, last - 1);
  const std::size_t begin =
      before == std::string_view::npos || before == last ? 0 : before + kLineEnd.size();
  return IsHeader(text.substr(begin, last - begin)) ? begin : last + kLineEnd.size();
}

}  // namespace

void SerialText::PassBegins() {
  if (Waiting() > 0) ++reception_.ModemTextPasses;
}

bool SerialText::Read() {
  const std::string received = port_.ReadAll();
  std::string& text = reception_.ModemText;
  if (text.empty()) reception_.ModemTextPasses = 0;
  text += received;
  // Nothing grows without bound; the oldest goes, to the end of a line.
  if (text.size() > kLongestReceiveBuffer) {
    const std::size_t line_end = text.find('\n', text.size() - kLongestReceiveBuffer);
    text.erase(0, line_end == std::string::npos ? line_end : line_end + 1);
  }
  return !received.empty();
}

std::string SerialText::TakeFrames() {
  std::string& text = reception_.ModemText;
  const std::size_t whole = WholePart(text);
  if (whole > 0) {
    std::string taken = text.substr(0, whole);
    text.erase(0, whole);
    reception_.ModemTextPasses = 0;
    return taken;
  }
  if (reception_.ModemTextPasses < kMostPasses && Waiting() <= kLongestLine) return {};
  // Its end will not come. Closed, it can't run into the text of another station.
  std::string taken = std::exchange(text, {});
  if (!taken.empty()) taken += kLineEnd;
  return taken;
}

std::string SerialText::Take(std::size_t most) {
  DropOverlongLines();
  std::string& text = reception_.ModemText;
  if (text.size() <= most) return std::exchange(text, {});
  const std::size_t line_end = most == 0 ? std::string::npos : text.rfind('\n', most - 1);
  if (line_end == std::string::npos) return {};
  std::string taken = text.substr(0, line_end + 1);
  text.erase(0, line_end + 1);
  return taken;
}

std::size_t SerialText::FirstLine() const {
  const std::size_t line_end = reception_.ModemText.find('\n');
  return line_end == std::string::npos ? Waiting() : line_end + 1;
}

void SerialText::DropOverlongLines() {
  while (FirstLine() > kLongestLine)
    reception_.ModemText.erase(0, FirstLine());
}

}  // namespace zepril
