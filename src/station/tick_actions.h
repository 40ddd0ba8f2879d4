// What the main cycle starts, in the order of a tick. Each stands for a capability of another room.
#pragma once

namespace zepril {

class TickActions {
 public:
  virtual ~TickActions() = default;
  virtual void PollAprsIsLink() = 0;           // connect, log in, verify or close
  virtual void RunScanSwitchHandler() = 0;     // next station of the internet scan
  virtual void KeepSecondModeMonitored() = 0;  // SCS TNC with HF-DUAL
  virtual void ChangeFollowedStation() = 0;    // as Enter in the MONI 1 call field
  virtual void ShowEmergencyPanel() = 0;       // the emergency panel comes back
  virtual void SendIdentification() = 0;       // of digipeater or gateway
  virtual void StartIonoUpdate() = 0;
  virtual void FetchMoni1() = 0;
  virtual void FetchMoniAll() = 0;
  virtual void PollGps() = 0;
  virtual void RunReceivePass() = 0;
  virtual void RunChatPass() = 0;
  virtual void SendObjectReport() = 0;
  virtual void SendBeacon() = 0;
};

}  // namespace zepril
