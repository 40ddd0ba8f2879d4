#include "core/point_list.h"

#include "core/position_text.h"
#include "core/text_fields.h"

namespace zepril {

PointList::PointList(int limit, std::size_t longest_line)
    : limit_(limit), longest_line_(longest_line) {}

bool PointList::Append(std::string_view line) {
  if (Count() >= limit_) return false;
  line = line.substr(0, longest_line_);
  points_.push_back({PositionTextKm(Mid(line, 2, 9)), PositionTextKm(Mid(line, 11, 9)),
                     static_cast<std::uint32_t>(block_.size()),
                     static_cast<std::uint32_t>(line.size())});
  block_.append(line);
  return true;
}

void PointList::Clear() {
  points_ = {};
  block_ = {};
}

std::string_view PointList::Line(int index) const {
  return std::string_view(block_).substr(At(index).Start, At(index).Length);
}

std::string_view PointList::Text(int index) const {
  return Trim(Mid(Line(index), 20));
}

}  // namespace zepril
