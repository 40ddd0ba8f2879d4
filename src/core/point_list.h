// Points of a track or place file: one line a point, texts held in large blocks, positions read
// once. A million lines take little more than their own length and 24 bytes each.
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
  static constexpr char kMark = static_cast<char>(254);  // "þ", the first character of a point

  // At most `limit` points, each of at most `longest_line` characters: a longer line is cut there.
  PointList(int limit, std::size_t longest_line);

  // False, and nothing added, when the list is full.
  bool Append(std::string_view line);
  void Clear();
  int Count() const { return static_cast<int>(points_.size()); }
  int Limit() const { return limit_; }
  std::size_t LongestLine() const { return longest_line_; }

  // Point `index`, 1 to Count().
  std::string_view Line(int index) const;
  double NorthKm(int index) const { return At(index).NorthKm; }
  double EastKm(int index) const { return At(index).EastKm; }
  // Length of the line in characters.
  std::size_t Length(int index) const { return At(index).Length; }
  // From column 20 on, without the blanks around it.
  std::string_view Text(int index) const;
  // From column 21 on, without the blanks around it: the name of a place.
  std::string_view Name(int index) const;
  // A point at 0/0 stands for none: a track is broken there.
  bool HasPosition(int index) const { return NorthKm(index) != 0.0 || EastKm(index) != 0.0; }

 private:
  struct Point {
    double NorthKm = 0.0;
    double EastKm = 0.0;
    std::uint32_t Start = 0;  // of the line, counted through all blocks
    std::uint32_t Length = 0;
  };
  const Point& At(int index) const { return points_[static_cast<std::size_t>(index) - 1]; }
  std::uint32_t Keep(std::string_view line);

  int limit_;
  std::size_t longest_line_;
  std::size_t block_size_;           // characters; no line runs over the end of its block
  std::vector<std::string> blocks_;  // full but for the last; never moved, so growth copies nothing
  std::vector<Point> points_;
};

// PositionTextKm of a text of nine columns, several times as fast where the text has the usual form
// (digits, blanks and signs around a point in column 6). The two agree on every text.
double PointPositionKm(std::string_view text);

}  // namespace zepril
