// The rooms of one running program, its tick, start and stop, and what joins two rooms on one
// floor.
#pragma once

#include <memory>
#include <string>

#include "config/settings_writer.h"
#include "core/actions/program_actions.h"
#include "core/controls/main_window_controls.h"
#include "core/link_lamp.h"
#include "core/progress_panel.h"
#include "core/runtime_state.h"
#include "core/timer.h"
#include "gate/gate_room.h"
#include "gps/gps_room.h"
#include "internet/internet_room.h"
#include "links/links_room.h"
#include "map/map_room.h"
#include "messages/messages_room.h"
#include "platform/machine.h"
#include "reception/emergency_display.h"
#include "reception/reception_room.h"
#include "station/main_cycle.h"
#include "station/raw_list_search.h"
#include "station/station_surfaces.h"
#include "transmit/transmit_room.h"
#include "viewers/viewers_room.h"
#include "weather/weather_room.h"

namespace zepril {

// Notes that the program is to end.
struct ProgramEnd final : ProgramActions {
  void EndProgram() override { Wanted = true; }
  bool Wanted = false;
};

class StationRooms {
 public:
  // `modem`: as StationProgram takes it.
  StationRooms(const Machine& machine, std::shared_ptr<SerialPort> modem);
  StationRooms(const StationRooms&) = delete;
  StationRooms& operator=(const StationRooms&) = delete;

  bool Start(const std::string& program_folder, int colour_depth_bits);
  void Stop(bool by_operator);
  void MapResized(int width, int height);
  // Once a second.
  void SecondPassed();
  void ShowTitle();
  void SetLabels();

  const Machine Given;

  RuntimeState State;
  MainWindowControls Controls;
  Timer Timer1{6000};
  Timer Timer2{3000};
  ProgramEnd End;

 private:
  void Tick();
  // A panel is open that the main cycle would disturb.
  bool CycleIsHeld() const;

  void JoinRooms();

  std::shared_ptr<TcpSocket> winsock1_;  // the packet engine
  std::shared_ptr<TcpSocket> winsock2_;  // the APRS-IS server
  std::shared_ptr<SerialPort> mscomm1_;  // the modem
  std::shared_ptr<SerialPort> mscomm2_;  // the GPS

 public:
  StationSurfaces Surfaces;
  SettingsWriter Settings;
  ProgressPanel LongWork;
  MapRoom Map;
  LinksRoom Links;
  GpsRoom Gps;
  ViewersRoom Viewers;
  GateRoom Gateway;
  TransmitRoom Transmit;
  MessagesRoom Messages;
  WeatherRoom Weather;
  EmergencyDisplay Emergencies;
  ReceptionRoom Reception;
  InternetRoom Internet;
  RawListSearch RawSearch;
  MainCycle Cycle;
};

}  // namespace zepril
