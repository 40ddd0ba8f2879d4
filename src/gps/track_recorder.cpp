// Builds the minute's line, appends it to the day's file, and lengthens the track on the map.
#include "gps/track_recorder.h"

#include "core/clock_text.h"
#include "core/text_fields.h"
#include "gps/line_files.h"
#include "gps/point_lines.h"

namespace zepril {

std::string TrackLine(const GpsState& gps, const LocalTime& time) {
  return PointLineStart(gps.GpsNorthText, gps.GpsEastText) + " " + ZeroPadded(time.Year, 4) +
         ZeroPadded(time.Month, 2) + ZeroPadded(time.Day, 2) + " " + ZeroPadded(time.Hour, 2) +
         ZeroPadded(time.Minute, 2);
}

TrackRecorder::TrackRecorder(const IdentityState& identity, const SettingsState& settings,
                             GpsState& gps, MapViewState& view, PlacesState& places, Files& disk,
                             const Clock& clock)
    : identity_(identity),
      settings_(settings),
      gps_(gps),
      view_(view),
      places_(places),
      disk_(disk),
      clock_(clock) {}

void TrackRecorder::WriteTrackPoint() {
  const LocalTime now = clock_.Now();
  // Kept: only the same minute is left out; a clock that was set back writes minutes again.
  const std::string minute = ClockText(now);
  if (minute == gps_.LastTrackMinute) return;
  gps_.LastTrackMinute = minute;
  const std::string line = TrackLine(gps_, now);
  const std::string day(Mid(line, 21, 8));
  if (!AppendOnNewLine(disk_, identity_.MapSystemFolder + "\\TRK\\" + day + ".TRK",
                       line + "\r\n")) {
    return;
  }
  GrowOnMap(day, line);
}

// The track that is loaded may be the one that is being driven: the next tick draws it.
void TrackRecorder::GrowOnMap(std::string_view day, std::string_view line) {
  if (!EqualFolded(settings_.TrackFile, day)) return;
  if (places_.TrackPoints.Append(line) && view_.TracksOn) view_.MapDrawn = false;
}

}  // namespace zepril
