// Every control of the main window `Form1`, in its groups. For those who hold the whole window;
// whoever handles a group includes that. The names are the program's own; object names of the
// widgets are the same.
#pragma once

#include "core/controls/chat_controls.h"
#include "core/controls/emergency_controls.h"
#include "core/controls/gate_controls.h"
#include "core/controls/gps_controls.h"
#include "core/controls/internet_controls.h"
#include "core/controls/iono_controls.h"
#include "core/controls/map_controls.h"
#include "core/controls/moni1_controls.h"
#include "core/controls/moni_all_controls.h"
#include "core/controls/object_setup_controls.h"
#include "core/controls/palette_controls.h"
#include "core/controls/picture_panel_controls.h"
#include "core/controls/place_controls.h"
#include "core/controls/progress_controls.h"
#include "core/controls/qth_setup_controls.h"
#include "core/controls/raw_list_controls.h"
#include "core/controls/readout_controls.h"
#include "core/controls/record_panel_controls.h"
#include "core/controls/scale_controls.h"
#include "core/controls/status_controls.h"
#include "core/controls/sun_controls.h"
#include "core/controls/terminal_controls.h"
#include "core/controls/track_controls.h"
#include "core/controls/transmit_controls.h"
#include "core/controls/tx_setup_controls.h"
#include "core/controls/viewer_controls.h"
#include "core/controls/weather_controls.h"
#include "core/controls/window_controls.h"

namespace zepril {

struct MainWindowControls {
  WindowControls Window;
  MapControls Map;
  ReadoutControls Readouts;
  ScaleControls Scales;
  PaletteControls Palette;
  Moni1Controls Moni1;
  MoniAllControls MoniAll;
  RecordPanelControls Record;
  TrackControls Tracks;
  GpsControls Gps;
  PlaceControls Places;
  PicturePanelControls Picture;
  IonoControls Iono;
  InetControls Inet;
  SunControls Sun;
  ProgressControls Progress;
  TransmitControls Transmit;
  ChatControls Chat;
  GateControls Gate;
  TxSetupControls TxSetup;
  ObjectSetupControls ObjectSetup;
  TerminalControls Terminal;
  RawListControls Raw;
  StatusControls Status;
  QthSetupControls Qth;
  EmergencyControls Emergency;
  WeatherControls Weather;
  ViewerControls Viewers;
};

}  // namespace zepril
