// Steps from station to station, and back to the first one.
#include "internet/station_scan.h"

#include "core/text_fields.h"
#include "core/texts/internet_texts.h"

namespace zepril {

StationScan::StationScan(StationScanSections sections, Moni1Controls& controls,
                         StationScanTools tools)
    : sections_(sections), controls_(controls), tools_(tools) {
  controls_.Check27.Click = [this] { Clicked(); };
  tools_.Support.Moni1SwitchedOff = [this] {
    if (IsOn()) End();
  };
}

void StationScan::Clicked() {
  if (controls_.Check27.Value == 1) {
    Begin();
  } else if (IsOn()) {
    End();
  }
}

void StationScan::Begin() {
  calls_ = controls_.Combo9.Items;
  begun_ = 0;
  call_before_ = sections_.Followed.Moni1Call;
  if (calls_.empty()) {
    controls_.Check27.Value = 0;
    return tools_.Support.TellMoni1(internet_texts::kNothingToScan);
  }
  // Without an address of the service there is nothing to begin.
  if (!tools_.Support.SwitchMoni1(true)) {
    controls_.Check27.Value = 0;
    return;
  }
  sections_.Internet.Moni1ScanOn = 1;
  tools_.Support.ScanPlace = [this] {
    return internet_texts::kScanPlace.With({WholeNumber(static_cast<std::int64_t>(begun_)),
                                            WholeNumber(static_cast<std::int64_t>(calls_.size()))});
  };
  FollowNext();
}

void StationScan::RunScanSwitchHandler() {
  if (!IsOn()) return;
  // The operator has chosen another station meanwhile: that one is followed.
  if (begun_ >= calls_.size() || !IsAtItsStation()) return End();
  // A station that did not answer has switched support off.
  if (!tools_.Support.SwitchMoni1(true)) return End();
  FollowNext();
}

void StationScan::FollowNext() {
  sections_.Internet.Moni1ScanTicks = kTicksOfStation;
  tools_.Choice.Follow(calls_[begun_++]);
  // Power that is lost meanwhile leaves the operator's choice.
  tools_.Settings.ReplaceConfigLine("CALL", call_before_);
  tools_.Support.Renew();
}

bool StationScan::IsAtItsStation() const {
  return begun_ > 0 && sections_.Followed.Moni1Call == calls_[begun_ - 1];
}

void StationScan::End() {
  const bool at_its_station = IsAtItsStation();
  SwitchOff();
  tools_.Support.SwitchMoni1(false);
  if (at_its_station) tools_.Choice.Follow(call_before_);
}

void StationScan::SwitchOff() {
  sections_.Internet.Moni1ScanOn = 0;
  controls_.Check27.Value = 0;
  tools_.Support.ScanPlace = nullptr;
}

void StationScan::Stop() {
  if (!IsOn()) return;
  const bool at_its_station = IsAtItsStation();
  SwitchOff();
  if (!at_its_station) return;
  sections_.Followed.Moni1Call = call_before_;
  tools_.Settings.ReplaceConfigLine("CALL", call_before_);
}

}  // namespace zepril
