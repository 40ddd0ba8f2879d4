// Fills the panel, leads the map to the station, and asks before an alarm ends.
#include "reception/emergency_display.h"

#include "core/centre_follow.h"
#include "core/text_fields.h"
#include "core/texts/emergency_texts.h"

namespace zepril {
namespace {

constexpr std::size_t kCallPlaces = 12;

// "2024-05-14 12:30".
LocalTime TimeOfText(std::string_view text) {
  const auto number = [text](std::ptrdiff_t column, std::ptrdiff_t length) {
    return static_cast<int>(Val(Mid(text, column, length)));
  };
  return {number(1, 4), number(6, 2), number(9, 2), number(12, 2), number(15, 2), 0};
}

std::string TextOfTime(const LocalTime& time) {
  return ZeroPadded(time.Year, 4) + "-" + ZeroPadded(time.Month, 2) + "-" +
         ZeroPadded(time.Day, 2) + " " + ZeroPadded(time.Hour, 2) + ":" +
         ZeroPadded(time.Minute, 2);
}

}  // namespace

EmergencyDisplay::EmergencyDisplay(EmergencySections sections, EmergencyDisplayControls controls,
                                   EmergencyTools tools)
    : sections_(sections), controls_(controls), tools_(tools) {
  controls_.Panel.EmergencyClose.Click = [this] { CloseEmergencyPanel(); };
  controls_.Panel.FalseAlarm.Click = [this] { Cancel(); };
}

void EmergencyDisplay::ShowAgain() {
  AlarmState& alarm = sections_.Alarms;
  if (alarm.AlarmCall == cancelled_call_) {
    alarm.AlarmCall.clear();
  } else if (alarm.AlarmCall != shown_call_) {
    ShowEmergency();
  } else {
    controls_.Panel.Frame14.Visible = true;
  }
}

void EmergencyDisplay::ShowEmergency() {
  shown_call_ = sections_.Alarms.AlarmCall;
  shown_time_ = sections_.Alarms.AlarmTime;
  cancelled_call_.clear();
  if (ClosePicture) ClosePicture();
  sections_.View.PictureMode = MapShows::Map;
  // One jump to the station, which ends all following.
  FollowNobody(sections_.View, controls_.Map);
  sections_.View.QthNorthText = sections_.Alarms.AlarmNorth;
  sections_.View.QthEastText = sections_.Alarms.AlarmEast;
  JumpOnceToTyped(sections_.View);
  // A station on the move stays there for a while, as when a hand has moved the map.
  sections_.View.ManualMapMove = true;
  FillPanel();
  PlayAlarmSound();
  controls_.Panel.Frame14.Visible = true;
  controls_.Window.MaximiseWanted = true;
  tools_.Map.MapRedraw();
}

void EmergencyDisplay::FillPanel() {
  const AlarmState& alarm = sections_.Alarms;
  EmergencyControls& panel = controls_.Panel;
  panel.EmergencyCall.Caption =
      emergency_texts::kCall.With({PadRight(alarm.AlarmCall, kCallPlaces), alarm.AlarmTime});
  panel.EmergencyFile.Caption = DoubledAmpersands(alarm.AlarmFile);
  panel.Label26.Caption = emergency_texts::kGrid.With(
      {Mid(sections_.Identity.MapZoneName, 2), alarm.AlarmNorth, alarm.AlarmEast});
  panel.Label27.Caption = emergency_texts::kDegrees.With({alarm.AlarmLat, alarm.AlarmLon});
  panel.EmergencyInfo.Caption = DoubledAmpersands(alarm.AlarmInfo);
}

void EmergencyDisplay::PlayAlarmSound() {
  if (tools_.Speaker) tools_.Speaker->Play(sections_.Identity.ProgramFolder + "\\ALARM.WAV");
}

std::int64_t EmergencyDisplay::MinutesSinceReport() const {
  return MinutesOf(tools_.LocalClock.Now()) - MinutesOf(TimeOfText(sections_.Alarms.AlarmTime));
}

void EmergencyDisplay::CloseEmergencyPanel() {
  const bool urgent = sections_.Alarms.AlarmInfo.find('!') != std::string::npos;
  if (MinutesSinceReport() <= (urgent ? kUrgentMinutes : kSureMinutes)) return HideForAWhile();
  const DialogAnswer answer =
      tools_.Boxes.Ask(emergency_texts::kQuestionTitle, emergency_texts::kQuestion,
                       DialogButtons::YesNo, DialogAnswer::No);
  answer == DialogAnswer::Yes ? Cancel() : HideForAWhile();
}

void EmergencyDisplay::HideForAWhile() {
  controls_.Panel.Frame14.Visible = false;
  sections_.Alarms.AlarmClosedAt = tools_.LocalClock.MonotonicSeconds();
}

void EmergencyDisplay::Cancel() {
  AlarmState& alarm = sections_.Alarms;
  if (!shown_call_.empty()) {
    const std::string line = emergency_texts::kCancelled.With(
        {shown_call_, shown_time_, TextOfTime(tools_.LocalClock.Now())});
    tools_.Disk.Append(alarm.AlarmFile, line + "\r\n");
  }
  if (alarm.AlarmCall == shown_call_) alarm.AlarmCall.clear();
  cancelled_call_ = shown_call_;
  shown_call_.clear();
  if (tools_.Speaker) tools_.Speaker->Stop();
  controls_.Panel.Frame14.Visible = false;
  tools_.Map.MapRedraw();
}

}  // namespace zepril
