// Walks the store call by call: track, then mark or symbol, then label.
#include "map/all_stations_layer.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <unordered_map>

#include "core/text_fields.h"
#include "map/line_batch.h"
#include "map/map_colours.h"
#include "map/map_view.h"
#include "map/record_age.h"
#include "map/station_marks.h"
#include "map/wx_gauge.h"

namespace zepril {
namespace {

// Beyond this, or the window where that is larger, a station gets neither mark nor label.
constexpr double kMarkReachPx = 1900.0;
constexpr int kLastPlainNameCode = 96;
constexpr std::int64_t kFullGreyMinutes = 255;

// What the walk along a station's records leaves behind.
struct WalkedStation {
  const StationRecord* Last = nullptr;  // null: no record is shown
  PixelPoint At;
  Colour Outline = ColourMoniAll;
  Colour Core = kWhite;
  int Class = 0;
  bool Moved = false;
};

class StationPainter {
 public:
  StationPainter(DrawingSurface& surface, const MapViewState& view, const SymbolTable& table,
                 SymbolSheets& sheets, const LocalTime& now)
      : surface_(surface),
        view_(view),
        table_(table),
        sheets_(sheets),
        now_(now),
        lines_(surface) {}

  void Draw(const StationTrail& trail, const StationStore& store) {
    const auto station = Walk(trail, store);
    lines_.Flush();
    if (!station || station->Last == nullptr || trail.Call.empty()) return;
    if (std::abs(station->At.X) >= std::max(kMarkReachPx, view_.ViewWidthPx) ||
        std::abs(station->At.Y) >= std::max(kMarkReachPx, view_.ViewHeightPx)) {
      return;
    }
    if (view_.MovedOnly && station->Class == 0 && !station->Moved) return;
    if (ShowsSymbols(view_.StationLabelLevel)) {
      DrawSymbol(*station);
    } else {
      DrawMark(*station);
    }
    DrawLabels(*station, trail.Call);
  }

 private:
  // Draws the track; nothing when the call is not shown or one of its records can't be read.
  std::optional<WalkedStation> Walk(const StationTrail& trail, const StationStore& store) {
    WalkedStation station;
    const StationRecord* before = nullptr;
    for (int index : trail.Records) {
      const StationRecord& record = store.At(index);
      const std::string_view name = record.HeardViaField();
      if (view_.HideObjects && !name.empty()) continue;
      const PixelPoint at = MarkPixel(view_, record.NorthKm(), record.EastKm());
      // Records from the internet carry a source word in small letters.
      const bool small_letter = !name.empty() && Asc(name.front()) > kLastPlainNameCode;
      station.Outline = small_letter ? ColourMoniAllObject : ColourMoniAll;
      const auto core = CoreColour(record);
      if (!core) return std::nullopt;
      station.Core = *core;
      if (before == nullptr) {
        station.Class = table_.ClassDigit(SymbolIndexOf(record.Symbol()));
        if (!ClassIsShown(view_.StationClassMask, station.Class)) return std::nullopt;
      } else {
        const bool moved =
            record.NorthText() != before->NorthText() || record.EastText() != before->EastText();
        station.Moved = station.Moved || moved;
        const bool still = view_.MovedOnly && station.Class == 0 && !moved;
        if (record.ObjectMark() != '_' && !still) DrawSegment(station.At, at, station);
      }
      station.At = at;
      station.Last = before = &record;
    }
    return station;
  }

  // White, or for marks alone a grey that darkens with age; nothing for an impossible time.
  std::optional<Colour> CoreColour(const StationRecord& record) const {
    if (view_.StationLabelLevel != LabelLevel::Marks) return kWhite;
    const auto age = RecordAgeMinutes(record, now_);
    if (!age) return std::nullopt;
    return kWhite - static_cast<Colour>(std::min(*age, kFullGreyMinutes)) * 0x010101u;
  }

  void DrawSegment(PixelPoint from, PixelPoint to, const WalkedStation& station) {
    if (from != to) {
      lines_.SideLines(from, to, station.Outline);
      lines_.Line(from.X, from.Y, to.X, to.Y, station.Core);
      return;
    }
    // A cross of points, drawn as lines of one pixel to stay in the order of the batch.
    for (const auto& [dx, dy] : {std::pair{-1, 0}, {1, 0}, {0, -1}, {0, 1}}) {
      lines_.Line(to.X + dx, to.Y + dy, to.X + dx, to.Y + dy, station.Outline);
    }
    lines_.Line(to.X, to.Y, to.X, to.Y, station.Core);
  }

  void DrawMark(const WalkedStation& station) {
    const int x = station.At.X;
    const int y = station.At.Y;
    const Colour c = station.Outline;
    const Colour w = station.Core;
    switch (static_cast<StationClass>(station.Class)) {
      case StationClass::Moving:
        DrawDiamondMark(surface_, x, y, {2, 4, 6, c, w, kBlack});
        break;
      case StationClass::Fixed:
        DrawSquareMark(surface_, x, y, {2, 3, 5, c, w, kBlack});
        break;
      case StationClass::Network:
        DrawCircleMark(surface_, x, y, {2, 4, 6, c, w, kBlack});
        break;
      case StationClass::Special:
        DrawCircleMark(surface_, x, y, {3, 4, 6, c, w, kBlack});
        surface_.Line(x, y, x, y + 3, w);
        surface_.Point(x, y - 2, w);
        break;
      case StationClass::Weather:
        DrawCircleMark(surface_, x, y, {3, 4, 6, c, w, kBlack});
        surface_.Line(x - 4, y, x + 4, y, w);
        if (view_.WxCaption) WxGaugeDraw(surface_, x, y, *station.Last);
        break;
    }
  }

  void DrawSymbol(const WalkedStation& station) {
    const std::string_view symbol = station.Last->Symbol();
    sheets_.DrawSymbol(surface_, SymbolIndexOf(symbol), station.At.X - 11, station.At.Y - 10);
    if (symbol.size() > 2) {
      surface_.Text(station.At.X - 4, station.At.Y - 7, symbol.substr(2, 1), FontFace::Text,
                    kBlack);
    }
  }

  void DrawLabels(const WalkedStation& station, const std::string& call) {
    const LabelForm form = LabelFormOf(view_.StationLabelLevel);
    if (form == LabelForm::None) return;
    // Clear of the mark, or of the bigger bitmap.
    const bool symbol = ShowsSymbols(view_.StationLabelLevel);
    const int left = station.At.X + (symbol ? 14 : 8);
    const std::string text = form == LabelForm::Long ? LongLabel(*station.Last) : call;
    DrawLabel(surface_, left, station.At.Y, text, station.Outline, station.Core);
    if (!symbol && station.Last->MessageMark() == '\'') {
      surface_.Box(station.At.X - 1, station.At.Y - 1, station.At.X + 1, station.At.Y + 1,
                   kMessageDotColour);
    }
    // The station that was looked for.
    if (call != Trim(view_.FindCall)) return;
    DrawLabel(surface_, left, station.At.Y, form == LabelForm::Long ? text : "! " + call + " !",
              kFindColour, kBlack);
  }

  DrawingSurface& surface_;
  const MapViewState& view_;
  const SymbolTable& table_;
  SymbolSheets& sheets_;
  const LocalTime& now_;
  LineBatch lines_;
};

}  // namespace

std::vector<StationTrail> TrailsOfStore(const StationStore& store) {
  std::vector<StationTrail> trails;
  std::unordered_map<std::string_view, std::size_t> by_call;
  // From the newest record back: calls in the order of their last record.
  for (int index = store.Count(); index >= 1; --index) {
    const StationRecord& record = store.At(index);
    if (record.IsBlank()) continue;
    const std::string_view call = record.Call();
    auto known = by_call.find(call);
    if (known == by_call.end()) {
      if (trails.size() == kMostStations) continue;
      known = by_call.emplace(call, trails.size()).first;
      trails.push_back({std::string(call), {}});
    }
    trails[known->second].Records.push_back(index);
  }
  for (StationTrail& trail : trails)
    std::reverse(trail.Records.begin(), trail.Records.end());
  std::reverse(trails.begin(), trails.end());
  return trails;
}

void AllStationsDraw(DrawingSurface& surface, const MapViewState& view, const StationStore& store,
                     std::string_view followed_call, const SymbolTable& table, SymbolSheets& sheets,
                     const LocalTime& now) {
  StationPainter painter(surface, view, table, sheets, now);
  for (const StationTrail& trail : TrailsOfStore(store)) {
    // The followed station has a layer of its own.
    if (EqualFolded(trail.Call, Trim(followed_call))) continue;
    painter.Draw(trail, store);
  }
}

}  // namespace zepril
