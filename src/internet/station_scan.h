// The internet scan of all stations that have a history: each is followed for some ticks while its
// packets are fetched, then the one that was followed before comes back.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "core/actions/settings_actions.h"
#include "core/controls/moni1_controls.h"
#include "core/state/followed_station.h"
#include "core/state/internet.h"
#include "internet/inet_support.h"
#include "reception/followed_choice.h"

namespace zepril {

struct StationScanSections {
  InternetState& Internet;
  FollowedStationState& Followed;
};

struct StationScanTools {
  InetSupport& Support;
  FollowedChoice& Choice;
  SettingsActions& Settings;
};

class StationScan {
 public:
  static constexpr int kTicksOfStation = 5;

  // Sets the click of `Check27`.
  StationScan(StationScanSections sections, Moni1Controls& controls, StationScanTools tools);
  StationScan(const StationScan&) = delete;
  StationScan& operator=(const StationScan&) = delete;

  // The ticks of a station are over: the next one, or the end.
  void RunScanSwitchHandler();
  // The end of the program: the next run follows the station that was followed before the scan.
  void Stop();

 private:
  bool IsOn() const { return sections_.Internet.Moni1ScanOn == 1; }
  void Clicked();
  void Begin();
  void FollowNext();
  void End();
  void SwitchOff();
  bool IsAtItsStation() const;

  StationScanSections sections_;
  Moni1Controls& controls_;
  StationScanTools tools_;
  std::vector<std::string> calls_;  // as the list had them at the begin
  std::size_t begun_ = 0;           // of them
  std::string call_before_;
};

}  // namespace zepril
