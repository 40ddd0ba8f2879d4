// `ZEPRIL.INI`: where it lies and the ways in which single lines of it are exchanged.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"

namespace zepril {

// The file's path in the program folder.
std::string ConfigPath(const std::string& program_folder);

// The lines of the file, each trimmed; nothing when it can't be read, has more than `limit` lines
// or a line so long that it could not be written back whole.
std::optional<std::vector<std::string>> ReadTrimmedLines(const Files& files,
                                                         const std::string& path,
                                                         std::size_t limit);

// The lines, CR LF after each.
std::string JoinLines(const std::vector<std::string>& lines);

// Replaces every line of `key` (without regard to case) by `KEY=value`, or appends it; all other
// lines stay. False, and an unchanged file, when the file can't be read whole or not be written.
bool ReplaceConfigLine(Files& files, const std::string& path, const std::string& key,
                       const std::string& value);

// What the first-run scan finds.
struct FirstRunScan {
  bool Configured = false;  // the file has been through START once
  std::string LayoutHint;   // WVER, upper case
};
// Makes sure that the file exists and reads the two marks; both are looked for in the lines as
// stored, with regard to case.
FirstRunScan ScanForFirstRun(Files& files, const std::string& path);

}  // namespace zepril
