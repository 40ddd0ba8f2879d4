// `WINDOW.TXT`: what the program keeps of its windows, and what the configuration file has no key
// for, a line KEY=value each. It lies beside `ZEPRIL.INI`.
//
//   taken: MAIN=40,20,1280,800   refused: a line without "=", with a control character, longer than
//   200 characters, or behind the first 200 lines
//
// Keys are compared without regard to case, the last line of a key counts. Lines of keys that are
// not known stay as they are.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace zepril {

// Where it lies.
std::string WindowPath(const std::string& program_folder);

inline constexpr int kMostWindowLines = 200;
inline constexpr std::size_t kLongestWindowLine = 200;  // characters

// 1: the GPS may set the computer's clock.
inline constexpr const char* kSetClockKey = "SETCLOCK";

// Values by key, keys in capitals. Empty when the file is missing or can't be read.
using WindowValues = std::map<std::string, std::string>;

WindowValues ReadWindowFile(const Files& files, const std::string& program_folder);
// Puts `values` into the file, each in the line that its key has or in a new one; an empty value
// takes the line out. False, with the file as it was, when it can't be written. Control characters
// in values become blanks.
bool WriteWindowFile(Files& files, const std::string& program_folder, const WindowValues& values);

// A whole number of the values in [lowest, highest]; nothing when it is missing or no such number.
std::optional<int> WindowNumber(const WindowValues& values, const std::string& key, int lowest,
                                int highest);
// `count` whole numbers with commas between them, all within -100000 to 100000.
std::optional<std::vector<int>> WindowNumbers(const WindowValues& values, const std::string& key,
                                              std::size_t count);

}  // namespace zepril
