// Looks at the last character before it adds; reads in blocks.
#include "gps/line_files.h"

#include <algorithm>
#include <utility>

namespace zepril {
namespace {

constexpr std::size_t kBlock = std::size_t{256} * 1024;  // bytes

bool StopsWithinALine(const Files& disk, const std::string& path) {
  const auto stamp = disk.Stamp(path);
  if (!stamp || !stamp->IsRegular || stamp->Size <= 0) return false;
  const auto last = disk.ReadRange(path, stamp->Size - 1, 1);
  return last && *last != "\n" && *last != "\r";
}

}  // namespace

bool AppendOnNewLine(Files& disk, const std::string& path, std::string_view text) {
  if (!StopsWithinALine(disk, path)) return disk.Append(path, text);
  return disk.Append(path, "\r\n" + std::string(text));
}

LineStream::LineStream(const Files& disk, std::string path) : disk_(disk), path_(std::move(path)) {}

bool LineStream::Refill() {
  if (ended_ || failed_) return false;
  auto block = disk_.ReadRange(path_, offset_, kBlock);
  failed_ = !block;
  if (failed_) return false;
  block_ = std::move(*block);
  at_ = 0;
  offset_ += static_cast<std::int64_t>(block_.size());
  ended_ = block_.empty();
  return !ended_;
}

bool LineStream::Next(std::string& line) {
  line.clear();
  bool any = false;
  while (at_ < block_.size() || Refill()) {
    any = true;
    const std::size_t end = std::min(block_.find_first_of("\r\n", at_), block_.size());
    line.append(block_, at_, end - at_);
    at_ = end;
    failed_ = failed_ || line.size() > kLongestLine;
    if (failed_) return false;
    if (at_ == block_.size()) continue;
    // CR LF is one end, also where a block ends between the two.
    const bool carriage_return = block_[at_++] == '\r';
    if (carriage_return && (at_ < block_.size() || Refill()) && block_[at_] == '\n') ++at_;
    return !failed_;
  }
  return any && !failed_;
}

}  // namespace zepril
