// The order in which a tick reads the GPS.
#include "gps/nmea_reader.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "core/centre_follow.h"
#include "core/clock_text.h"
#include "core/text_fields.h"
#include "core/texts/gps_texts.h"
#include "geodesy/conversions.h"
#include "geodesy/coordinate_texts.h"

namespace zepril {
namespace {

constexpr double kHighestNorthKm = 9999.99;

// What is no place on the grid stands at its end.
double HeldKm(double metres) {
  const double km = metres / 1000.0;
  return std::isfinite(km) ? km : kHighestNorthKm;
}

}  // namespace

NmeaReader::NmeaReader(NmeaSections sections, NmeaControls controls, NmeaTools tools)
    : sections_(sections), controls_(controls), tools_(tools) {
  controls_.Gps.GpsNote.Click = [this] {
    closed_note_ = controls_.Gps.GpsNote.Caption;
    controls_.Gps.GpsNote.Visible = false;
  };
}

void NmeaReader::Begin() {
  if (IsNoNmeaSource(sections_.Gps.NmeaSource)) ShowNote();
}

void NmeaReader::ReadNmea() {
  const bool was_fresh = FixIsFresh();
  ReadSentences();
  // The ring around the own position tells where it comes from.
  if (FixIsFresh() != was_fresh) sections_.View.MapDrawn = false;
  ShowNote();
}

void NmeaReader::ReadSentences() {
  GpsState& gps = sections_.Gps;
  // When the map was moved by hand; the fix of the tick before.
  NoteManualMove();
  gps.GpsFixValidBefore = gps.GpsFixValid;
  if (gps.GpsFixValidBefore == 0) controls_.Gps.GpsInfo.Visible = false;
  gps.GpsFixValid = 0;
  // What has come, the last of it.
  tools_.Source.Take();
  // Up to the last line end: what stands behind it waits for its own.
  const std::string finished(FinishedNmea(gps.NmeaBuffer));
  // The last two sentences of the best kind, which must agree, the newer one not long ago.
  const auto pair = LastNmeaPair(finished);
  if (!pair || !PairAgrees(*pair)) return;
  const std::size_t place = finished.size() - pair->Newer.size();
  const double age = tools_.Source.SecondsSinceItCame(place);
  if (age > kLongestTrueSeconds) return;
  // The clock, where they tell the date.
  SetClock(*pair, tools_.Source.SecondsSinceItWasSaid(place));
  // The position as text, and the line over the map.
  const NmeaPosition position = PositionOf(*pair);
  if (!IsOnEarth(position)) return;
  controls_.Gps.GpsInfo.Caption = GpsInfoLine(finished, position);
  controls_.Gps.GpsInfo.Visible = true;
  // The position on the map's grid.
  TakePosition(position);
  NotePositionTime(age);
  // The way for the navigation program.
  if (gps.NavigationOn && SaveWay) SaveWay();
  // The map follows, unless it was just moved by hand.
  if (MapIsLeftAlone()) FollowWith(sections_.View, controls_.Map, Following::OwnPosition);
  gps.GpsFixValid = 1;
  gps.PositionUsed = true;
  // The track.
  if (SaveTrack) SaveTrack();
  // The first position after none.
  if (gps.GpsFixValidBefore == 0 && MapIsLeftAlone()) GoToOwnPosition();
}

void NmeaReader::NoteManualMove() {
  if (!sections_.View.ManualMapMove) return;
  sections_.View.ManualMapMove = false;
  sections_.Gps.LastManualMapMove = tools_.LocalClock.MonotonicSeconds();
}

bool NmeaReader::MapIsLeftAlone() const {
  return tools_.LocalClock.MonotonicSeconds() - sections_.Gps.LastManualMapMove >= kHandsOffSeconds;
}

void NmeaReader::SetClock(const NmeaPair& pair, double seconds_ago) {
  const auto time = ClockTimeOf(pair, sections_.Settings.UtcOffsetHours);
  if (!time) return;
  sections_.Gps.GpsTimeValid = 1;
  // A time is true while it is new: by a file that has lain about, or a GPS that has fallen silent,
  // the clock would be set back.
  if (seconds_ago > kLongestTimeTrueSeconds) return;
  const std::string told = std::string(GetNmeaField(pair.Newer, pair.Kind->Date)) + " " +
                           std::string(GetNmeaField(pair.Newer, pair.Kind->Time));
  if (told == clock_told_) return;
  clock_told_ = told;
  if (sections_.Gps.SetsClock && tools_.Desktop.SetClock(*time)) sections_.Gps.ClockSetFromGps = 1;
}

void NmeaReader::TakePosition(const NmeaPosition& position) {
  GpsState& gps = sections_.Gps;
  const MapViewState& view = sections_.View;
  const GridMetres at = GeodeticToUtm(Val(position.Longitude), Val(position.Latitude),
                                      view.MapCentralMeridian, view.MapFalseEasting);
  gps.GpsNorthKm = std::min(HeldKm(at.North), kHighestNorthKm);
  gps.GpsEastKm = HeldKm(at.East);
  const PositionTexts texts = FormatGpsPositionTexts(gps.GpsNorthKm, gps.GpsEastKm);
  if (texts.North != gps.GpsNorthText || texts.East != gps.GpsEastText) {
    sections_.View.MapDrawn = false;
  }
  gps.GpsNorthText = texts.North;
  gps.GpsEastText = texts.East;
}

void NmeaReader::NotePositionTime(double seconds_ago) {
  const std::int64_t now = SecondsOf(tools_.LocalClock.Now());
  last_position_ = TimeOfSeconds(now - static_cast<std::int64_t>(seconds_ago));
}

// A station that transmits shows and reports its place at once, unless the operator looks at a
// record or at a picture.
void NmeaReader::GoToOwnPosition() {
  const MapViewState& view = sections_.View;
  const bool set_otherwise = view.MapLockedOnRecord == 1 || view.PictureMode == MapShows::Picture;
  if (controls_.Transmit.Check6.Value == 1 && !set_otherwise) tools_.Map.MapRedraw();
}

bool NmeaReader::FixIsFresh() const {
  return sections_.Gps.GpsFixValid == 1 || sections_.Gps.GpsFixValidBefore == 1;
}

std::string NmeaReader::NoteWords() const {
  if (IsNoNmeaSource(sections_.Gps.NmeaSource)) {
    return gps_texts::kNoSource.With({Trim(sections_.Gps.NmeaSource)});
  }
  if (!tools_.Source.IsThere()) return {};
  const std::string words = last_position_
                                ? gps_texts::kNoPositionSince.With({ClockText(*last_position_)})
                                : std::string(gps_texts::kNoPositionYet);
  const std::string trouble = tools_.Source.Trouble();
  return trouble.empty() ? words : gps_texts::kWithTrouble.With({words, trouble});
}

void NmeaReader::ShowNote() {
  Label& note = controls_.Gps.GpsNote;
  note.Visible = false;
  if (controls_.Gps.GpsInfo.Visible) {
    closed_note_.clear();
    return;
  }
  const std::string words = NoteWords();
  if (words.empty()) return;
  note.Caption = words;
  note.Visible = words != closed_note_;
}

}  // namespace zepril
