// Points of a track or place file: one line a point, held in one block of text, positions read
// once.
//
// A line: "þ" (byte 254), north and east in km of nine columns each (2-10, 11-19), text from column
// 20 on. Lines of any other form are kept as they came and read as far as they go.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zepril {

class PointList {
 public:
  // At most `limit` points, each of at most `longest_line` characters: a longer line is cut there.
  PointList(int limit, std::size_t longest_line);

  // False, and nothing added, when the list is full.
  bool Append(std::string_view line);
  void Clear();
  int Count() const { return static_cast<int>(points_.size()); }
  int Limit() const { return limit_; }

  // Point `index`, 1 to Count().
  std::string_view Line(int index) const;
  double NorthKm(int index) const { return At(index).NorthKm; }
  double EastKm(int index) const { return At(index).EastKm; }
  // Length of the line in characters.
  std::size_t Length(int index) const { return At(index).Length; }
  // From column 20 on, without the blanks around it.
  std::string_view Text(int index) const;

 private:
  struct Point {
    double NorthKm = 0.0;
    double EastKm = 0.0;
    std::uint32_t Start = 0;  // of the line in the block
    std::uint32_t Length = 0;
  };
  const Point& At(int index) const { return points_[static_cast<std::size_t>(index) - 1]; }

  int limit_;
  std::size_t longest_line_;
  std::string block_;
  std::vector<Point> points_;
};

}  // namespace zepril
