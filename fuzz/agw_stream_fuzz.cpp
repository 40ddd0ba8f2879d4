// A packet engine's byte stream: whatever comes, little of it is held back; and the frames of an
// honest engine are the same however the network cuts and joins them.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "links/agw_frame.h"
#include "links/agw_stream.h"

namespace {

using zepril::AgwStream;
using zepril::kAgwHeaderLength;

std::vector<std::string> Frames(const std::string& bytes, std::string_view cuts) {
  std::vector<std::string> frames;
  AgwStream stream([&frames](std::string_view frame) { frames.emplace_back(frame); });
  std::size_t at = 0;
  for (std::size_t turn = 0; at < bytes.size(); ++turn) {
    const std::size_t piece =
        cuts.empty() ? bytes.size() : 1 + static_cast<unsigned char>(cuts[turn % cuts.size()]);
    stream.Feed(std::string_view(bytes).substr(at, piece));
    if (stream.PendingBytes() > kAgwHeaderLength + AgwStream::kLongestData) std::abort();
    at += piece;
  }
  return frames;
}

// The frames an honest engine would send with the bytes as their data: a piece each 0xFF.
std::string HonestStream(std::string_view bytes) {
  std::string stream;
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find('\xFF'), bytes.size());
    stream +=
        zepril::MakeAgwFrame(1, end % 2 == 0 ? 'U' : 'T', "QX1AB", "APRS", bytes.substr(0, end));
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
  return stream;
}

// Bytes that reach the program besides the mended endings.
std::size_t LengthOf(const std::vector<std::string>& frames) {
  std::size_t length = 0;
  for (const std::string& frame : frames)
    length += frame.size();
  return length;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 1) return 0;
  const std::size_t cut_count = std::min<std::size_t>(data[0] % 8, size - 1);
  const std::string all(reinterpret_cast<const char*>(data) + 1, size - 1);
  const std::string cuts = all.substr(0, cut_count);
  const std::string bytes = all.substr(cut_count);

  // As they come. Mending adds at most two bytes to a frame.
  const std::vector<std::string> raw = Frames(bytes, cuts);
  if (LengthOf(raw) > bytes.size() + 2 * raw.size()) std::abort();

  const std::string honest = HonestStream(bytes);
  const std::vector<std::string> whole = Frames(honest, {});
  if (Frames(honest, cuts.empty() ? std::string_view("\0", 1) : std::string_view(cuts)) != whole)
    std::abort();
  for (const std::string& frame : whole) {
    if (frame.size() < kAgwHeaderLength) std::abort();
    if (zepril::ReadAgwHeader(frame).DataLength != frame.size() - kAgwHeaderLength) std::abort();
  }
  return 0;
}
