// Follows the squares that are driven through, and writes their lines.
#include "gps/way_recorder.h"

#include "core/text_fields.h"
#include "gps/line_files.h"
#include "gps/point_lines.h"

namespace zepril {

std::string NavigationFolder(const std::string& zone) {
  return "C:\\MAP\\" + zone;
}

WayRecorder::WayRecorder(const IdentityState& identity, GpsState& gps, Files& disk,
                         const Clock& clock)
    : identity_(identity), gps_(gps), disk_(disk), clock_(clock) {}

bool WayRecorder::HoldsAFile() const {
  for (const FolderEntry& entry : disk_.List(NavigationFolder(identity_.MapZoneName), "*.*")) {
    if (!entry.IsFolder) return true;
  }
  return false;
}

void WayRecorder::DecideNavigation() {
  gps_.NavigationOn =
      Val(gps_.NmeaSource) > 0.0 && InStr(Upper(gps_.NmeaSource), "SAVE") != 0 && HoldsAFile();
}

void WayRecorder::WriteWayPoint() {
  if (!gps_.NavigationOn) return;
  const WaySquare square = WaySquareOf(gps_.GpsNorthKm, gps_.GpsEastKm);
  // Where and when; within the same square nothing is written.
  const std::string key = WayKey(square);
  place_and_time_ = WayPlaceAndTime(square, clock_.Now());
  if (key == last_key_) return;
  if (IsNeighbour(last_, square)) {
    // A step into a neighbouring square.
    AddStep(square);
  } else if (IsWayJump(last_, square)) {
    // Kept: only a jump in both directions ends the line. One along an axis leaves it open, with a
    // step missing.
    EndLine();
  }
  // A new line where none is in progress.
  if (line_.empty()) {
    const std::string head = WayHead(place_and_time_);
    if (AppendOnNewLine(disk_, WayPath(), head)) line_ = head;
  }
  last_key_ = key;
  last_ = square;
}

void WayRecorder::AddStep(WaySquare square) {
  if (line_.empty()) return;
  const std::string digit = WayDigit(last_, square);
  if (!disk_.Append(WayPath(), digit)) {
    // Without this step those behind it would lead astray: the next line begins where we are.
    line_.clear();
    return;
  }
  line_ += digit;
  if (line_.size() > kFullWayLine) EndLine();
}

void WayRecorder::EndLine() {
  if (!line_.empty()) disk_.Append(WayPath(), "\r\n");
  line_.clear();
}

void WayRecorder::EndWay() {
  if (!gps_.PositionUsed || !gps_.NavigationOn) return;
  EndLine();
  const std::string line = WayEndLine(place_and_time_) + "\r\n";
  AppendOnNewLine(disk_, WayPath(), line);
  const std::string folder = NavigationFolder(identity_.MapZoneName);
  disk_.Replace(folder + "\\QTHACT.TXT", line);
  disk_.Replace(folder + "\\QTHACTPR.TXT",
                PointLineStart(gps_.GpsNorthText, gps_.GpsEastText) + "\r\n");
}

}  // namespace zepril
