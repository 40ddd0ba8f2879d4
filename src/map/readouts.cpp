// The captions of each display system, and the lines of the monitored station.
#include "map/readouts.h"

#include <algorithm>
#include <cmath>

#include "core/text_fields.h"
#include "core/texts/status_texts.h"
#include "geodesy/conversions.h"
#include "geodesy/coordinate_texts.h"
#include "platform/clock.h"

namespace zepril {
namespace {

constexpr std::ptrdiff_t kCaptionWidth = 15;
constexpr double kEuropeWest = -30.0;  // degrees of the map's meridian
constexpr double kEuropeEast = 60.0;
constexpr std::int64_t kSpeedMinutes = 3;

std::string Suffix(Readout readout) {
  return readout == Readout::Centre ? "cen" : readout == Readout::Cursor ? "crs" : "mon";
}

std::string Caption(const std::string& text) {
  return std::string(Left(text, kCaptionWidth));
}

// Minutes of a record's date and time; dates roll over and never fail.
std::int64_t RecordMinutes(const StationRecord& record) {
  const auto number = [&](std::size_t first, std::size_t last) {
    return static_cast<int>(WholeVal(record.Columns(first, last), 0, 99).value_or(0));
  };
  return MinutesOf(
      {2000 + number(1, 2), number(3, 4), number(5, 6), number(8, 9), number(10, 11), 0});
}

void PutField(std::string& line, std::size_t column, std::size_t width, const std::string& value) {
  line.replace(column - 1, width,
               std::string(Right(PadLeft(value, width), static_cast<std::ptrdiff_t>(width))));
}

}  // namespace

Readouts::Readouts(MapViewState& view, const FollowedStationState& followed,
                   const StationStore& history, ReadoutControls& controls)
    : view_(view), followed_(followed), history_(history), controls_(controls) {}

Readouts::Captions Readouts::CaptionsOf(Readout readout, int mode, const std::string& north_text,
                                        const std::string& east_text) const {
  const std::string suffix = Suffix(readout);
  const CoordinateValues& v = values_;
  switch (static_cast<DisplayMode>(mode)) {
    case DisplayMode::Geographic:
      return {"GLL" + suffix + v.GeoLatText, v.LocatorText + v.GeoLonText};
    case DisplayMode::GaussKrueger: {
      const std::string lower = "  |" + v.GkMeridianText + v.GkEastText;
      return {"GK " + suffix + v.GkNorthText, readout == Readout::Monitor ? lower : Caption(lower)};
    }
    case DisplayMode::UtmByPosition:
      return {
          "UTM" + suffix + v.UtmNorthText,
          Caption(v.UtmZoneText + "|" + std::string(Right(v.UtmMeridianText, 3)) + v.UtmEastText)};
    case DisplayMode::Rt90:
      return {"RNN" + suffix + v.RtNorthText, Caption("RNE" + suffix + v.RtEastText)};
    case DisplayMode::MapUtm:
      break;
  }
  return {
      "UTM" + suffix + north_text,
      Caption(v.MapZoneNumberText + "!" + std::string(Right(v.MapMeridianText, 3)) + east_text)};
}

void Readouts::CentreReadout() {
  const std::string north_text = KilometreText(view_.CentreNorthKm);
  const std::string east_text = KilometreText(view_.CentreEastKm);
  if (view_.CentreDisplayMode != 0) {
    GridToGeo(values_, view_, view_.CentreNorthKm, view_.CentreEastKm);
    GeoToAllGrids(values_);
  }
  const Captions captions =
      CaptionsOf(Readout::Centre, view_.CentreDisplayMode, north_text, east_text);
  controls_.Label1.Caption = captions.Upper;
  controls_.Label2.Caption = captions.Lower;
  // The zone's own system leaves the position of the strips as it is.
  if (view_.CentreDisplayMode == 0) return;
  values_.DisplayLat = values_.GeoLat;
  values_.DisplayLon = values_.GeoLon;
}

void Readouts::ShowPoint(Readout readout, double north_km, double east_km, Label& upper,
                         Label& lower) {
  const int mode = ModeOf(readout);
  if (mode != 0) {
    GridToGeo(values_, view_, north_km, east_km);
    GeoToAllGrids(values_);
  }
  const Captions captions =
      CaptionsOf(readout, mode, PointKilometreText(north_km), PointKilometreText(east_km));
  upper.Caption = captions.Upper;
  lower.Caption = captions.Lower;
}

void Readouts::CursorReadout(double x, double y) {
  view_.CursorX = x;
  view_.CursorY = y;
  const double p = view_.MetresPerPixel;
  view_.CursorNorthKm =
      RoundedToMetre(view_.CentreNorthKm - (y - (view_.ViewHeightPx / 2.0 - 1.0)) * p / 1000.0);
  view_.CursorEastKm =
      RoundedToMetre((x - view_.ViewWidthPx / 2.0) * p / 1000.0 + view_.CentreEastKm);
  ShowPoint(Readout::Cursor, view_.CursorNorthKm, view_.CursorEastKm, controls_.Label3,
            controls_.Label4);
}

void Readouts::MonitorReadout() {
  ShowPoint(Readout::Monitor, RoundedToMetre(followed_.MonitorNorthKm),
            RoundedToMetre(followed_.MonitorEastKm), controls_.Label7, controls_.Label8);
  const DistanceBearing way = StationDistanceBearing(
      view_.OwnNorthKm, view_.OwnEastKm, followed_.MonitorNorthKm, followed_.MonitorEastKm,
      view_.MapCentralMeridian, view_.MapFalseEasting);
  controls_.Label11.Caption = StationLine(way.DistanceKm, way.BearingDeg,
                                          StationSpeedText(history_), followed_.MonitorHeardVia);
}

int& Readouts::ModeOf(Readout readout) {
  if (readout == Readout::Centre) return view_.CentreDisplayMode;
  return readout == Readout::Cursor ? view_.CursorDisplayMode : view_.MonitorDisplayMode;
}

void Readouts::StepDisplayMode(Readout readout) {
  int& mode = ModeOf(readout);
  mode = (mode + 1) % kDisplayModes;
  // The European systems make sense in their area only.
  const double meridian = view_.MapCentralMeridian;
  if (meridian < kEuropeWest || meridian > kEuropeEast) {
    if (mode == static_cast<int>(DisplayMode::GaussKrueger)) mode = 3;
    if (mode == static_cast<int>(DisplayMode::Rt90)) mode = 0;
  }
  // Kept: the centre's system decides whether the strips are chosen anew, whichever was clicked.
  if (view_.CentreDisplayMode > 0) ZoneByPosition(values_);
  if (readout == Readout::Centre) CentreReadout();
  if (readout == Readout::Cursor) CursorReadout();
  if (readout == Readout::Monitor) MonitorReadout();
}

std::string StationSpeedText(const StationStore& history) {
  // Blank slots hold no position.
  int newest = history.Count();
  while (newest >= 1 && history.At(newest).IsBlank())
    --newest;
  if (newest < 2) return {};
  const StationRecord& last = history.At(newest);
  const StationRecord* reached = nullptr;
  std::int64_t minutes = 0;
  for (int index = newest - 1; index >= 1 && minutes < kSpeedMinutes; --index) {
    if (history.At(index).IsBlank()) continue;
    reached = &history.At(index);
    minutes = RecordMinutes(last) - RecordMinutes(*reached);
  }
  if (reached == nullptr || minutes < 1) return {};
  const double north = last.NorthKm() - reached->NorthKm();
  const double east = last.EastKm() - reached->EastKm();
  const double way = std::sqrt(north * north + east * east);
  return ShortNumber(Int(way * 60.0 / static_cast<double>(minutes)));
}

std::string StationLine(double distance_km, double bearing_deg, const std::string& speed,
                        const std::string& via) {
  std::string line = status_texts::kStationLine;
  PutField(line, 6, 6, ShortNumber(RoundHalfEven(distance_km)));
  PutField(line, 22, 4, ShortNumber(RoundHalfEven(bearing_deg)));
  PutField(line, 37, 4, speed);
  const std::string_view path = Trim(via);
  return line + " " + (path.empty() ? std::string("-") : std::string(path));
}

}  // namespace zepril
