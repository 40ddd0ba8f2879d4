// Reads records off the file's end, appends, rewrites, and keeps a copy of what would be lost.
#include "reception/history_file.h"

#include <algorithm>

#include "core/text_fields.h"
#include "core/texts/file_troubles.h"
#include "core/texts/notices.h"

namespace zepril {

std::string HistoryText(const std::vector<StationRecord>& records) {
  std::string text;
  text.reserve(records.size() * (StationRecord::kLength + 2));
  for (const StationRecord& record : records) {
    if (record.IsBlank()) continue;
    text += record.RightTrimmed();
    text += "\r\n";
  }
  return text;
}

std::vector<StationRecord> HistoryFile::Load() {
  if (loaded_path_ != path_) notice_.Withdraw();
  loaded_path_ = path_;
  unwritten_.clear();
  unread_ = longer_ = odd_lines_ = put_off_ = false;
  if (!files_.Exists(path_)) files_.Append(path_, "");
  const auto stamp = files_.Stamp(path_);
  std::vector<StationRecord> records =
      stamp && stamp->Size > kLargestRead ? ReadEnd(stamp->Size) : ReadWhole();
  if (unread_) {
    notice_.Tell(notices::kHistoryUnread.With({path_, WordsOf(files_.Trouble())}));
  }
  if (records.size() > static_cast<std::size_t>(kMostHistoryLines)) {
    records.erase(records.begin(), records.end() - kMostHistoryLines);
    longer_ = true;
  }
  if (longer_) {
    notice_.Tell(notices::kHistoryLonger.With(
        {path_, WholeNumber(static_cast<std::int64_t>(records.size()))}));
  }
  return records;
}

std::vector<StationRecord> HistoryFile::ReadWhole() {
  std::vector<StationRecord> records;
  const bool read = files_.ReadLines(path_, [this, &records](std::string_view line) {
    TakeLine(line, records);
    return true;
  });
  unread_ = !read && files_.Exists(path_);
  return records;
}

std::vector<StationRecord> HistoryFile::ReadEnd(std::int64_t size) {
  std::vector<StationRecord> records;
  const auto end = files_.ReadRange(path_, size - kLargestRead, kLargestRead);
  unread_ = !end;
  if (!end) return records;
  longer_ = true;
  // The first line is a torn one.
  std::string_view rest = *end;
  while (!rest.empty()) {
    const std::size_t line_end = std::min(rest.find_first_of("\r\n"), rest.size());
    if (rest.data() != end->data()) TakeLine(rest.substr(0, line_end), records);
    rest.remove_prefix(line_end);
    if (!rest.empty()) rest.remove_prefix(1);
  }
  return records;
}

void HistoryFile::TakeLine(std::string_view line, std::vector<StationRecord>& records) {
  if (line.size() < StationRecord::kShortestLine || line.size() > StationRecord::kLongestLine) {
    odd_lines_ = odd_lines_ || !line.empty();
  } else {
    records.emplace_back(line);
  }
}

bool HistoryFile::Write(const std::vector<StationRecord>& records, std::string_view entered) {
  constexpr std::size_t kMostUnwritten = 2 << 20;
  if (unread_) return FirstFailure();
  unwritten_ += entered;
  if (unwritten_.size() > kMostUnwritten) {
    unwritten_.erase(0, unwritten_.find('\n', unwritten_.size() - kMostUnwritten) + 1);
  }
  if (!longer_ && WriteAnew(records)) return Written();
  const Text why = WordsOf(files_.Trouble());
  if (files_.Append(path_, unwritten_)) {
    Written();
    if (!longer_ && !put_off_) {
      trouble_told_ = true;
      notice_.Tell(notices::kHistoryNotAnew.With({path_, why}));
    }
    return true;
  }
  trouble_told_ = true;
  notice_.Tell(notices::kHistoryUnwritten.With({path_, WordsOf(files_.Trouble())}));
  return FirstFailure();
}

// A notice of trouble that is over goes by itself.
bool HistoryFile::Written() {
  unwritten_.clear();
  if (trouble_told_) notice_.Withdraw();
  trouble_told_ = false;
  return true;
}

// Lines that are no records stay in a copy.
bool HistoryFile::WriteAnew(const std::vector<StationRecord>& records) {
  return odd_lines_ ? Shorten(records) : files_.Replace(path_, HistoryText(records));
}

bool HistoryFile::FirstFailure() {
  return std::exchange(file_failed_, true);
}

bool HistoryFile::Shorten(const std::vector<StationRecord>& records) {
  if (unread_ || put_off_) return false;
  const auto copy = NameForCopy();
  if (copy && files_.ReplaceKeeping(path_, HistoryText(records), *copy)) {
    longer_ = odd_lines_ = false;
    unwritten_.clear();
    return true;
  }
  put_off_ = true;
  notice_.Tell(notices::kHistoryNotShortened.With(
      {path_, copy ? WordsOf(files_.Trouble()) : notices::kTenCopies}));
  return false;
}

bool HistoryFile::Rewrite(const std::vector<StationRecord>& records) {
  if (!unread_ && files_.Replace(path_, HistoryText(records))) return true;
  notice_.Tell(notices::kHistoryAsItWas.With({path_, WordsOf(files_.Trouble())}));
  return false;
}

std::optional<std::string> HistoryFile::NameForCopy() {
  constexpr int kNumbered = 9;
  std::vector<std::string> copies{path_ + ".BAK"};
  for (int number = 1; number <= kNumbered; ++number)
    copies.push_back(path_ + ".BA" + WholeNumber(number));
  std::optional<std::string> oldest;
  std::int64_t oldest_ns = 0;
  for (const std::string& copy : copies) {
    const auto stamp = files_.Stamp(copy);
    if (!stamp) return copy;
    if (oldest && stamp->ModifiedNs >= oldest_ns) continue;
    oldest = copy;
    oldest_ns = stamp->ModifiedNs;
  }
  if (!HoldsNothingOfItsOwn(*oldest, copies) || !files_.Remove(*oldest)) return std::nullopt;
  return oldest;
}

// Whether each line of the oldest copy stands in a newer one, or in the file of now, which becomes
// the newest copy.
bool HistoryFile::HoldsNothingOfItsOwn(const std::string& oldest,
                                       const std::vector<std::string>& copies) const {
  constexpr std::int64_t kLargestCompared = 64 << 20;
  const auto stamp = files_.Stamp(oldest);
  if (!stamp || stamp->Size > kLargestCompared) return false;
  std::unordered_set<std::string> own;
  const bool read = files_.ReadLines(oldest, [&own](std::string_view line) {
    own.emplace(line);
    return true;
  });
  if (!read) return false;
  const auto forget = [&own](std::string_view line) {
    own.erase(std::string(line));
    return !own.empty();
  };
  files_.ReadLines(path_, forget);
  for (const std::string& copy : copies) {
    if (copy != oldest && !own.empty()) files_.ReadLines(copy, forget);
  }
  return own.empty();
}

}  // namespace zepril
