// Keeps lines in blocks that grow, and reads the position and the name out of one.
#include "core/point_list.h"

#include <algorithm>

#include "core/position_text.h"
#include "core/text_fields.h"

namespace zepril {
namespace {

// Texts begin with a small block, so that a short list stays small, and go on in large ones.
constexpr std::size_t kBlockSize = std::size_t{1} << 20;
constexpr std::size_t kFirstReserve = 4096;

constexpr std::size_t kPositionColumns = 9;
constexpr std::size_t kPointColumn = 5;  // 0-based

}  // namespace

PointList::PointList(int limit, std::size_t longest_line)
    : limit_(limit), longest_line_(longest_line), block_size_(std::max(kBlockSize, longest_line)) {}

std::uint32_t PointList::Keep(std::string_view line) {
  // An empty line needs a character of room too: its start must lie in its block.
  const std::size_t room = std::max<std::size_t>(line.size(), 1);
  if (blocks_.empty() || blocks_.back().size() + room > block_size_) {
    blocks_.emplace_back();
    blocks_.back().reserve(blocks_.size() == 1 ? kFirstReserve : block_size_);
  }
  std::string& block = blocks_.back();
  const std::size_t start = (blocks_.size() - 1) * block_size_ + block.size();
  block.append(line);
  return static_cast<std::uint32_t>(start);
}

bool PointList::Append(std::string_view line) {
  if (Count() >= limit_) return false;
  line = line.substr(0, longest_line_);
  points_.push_back({PointPositionKm(Mid(line, 2, kPositionColumns)),
                     PointPositionKm(Mid(line, 11, kPositionColumns)), Keep(line),
                     static_cast<std::uint32_t>(line.size())});
  return true;
}

void PointList::Clear() {
  points_ = {};
  blocks_ = {};
}

std::string_view PointList::Line(int index) const {
  const Point& point = At(index);
  return std::string_view(blocks_[point.Start / block_size_])
      .substr(point.Start % block_size_, point.Length);
}

std::string_view PointList::Text(int index) const {
  return Trim(Mid(Line(index), 20));
}

std::string_view PointList::Name(int index) const {
  return Trim(Mid(Line(index), 21));
}

double PointPositionKm(std::string_view text) {
  if (text.size() != kPositionColumns || text[kPointColumn] != '.') return PositionTextKm(text);
  int metres = 0;
  bool negative = false;
  for (std::size_t at = 0; at < kPositionColumns; ++at) {
    const char c = text[at];
    if (IsDigit(c)) {
      metres = metres * 10 + (c - '0');
    } else if (at == kPointColumn) {
      continue;
    } else if (c == ' ' || c == '-') {
      negative = negative || c == '-';
      if (at > kPointColumn) metres *= 10;  // a blank behind the point counts as 0
    } else {
      return PositionTextKm(text);
    }
  }
  // The quotient of two whole numbers is the double nearest to the decimal text.
  const double km = metres / 1000.0;
  return negative ? -km : km;
}

}  // namespace zepril
