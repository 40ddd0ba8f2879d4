// Tests the stations heard against the limit and fills the alarm's panel.
#include "reception/distance_alarm.h"

#include <array>
#include <cmath>
#include <cstdint>

#include "core/state_colours.h"
#include "core/text_fields.h"
#include "core/texts/status_texts.h"

namespace zepril {
namespace {}  // namespace

double PlaneDistanceKm(const StationRecord& record, const MapViewState& map) {
  return std::hypot(record.NorthKm() - map.OwnNorthKm, record.EastKm() - map.OwnEastKm);
}

std::string RecordTimeText(const StationRecord& record) {
  std::string text = "20";
  text += record.Columns(1, 2);
  text += '-';
  text += record.Columns(3, 4);
  text += '-';
  text += record.Columns(5, 6);
  text += ' ';
  text += record.Columns(8, 9);
  text += ':';
  text += record.Columns(10, 11);
  return text;
}

DistanceAlarm::DistanceAlarm(const AlarmState& alarm, const IdentityState& identity,
                             const FollowedStationState& followed, const MapViewState& map,
                             StatusControls& status, WindowControls& window)
    : alarm_(alarm),
      identity_(identity),
      followed_(followed),
      map_(map),
      status_(status),
      window_(window) {
  status_.Frame12.Click = [this] { status_.Frame12.Visible = false; };
}

// The own call, with or without an SSID.
bool DistanceAlarm::IsOwnCall(std::string_view call) const {
  const std::string own = Upper(Trim(identity_.MyCall));
  if (own.empty()) return false;
  return call == own || call == identity_.MyCallFull || call.starts_with(own + "-");
}

std::array<Control*, 2> DistanceAlarm::Panel() {
  return {&status_.Frame12, &status_.Label25};
}

void DistanceAlarm::TestAllStations(const StationRecord& record) {
  if (alarm_.MoniAllAlarmOn != 1 || !ShowsStations(map_.StationLabelLevel)) return;
  if (!ClassIsShown(map_.StationClassMask, record.ClassDigit())) return;
  const std::string_view call = record.Call();
  if (EqualFolded(call, Trim(followed_.Moni1Call)) || IsOwnCall(call)) return;
  const double distance_km = PlaneDistanceKm(record, map_);
  if (!(distance_km < alarm_.AlarmDistanceKm)) return;
  Show(status_texts::kAlarmMoniAll, record, distance_km);
  for (Control* part : Panel()) {
    part->BackColour.reset();
    part->ForeColour.reset();
  }
  window_.MaximiseWanted = true;
}

void DistanceAlarm::TestFollowed(const StationRecord& record) {
  if (followed_.Moni1AlarmOn != 1) return;
  const double distance_km = PlaneDistanceKm(record, map_);
  if (!(distance_km < alarm_.AlarmDistanceKm)) return;
  Show(status_texts::kAlarmMoni1, record, distance_km);
  for (Control* part : Panel()) {
    part->BackColour = state_colours::kAlarmGround;
    part->ForeColour = state_colours::kAlarmInk;
  }
}

void DistanceAlarm::Show(Text words, const StationRecord& record, double distance_km) {
  status_.Frame12.Caption = words.With({Str(alarm_.AlarmDistanceKm), RecordTimeText(record)});
  status_.Label25.Caption =
      status_texts::kAlarmLine.With({record.Call(), FixedNumber(distance_km, 1)});
  status_.Frame12.Visible = true;
}

}  // namespace zepril
