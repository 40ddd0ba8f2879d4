// Files of lines that grow and are merged: lines added without running into half a line, and lines
// taken one at a time from a file of any size.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace zepril {

// Files::Append, with a line end in front where the file stops within a line, as after a power cut.
bool AppendOnNewLine(Files& disk, const std::string& path, std::string_view text);

// The lines of a file in their order, whatever ends them. Memory is bounded by the longest line
// that it takes, which it does not cut: a longer one counts as a failure.
class LineStream {
 public:
  static constexpr std::size_t kLongestLine = Files::kLongestLine;

  LineStream(const Files& disk, std::string path);

  // False behind the last line and on a failure.
  bool Next(std::string& line);
  bool Failed() const { return failed_; }

 private:
  bool Refill();

  const Files& disk_;
  std::string path_;
  std::string block_;
  std::size_t at_ = 0;       // in the block
  std::int64_t offset_ = 0;  // of what is behind the block
  bool ended_ = false;
  bool failed_ = false;
};

}  // namespace zepril
