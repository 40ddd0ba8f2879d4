// Draws the track by age and style, then the mark, label and gauge, and fills the captions.
#include "map/moni1_layer.h"

#include <algorithm>
#include <array>
#include <vector>

#include "core/text_fields.h"
#include "core/texts/status_texts.h"
#include "map/line_batch.h"
#include "map/map_colours.h"
#include "map/map_view.h"
#include "map/record_age.h"
#include "map/station_marks.h"
#include "map/wx_gauge.h"

namespace zepril {
namespace {

constexpr std::int64_t kRecentMinutes = 60;
constexpr std::int64_t kHoursMinutes = 360;
constexpr int kLastMarkOnly = 6;
constexpr std::ptrdiff_t kCallWidth = 9;
constexpr int kPointMarkRadius = 6;
constexpr int kOwnMarkReach = 15;
// Around the gauge, which hides the mark and reaches 14 pixels; its arrow begins at 21.
constexpr int kGaugeRingInside = 14;
constexpr int kGaugeRingReach = 18;
constexpr std::array<std::string_view, 5> kPersonSymbols{"/,", "/C", "/[", "/b", "\\,"};

bool IsPerson(std::string_view symbol) {
  return std::find(kPersonSymbols.begin(), kPersonSymbols.end(), Left(symbol, 2)) !=
         kPersonSymbols.end();
}

// Diamond rings of a position of the track: two black, two in the colour, two black.
Colour PointMarkColour(int radius, Colour colour) {
  return (radius - 1) / 2 % 2 == 0 ? kBlack : colour;
}

void DrawTrack(DrawingSurface& surface, const MapViewState& view, const TrackLook& look,
               const StationStore& history, const LocalTime& now) {
  LineBatch lines(surface);
  std::optional<PixelPoint> before;
  for (int index = 1; index <= history.Count(); ++index) {
    const StationRecord& record = history.At(index);
    // A blank record keeps the previous point.
    if (record.IsBlank() || (!look.LateRecords && record.StaleMark() == 'T')) continue;
    const Colour colour = TrackColour(record, look.Uniform, now);
    const PixelPoint at = MarkPixel(view, record.NorthKm(), record.EastKm());
    // From the previous point: a line in the colour around a black core.
    if (before) {
      if (look.SideLines) lines.SideLines(*before, at, colour);
      lines.Line(before->X, before->Y, at.X, at.Y, kBlack);
    }
    before = at;
    // A mark on the point, but the last one carries the station's own.
    if (index == history.Count() || !look.PointMarks) continue;
    if (at.X < -kPointMarkRadius || at.Y < -kPointMarkRadius ||
        at.X > view.ViewWidthPx + kPointMarkRadius || at.Y > view.ViewHeightPx + kPointMarkRadius) {
      continue;  // out of sight
    }
    for (int radius = 1; radius <= kPointMarkRadius; ++radius) {
      lines.Diamond(at.X, at.Y, radius, PointMarkColour(radius, colour));
    }
  }
}

// The plan of the other stations with bigger rings: black inside, a ring in the colour, a black
// rim.
void DrawOwnMark(DrawingSurface& surface, int x, int y, int station_class, Colour c) {
  switch (static_cast<StationClass>(station_class)) {
    case StationClass::Moving:
      DrawDiamondMark(surface, x, y, {11, 13, 15, kBlack, c, kBlack});
      break;
    case StationClass::Fixed:
      DrawSquareMark(surface, x, y, {11, 12, 14, kBlack, c, kBlack});
      break;
    case StationClass::Network:
      DrawCircleMark(surface, x, y, {11, 12, 14, kBlack, c, kBlack});
      break;
    case StationClass::Special:
      DrawCircleMark(surface, x, y, {11, 12, 14, kBlack, c, kBlack});
      surface.FilledBox(x - 1, y + 2, x + 1, y + 11, kBlack);
      surface.Line(x, y + 2, x, y + 11, c);
      break;
    case StationClass::Weather:
      // As the small mark of a weather station: a circle with a bar, three pixels high here.
      DrawCircleMark(surface, x, y, {11, 12, 14, kBlack, c, kBlack});
      surface.FilledBox(x - 8, y - 1, x + 8, y + 1, c);
      break;
  }
}

void DrawStation(DrawingSurface& surface, const MapViewState& view, const StationRecord& last,
                 Colour colour, std::string_view call, const SymbolTable& table,
                 SymbolSheets& sheets) {
  const int x = DrawPixel(view.StationAnchorX);
  const int y = DrawPixel(view.StationAnchorY);
  const int index = SymbolIndexOf(last.Symbol());
  const int station_class = table.ClassDigit(index);
  DrawOwnMark(surface, x, y, station_class, colour);
  const bool gauge = view.WxCaption && station_class == static_cast<int>(StationClass::Weather);
  if (gauge) {
    DrawCircleRing(surface, x, y, kGaugeRingInside,
                   {15, 17, kGaugeRingReach, kBlack, colour, kBlack});
    WxGaugeDraw(surface, x, y, last);
  }
  // Levels with bitmap symbols: the symbol lies inside the ring.
  if (ShowsSymbols(view.StationLabelLevel)) {
    sheets.DrawSymbol(surface, index, x - 11, y - 10);
    if (last.Symbol().size() > 2) {
      surface.Text(x - 4, y - 7, last.Symbol().substr(2, 1), FontFace::Text, kBlack);
    }
  }
  // The label of the level, clear of the rings, black on the colour of the track.
  const LabelForm form = LabelFormOf(view.StationLabelLevel);
  if (form == LabelForm::None) return;
  const int left = x + (gauge ? kGaugeRingReach : kOwnMarkReach) + 2;
  const std::string text = form == LabelForm::Long ? LongLabel(last) : std::string(call);
  DrawLabel(surface, left, y, text, colour, kBlack);
  if (!ShowsSymbols(view.StationLabelLevel) && last.MessageMark() == '\'') {
    surface.Box(x - 1, y - 1, x + 1, y + 1, kMessageDotColour);
  }
  // The station that was looked for.
  if (!EqualFolded(Trim(call), Trim(view.FindCall))) return;
  DrawLabel(surface, left, y,
            form == LabelForm::Long ? text : "! " + std::string(Trim(call)) + " !", kFindColour,
            kBlack);
}

// The newest record that is not blank.
const StationRecord* NewestRecord(const StationStore& history) {
  for (int index = history.Count(); index >= 1; --index) {
    if (!history.At(index).IsBlank()) return &history.At(index);
  }
  return nullptr;
}

}  // namespace

TrackLook TrackLookOf(int track_style) {
  TrackLook look;
  look.Uniform = track_style % 3 == 1;
  look.PointMarks = !look.Uniform;
  look.SideLines = track_style % 3 != 2;
  look.LateRecords = track_style < 3;
  look.Track = track_style != kLastMarkOnly;
  return look;
}

Colour TrackColour(const StationRecord& record, bool uniform, const LocalTime& now) {
  if (uniform) return ColourTrackRecent;
  if (record.StaleMark() == 'T') return ColourTrackT;
  if (IsPerson(record.Symbol())) return ColourTrackHuman;
  // A record whose time can't be read counts as old.
  const auto age = RecordAgeMinutes(record, now);
  if (!age) return ColourTrackOld;
  if (*age <= kRecentMinutes) return ColourTrackRecent;
  return *age < kHoursMinutes ? ColourTrackHours : ColourTrackOld;
}

void DropLateRecords(StationStore& history) {
  const auto& all = history.All();
  const auto late = [](const StationRecord& record) { return record.StaleMark() == 'T'; };
  if (std::none_of(all.begin(), all.end(), late)) return;
  std::vector<StationRecord> kept;
  std::remove_copy_if(all.begin(), all.end(), std::back_inserter(kept), late);
  history.Assign(std::move(kept));
}

void ShowMoni1Captions(const FollowedStationState& followed, const StationStore& history,
                       Moni1Controls& controls) {
  if (!controls.Combo9.HasFocus) {
    controls.Combo9.Text = std::string(Left(followed.Moni1Call, kCallWidth));
  }
  controls.Label6.Caption = WholeNumber(history.Count());
  const std::string& date = followed.MonitorDate;
  const std::string& time = followed.MonitorTime;
  controls.Label9.Caption.clear();
  if (!Trim(date).empty()) {
    controls.Label9.Caption = "20" + std::string(Mid(date, 1, 2)) + "-" +
                              std::string(Mid(date, 3, 2)) + "-" + std::string(Mid(date, 5, 2)) +
                              " " + std::string(Mid(time, 1, 2)) + ":" +
                              std::string(Mid(time, 3, 2)) + "  " + followed.MonitorSymbolText;
  }
  controls.Label10.Caption =
      status_texts::kLastText.With({DoubledAmpersands(followed.MonitorInfo)});
}

void Moni1Draw(DrawingSurface& surface, const MapViewState& view, FollowedStationState& followed,
               StationStore& history, const SymbolTable& table, SymbolSheets& sheets,
               const LocalTime& now, Moni1Controls& controls) {
  // Thinning keeps no records with a late time stamp.
  if (followed.Moni1ThinningOn == 1) DropLateRecords(history);
  ShowMoni1Captions(followed, history, controls);
  // The track.
  const TrackLook look = TrackLookOf(followed.TrackStyle);
  if (look.Track) DrawTrack(surface, view, look, history, now);
  // The station's own mark and label.
  const StationRecord* last = NewestRecord(history);
  if (last == nullptr) return;
  DrawStation(surface, view, *last, TrackColour(*last, look.Uniform, now), followed.Moni1Call,
              table, sheets);
}

}  // namespace zepril
