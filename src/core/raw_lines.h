// The raw monitor lines that the list of raw packets shows: line 0 is the oldest. A ring, so that a
// line that arrives moves no other.
#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace zepril {

class RawLineRing {
 public:
  static constexpr int kLines = 401;  // index 0 to 400

  std::string& operator[](int index) { return lines_[Place(index)]; }
  const std::string& operator[](int index) const { return lines_[Place(index)]; }

  // Moves all lines one place forward: line 0 is dropped, the last line is empty afterwards.
  void MoveForward() {
    first_ = (first_ + 1) % kLines;
    lines_[Place(kLines - 1)].clear();
  }

 private:
  std::size_t Place(int index) const { return static_cast<std::size_t>((first_ + index) % kLines); }

  std::array<std::string, static_cast<std::size_t>(kLines)> lines_;
  int first_ = 0;
};

}  // namespace zepril
