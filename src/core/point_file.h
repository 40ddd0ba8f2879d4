// The files that hold points, tracks and places alike: their names in a folder, and reading one.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/controls.h"
#include "core/point_list.h"
#include "core/progress.h"
#include "platform/files.h"

namespace zepril {

// True when `name` can be a file's name on any system and stays in its folder: not empty, at most
// 100 characters, no control characters, none of \ / : * ? " < > |, no "..", no point or blank at
// either end. "2024 HUTS" passes, "..\ZEPRIL" and "A:B" don't.
bool IsPlainFileName(std::string_view name);

// Names in `folder` with `extension` (".TRK"), upper-cased, without it, in the order of a listing;
// names that differ in case only are one, and one that is no plain name is left out.
std::vector<std::string> PointFileNames(const Files& disk, const std::string& folder,
                                        std::string_view extension);
// 0-based place of `name` in `names`, without regard to case; -1 when it is not there.
int IndexOfName(const std::vector<std::string>& names, std::string_view name);

struct PointFileContent {
  PointList Points;
  bool Cut = false;  // lines, or ends of lines, were left out
};

// Reads up to `most_lines` lines of a file into a list of the limits of `like`, whatever its size:
// memory is bounded by the list, and reading ends with its last line. Nothing when the file can't
// be read, or is larger than any list could hold (kLargestPointFile).
inline constexpr std::int64_t kLargestPointFile = std::int64_t{1} << 30;  // bytes
std::optional<PointFileContent> ReadPointFile(const Files& disk, const std::string& path,
                                              const PointList& like, int most_lines,
                                              Progress& progress, std::string_view what);

// Whether the field of a file list shows the entry that is selected; an empty field shows none.
bool ShowsItsEntry(const ComboBox& list);
// Shows `name`, upper-cased, in the field of a file list, and selects its entry if there is one.
void ShowFileName(ComboBox& list, const std::string& name);

}  // namespace zepril
