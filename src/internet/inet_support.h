// Internet support of both station lists: the packets of the followed station minute by minute, and
// all stations of the area every fourth minute.
//
// While a page is under way the main cycle rests. The page, its failure, a minute without an answer
// or `Timer2` brings it back. A page that comes when it is not wanted any more (switched off,
// another station followed, a panel open under which the cycle rests) is passed over as a whole.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "core/actions/emergency_actions.h"
#include "core/actions/map_actions.h"
#include "core/actions/message_actions.h"
#include "core/controls/internet_controls.h"
#include "core/controls/map_controls.h"
#include "core/controls/moni1_controls.h"
#include "core/controls/moni_all_controls.h"
#include "core/controls/status_controls.h"
#include "core/controls/window_controls.h"
#include "core/state/followed_station.h"
#include "core/state/identity.h"
#include "core/state/internet.h"
#include "core/state/map_view.h"
#include "core/state/services.h"
#include "core/state/settings.h"
#include "core/state/stores.h"
#include "core/symbol_table.h"
#include "core/timer.h"
#include "internet/area_decoder.h"
#include "internet/inet_line_decoder.h"
#include "platform/clock.h"
#include "platform/page_fetcher.h"
#include "reception/record_keeper.h"

namespace zepril {

struct InetSupportSections {
  const IdentityState& Identity;
  InternetState& Internet;
  const StoresState& Stores;
  const FollowedStationState& Followed;
  const MapViewState& View;
  const SettingsState& Settings;
  const ServicesState& Services;
};

struct InetSupportControls {
  Moni1Controls& Moni1;
  MoniAllControls& MoniAll;
  WindowControls& Window;
  MapControls& Map;
  StatusControls& Status;
  InetControls& Words;
};

struct InetSupportTools {
  PageFetcher& Pages;
  Clock& LocalClock;
  RecordKeeper& Keeper;
  const SymbolTable& Symbols;
  MapActions& Map;
  EmergencyActions& Emergencies;
  MessageActions& Messages;
  Timer& Timer1;
  Timer& Timer2;
};

class InetSupport {
 public:
  static constexpr int kPatienceMilliseconds = 60000;
  // A service that can't be reached: the banner stays so long.
  static constexpr int kFailureMilliseconds = 2000;
  static constexpr double kPauseSeconds = 1.0;  // behind an area reply

  // Sets the clicks of `Check22` and `Check23`.
  InetSupport(InetSupportSections sections, InetSupportControls controls, InetSupportTools tools);
  ~InetSupport();
  InetSupport(const InetSupport&) = delete;
  InetSupport& operator=(const InetSupport&) = delete;

  // The steps of the tick, which has stopped `Timer1` and shows the banner.
  void FetchMoni1();
  void FetchMoniAll();

  // Switches support of MONI 1 on or off, as a click does. False when its service has no address.
  bool SwitchMoni1(bool on);
  // Says this of MONI 1 until there is something else to say.
  void TellMoni1(std::string words);
  // Once a second: who does not answer is given up.
  void SecondPassed();
  // Captions and words that follow the state; once a second and after each tick.
  void Renew();
  // The end of the program: nothing more is asked or taken.
  void Stop();

  // A panel is open under which the cycle rests; may be missing.
  std::function<bool()> CycleIsHeld;
  // While all stations are scanned, how far that is; else missing.
  std::function<std::string()> ScanPlace;
  // The operator has switched support of MONI 1 off; may be missing.
  std::function<void()> Moni1SwitchedOff;

 private:
  // What was asked for, and for whom.
  struct Asked {
    std::int64_t Number = PageFetcher::kNone;
    InternetSource Source = InternetSource::RestService;
    std::string Call;
    std::string At;      // time of day
    double Since = 0.0;  // monotonic seconds, while it waits for its turn the last ones
  };
  // One of the two switches.
  struct Kind {
    std::optional<Asked> UnderWay;
    std::string Words;
    bool WasOn = false;
  };

  void Moni1Clicked();
  void Moni1RightClicked();
  void MoniAllClicked();
  void Operated();
  bool IsOfFollowed(const Asked& asked) const;
  bool IsHeld() const { return CycleIsHeld && CycleIsHeld(); }

  void Ask(Kind& kind, const std::string& address, std::string call,
           void (InetSupport::*came)(const Page& page));
  void Moni1Came(const Page& page);
  void MoniAllCame(const Page& page);
  // Words of a page that holds no answer; nothing for a good one.
  std::optional<std::string> TroubleOf(const Page& page);
  DecodedLines TakeLines(const Asked& asked, const std::string& body);
  void TakeArea(const std::string& body);
  std::string LinesOf(const Asked& asked, const std::string& body);
  void ShowNew(FrameLevel level);
  void HandOnMessages(const DecodedLines& decoded);
  void Drop(Kind& kind);
  void GiveUpSilent(Kind& kind);
  void WaitForTurn(Kind& kind);
  void EndFailure();
  void Rest();
  bool IsBannerOfMessage() const;
  void LoseService(Kind& kind, CheckBox& box, InternetSource source);
  void NoteSwitchedOff(Kind& kind, const CheckBox& box);
  std::string StateOf(const Kind& kind, const CheckBox& box, int last_minute, int every) const;
  std::string ClockNow() const;
  int HhMmNow() const;

  InetSupportSections sections_;
  InetSupportControls controls_;
  InetSupportTools tools_;
  InetLineDecoder lines_;
  AreaDecoder area_;
  Kind moni1_;
  Kind moni_all_;
  std::optional<double> failed_at_;  // monotonic seconds; the banner of that fetch may still stand
};

}  // namespace zepril
