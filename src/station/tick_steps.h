// What the main cycle starts, in the order of a tick. Each step is the work of another room; one
// that nobody has set is passed over.
#pragma once

#include <functional>

namespace zepril {

using Step = std::function<void()>;

// Runs a step that somebody has set.
inline void RunStep(const Step& step) {
  if (step) step();
}

struct TickSteps {
  Step PollAprsIsLink;           // connect, log in, verify or close
  Step WatchCompanion;           // is the digipeater program beside the engine there
  Step RunScanSwitchHandler;     // next station of the internet scan
  Step KeepSecondModeMonitored;  // SCS TNC with HF-DUAL
  Step ChangeFollowedStation;    // as Enter in the MONI 1 call field
  Step ShowEmergencyPanel;       // the emergency panel comes back
  Step SendIdentification;       // of digipeater or gateway
  Step StartIonoUpdate;
  Step FetchMoni1;
  Step FetchMoniAll;
  Step PollGps;
  Step RunReceivePass;
  Step RunChatPass;
  Step SendObjectReport;
  Step SendBeacon;
};

}  // namespace zepril
