// The file of a position history: read as far as it goes, never shortened without a copy.
//
// The file holds one record a line, right-trimmed, oldest first. As long as it holds what the
// program holds, it is written anew with each position: a new file replaces the old one, so that a
// power cut loses nothing. One that holds more (it is longer than is read) keeps all of it, and new
// lines are added at its end. Whoever drops lines of the file keeps the old one beside it: under
// the ending ".BAK", then ".BA1" to ".BA9". No copy is ever written over; the oldest goes when all
// ten are there and it holds nothing that the newer ones lack.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "core/file_notice.h"
#include "core/station_record.h"
#include "platform/files.h"

namespace zepril {

// Most records that are read from a history file, the last ones.
inline constexpr int kMostHistoryLines = 9998;

class HistoryFile {
 public:
  // Of a longer file only this much of the end is looked at.
  static constexpr std::int64_t kLargestRead = 2 << 20;

  // `path`: of the file as the state has it; another path takes a loading. `file_failed`: of the
  // run, kept for all its files.
  HistoryFile(const std::string& path, Files& files, Label& notice, bool& file_failed)
      : path_(path), files_(files), notice_(notice), file_failed_(file_failed) {}

  // The records of the file, which is created when missing. Empty when it can't be read: such a
  // file is never written over.
  std::vector<StationRecord> Load();

  // All records, of which the last ones, the text `entered`, are new. Where the whole can't be
  // written, the new lines are added at the end of the file; where that fails too, they follow as
  // soon as it can be. A notice tells of either. False only at the first failure of a file in the
  // run.
  bool Write(const std::vector<StationRecord>& records, std::string_view entered);
  // The file gets these records only, the old one stays beside it. False, and nothing has changed,
  // when no copy can be kept.
  bool Shorten(const std::vector<StationRecord>& records);

  // The file gets these records, for the operator has removed some. False when it can't be written.
  bool Rewrite(const std::vector<StationRecord>& records);

  // Lines stand in the file that are not among the records.
  bool HoldsMore() const { return longer_ || odd_lines_; }

 private:
  std::vector<StationRecord> ReadEnd(std::int64_t size);
  std::vector<StationRecord> ReadWhole();
  void TakeLine(std::string_view line, std::vector<StationRecord>& records);
  std::optional<std::string> NameForCopy();
  bool HoldsNothingOfItsOwn(const std::string& oldest,
                            const std::vector<std::string>& copies) const;
  bool WriteAnew(const std::vector<StationRecord>& records);
  bool Written();
  bool FirstFailure();

  const std::string& path_;
  Files& files_;
  FileNotice notice_;
  std::string loaded_path_;
  std::string unwritten_;   // lines that are to be added at the end
  bool unread_ = false;     // the file is there and can't be read
  bool longer_ = false;     // it is longer than is read
  bool odd_lines_ = false;  // it holds lines that are no records
  bool put_off_ = false;    // no copy could be kept; not tried again before the next loading
  bool trouble_told_ = false;
  bool& file_failed_;
};

// The lines of a history file: right-trimmed records with CR LF.
std::string HistoryText(const std::vector<StationRecord>& records);

}  // namespace zepril
