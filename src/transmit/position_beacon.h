// The own station's position report and its object.
#pragma once

#include <string>

#include "core/controls/map_controls.h"
#include "core/controls/window_controls.h"
#include "core/state/gps.h"
#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "core/state/settings.h"
#include "core/state/transmission.h"
#include "core/symbol_table.h"
#include "links/frame_sender.h"
#include "platform/clock.h"
#include "platform/files.h"

namespace zepril {

struct BeaconSections {
  const IdentityState& Identity;
  TransmissionState& Transmission;
  const MapViewState& View;
  const GpsState& Gps;
  const SettingsState& Settings;
};

struct BeaconTools {
  FrameSender& Sender;
  const SymbolTable& Symbols;
  const Files& Disk;
  const Clock& LocalClock;
  WindowControls& Window;
  MapControls& Map;
};

class PositionBeacon {
 public:
  PositionBeacon(BeaconSections sections, BeaconTools tools) : sections_(sections), tools_(tools) {}

  // Builds and sends one report with the next active info line. Nothing without a call, or with the
  // own position at 0/0.
  void SendPositionBeacon();
  // The same on the operator's press: not while another frame is being sent or waits.
  void SendByHand();
  // The same with a status text, which moves no info line: the identification of a gateway.
  void SendIdentification(const std::string& status);
  // The own object, always with the time.
  void SendObjectReport();
  // 0/0 stands for a position that nobody has set.
  bool PositionKnown() const;

 private:
  bool MaySend() const;
  std::string NextComment();
  std::string Prefix() const;
  std::string TimeStamp() const;
  // The position field of a place in the map's kilometres with a row of the symbol table.
  std::string PositionField(double north_km, double east_km, int symbol,
                            const std::string& overlay) const;
  void Send(const std::string& comment);
  void ShowBusy(bool busy);

  BeaconSections sections_;
  BeaconTools tools_;
};

}  // namespace zepril
