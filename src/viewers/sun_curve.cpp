// Words the six results and paints the curve, today's and the reference days'.
#include "viewers/sun_curve.h"

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "core/text_fields.h"
#include "core/texts/status_texts.h"
#include "geodesy/conversions.h"

namespace zepril {
namespace {

constexpr std::array<Text, SunControls::kRows> kNames{
    status_texts::kSunToday,       status_texts::kSunAmpereHours, status_texts::kSunJune,
    status_texts::kSunAmpereHours, status_texts::kSunDecember,    status_texts::kSunAmpereHours};

constexpr double kDayStepDeg = 1.0;
constexpr double kReferenceStepDeg = 7.5;
constexpr int kHorizonRow = SunCurve::kPlotHeight - 1;

constexpr Colour kSky = 0x30241A;
constexpr Colour kGraduation = 0x50402F;
constexpr Colour kHorizon = 0xABA49A;
constexpr Colour kHours = 0xABA49A;
constexpr Colour kReferenceDays = 0x9C8468;
constexpr Colour kToday = 0x78E0FF;
constexpr Colour kSun = 0xE0FFFF;

int RowOf(double elevation_deg) {
  return kHorizonRow - static_cast<int>(ToWhole(elevation_deg));
}

std::string DateText(const LocalTime& now) {
  return ZeroPadded(now.Year, 4) + "-" + ZeroPadded(now.Month, 2) + "-" + ZeroPadded(now.Day, 2);
}

// The "+" tells that the clock is ahead of UTC.
std::string OffsetText(int hours) {
  return WholeNumber(hours) + (hours > 0 ? "+" : "");
}

}  // namespace

std::string CutToOneDecimal(double value) {
  return FixedNumber(Fix(value * 10.0) / 10.0, 1);
}

SunCurve::SunCurve(const MapViewState& view, const SettingsState& settings, SunControls& controls,
                   DrawingSurface& surface, const Clock& clock)
    : view_(view), settings_(settings), controls_(controls), surface_(surface), clock_(clock) {
  for (std::size_t row = 0; row < kNames.size(); ++row)
    controls_.SunNames[row].Caption = kNames[row];
}

void SunCurve::ShowSunCurve() {
  const SunPlace place = PlaceUnderCursor();
  const LocalTime now = clock_.Now();
  const SunPath today(place, DeclinationDeg(DayAngleDeg(now.Month, now.Day)));
  // The longest and the shortest day of the northern half.
  const SunPath summer(place, kAxialTiltDeg);
  const SunPath winter(place, -kAxialTiltDeg);
  ShowTitle(place, now);
  ShowEnergies(today, summer, winter);
  DrawSky();
  DrawReferenceDay(summer);
  DrawReferenceDay(winter);
  DrawToday(today, now);
  ++controls_.SunPlot.Revision;
  controls_.SunPanel.Visible = true;
}

void SunCurve::MoveSunCurve() {
  if (controls_.SunPanel.Visible) ShowSunCurve();
}

void SunCurve::HideSunCurve() {
  controls_.SunPanel.Visible = false;
}

SunPlace SunCurve::PlaceUnderCursor() const {
  const Geodetic at = UtmToGeodetic(view_.MapCentralMeridian, view_.CursorEastKm * 1000.0,
                                    view_.CursorNorthKm * 1000.0, view_.MapFalseEasting);
  return {at.Lat, at.Lon, static_cast<double>(settings_.UtcOffsetHours)};
}

void SunCurve::ShowTitle(const SunPlace& place, const LocalTime& now) {
  controls_.SunTitle.Caption = status_texts::kSunTitle.With(
      {DateText(now), CutToOneDecimal(place.LatitudeDeg), CutToOneDecimal(place.LongitudeDeg),
       OffsetText(settings_.UtcOffsetHours)});
}

void SunCurve::ShowEnergies(const SunPath& today, const SunPath& summer, const SunPath& winter) {
  const std::array<SunEnergy, SunControls::kRows / 2> days{EnergyOfDay(today, kDayStepDeg),
                                                           EnergyOfDay(summer, kReferenceStepDeg),
                                                           EnergyOfDay(winter, kReferenceStepDeg)};
  std::size_t row = 0;
  for (const SunEnergy& day : days) {
    controls_.SunValues[row++].Caption = WholeNumber(ToWhole(Fix(day.WattHours)));
    controls_.SunValues[row++].Caption = CutToOneDecimal(day.AmpereHours);
  }
}

void SunCurve::DrawSky() {
  constexpr int kLastColumn = kPlotWidth - 1;
  surface_.Clear(kSky);
  // Lines at 30 and 60 degrees of elevation and every three hours, a taller tick every six.
  std::vector<PixelLine> lines;
  for (int elevation : {30, 60}) {
    const int row = kHorizonRow - elevation;
    lines.push_back({{0, row}, {kLastColumn, row}});
  }
  for (int hour : {6, 12, 18})
    lines.push_back({{hour * 15, 0}, {hour * 15, kHorizonRow}});
  surface_.Lines(lines, kGraduation);
  lines.clear();
  for (int hour = 0; hour <= 24; hour += 3) {
    const int height = hour % 6 == 0 ? 5 : 2;
    lines.push_back({{hour * 15, kHorizonRow - height}, {hour * 15, kHorizonRow}});
  }
  lines.push_back({{0, kHorizonRow}, {kLastColumn, kHorizonRow}});
  surface_.Lines(lines, kHorizon);
  for (int hour : {6, 12, 18}) {
    surface_.Text(hour * 15 + 3, 0, WholeNumber(hour), FontFace::Text, kHours);
  }
}

void SunCurve::DrawReferenceDay(const SunPath& path) {
  std::vector<PixelPoint> points;
  for (int column = 0; column < kPlotWidth; ++column) {
    const double elevation = path.ElevationDegAt(column);
    // Every other column: fainter than the day itself.
    if (column % 2 == 0 && elevation >= 0.0) points.push_back({column, RowOf(elevation)});
  }
  surface_.Points(points, kReferenceDays);
}

void SunCurve::DrawToday(const SunPath& path, const LocalTime& now) {
  std::vector<PixelPoint> points;
  for (int column = 0; column < kPlotWidth; ++column) {
    const double elevation = path.ElevationDegAt(column);
    if (!(elevation >= 0.0)) continue;
    const int row = RowOf(elevation);
    points.push_back({column, row});
    if (row < kHorizonRow) points.push_back({column, row + 1});
  }
  surface_.Points(points, kToday);
  // Where the sun stands now.
  const double clock_deg = (now.Hour + now.Minute / 60.0) * 15.0;
  const double elevation = path.ElevationDegAt(clock_deg);
  if (!(elevation >= 0.0)) return;
  const int column = static_cast<int>(ToWhole(clock_deg));
  const int row = RowOf(elevation);
  surface_.FilledBox(column - 2, row - 3, column + 2, row + 3, kSun);
  surface_.FilledBox(column - 3, row - 2, column + 3, row + 2, kSun);
}

}  // namespace zepril
