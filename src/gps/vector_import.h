// Takes over the files of vectors that an outside program leaves behind after an outing: a point a
// line, as in a track file.
//
// Each becomes a line of the navigation program's way, `QTHWAY.TXT`, and part of the day's track.
// No line of either is lost: they are written anew beside the old file, which is then replaced, and
// a file of vectors is deleted only when all of its points are safe.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/progress.h"
#include "platform/clock.h"
#include "platform/files.h"

namespace zepril {

// Lines one after the other; false when there is none any more.
using NextLine = std::function<bool(std::string& line)>;
// Takes a line of a new file; false when it has no room.
using PutLine = std::function<bool(std::string_view line)>;

// True for a line of the form of a track's: "þ", and 33 columns at least.
bool IsWholePoint(std::string_view line);

// The point that lies farthest from the first one, by whole km; of several the last. Lines that are
// no whole points are passed over.
class TurningPoint {
 public:
  void Take(std::string_view line);
  // Empty before the first point.
  const std::string& Line() const { return line_; }

 private:
  double first_north_km_ = 0.0;
  double first_east_km_ = 0.0;
  double farthest_km_ = 0.0;
  std::string line_;
};

// The lines of a track and of a file of vectors, in the order of date and time (columns 21-33), as
// far as each is in order itself. Of two lines of the same minute the vectors' one is taken; their
// blank lines are left out. False when `put` was.
bool MergeTrack(const NextLine& track, const NextLine& vectors, const PutLine& put);
// The lines of a way with `line` before the first one that is later (columns 11-21), or at the end.
// Where it stands already, after an import that was broken off, it is not put in again.
bool MergeWay(const NextLine& way, std::string_view line, const PutLine& put);

// The day's track of a file "XX20240514.VEC" is "20240514"; of a file with another name its first
// eight characters.
std::string TrackNameOfVectors(std::string_view file_name);

// All files of vectors under the program folder, at most kMostVectorFiles of them. Errors pass in
// silence: a file that could not be taken over whole stays for the next time, and so does one that
// is empty, was changed less than kSettledSeconds ago, or is changed meanwhile: it is still being
// written. The import tells how far it is, and ends early when the program is to end.
inline constexpr int kMostVectorFiles = 200;
inline constexpr double kSettledSeconds = 60.0;
// Neither files of vectors nor tracks and ways beyond this size (bytes) are touched.
inline constexpr std::int64_t kLargestMerge = std::int64_t{256} << 20;
void ImportVectorFiles(Files& disk, const std::string& program_folder, const Clock& clock,
                       Progress& progress);

}  // namespace zepril
