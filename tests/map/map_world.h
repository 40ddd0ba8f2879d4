// A whole map on recorder surfaces: sections, controls, a program folder on a drive of its own.
#pragma once

#include <memory>
#include <string>

#include "core/controls/chat_controls.h"
#include "core/controls/map_controls.h"
#include "core/controls/moni1_controls.h"
#include "core/controls/moni_all_controls.h"
#include "core/controls/palette_controls.h"
#include "core/controls/qth_setup_controls.h"
#include "core/controls/readout_controls.h"
#include "core/controls/record_panel_controls.h"
#include "core/controls/scale_controls.h"
#include "core/controls/window_controls.h"
#include "core/position_text.h"
#include "core/runtime_state.h"
#include "core/quiet_actions.h"
#include "core/text_fields.h"
#include "map/map_room.h"
#include "platform/native/native_files.h"
#include "platform/quiet_machine.h"
#include "tests/doubles/recorder_surface.h"
#include "tests/doubles/temp_folder.h"
#include "tests/doubles/virtual_clock.h"
#include "tests/map/bmp_maker.h"

namespace zepril {

// A record as reception makes it: date and time, position in km, call, symbol.
struct RecordMaker {
  std::string DateAndTime = "240115 1234";
  double NorthKm = 5825.0;
  double EastKm = 425.0;
  std::string Call = "N0CALL";
  std::string Symbol = "/>";
  std::string Info = "Test";
  std::string Via = {};
  char Object = ' ';
  char Message = ' ';
  char Stale = ' ';

  StationRecord Make() const {
    StationRecord record;
    record.Put(1, 11, DateAndTime);
    record.Put(12, 12, std::string(1, Stale));
    record.Put(13, 13, std::string(1, StationRecord::kKeyMark));
    record.Put(14, 22, RecordNorthText(NorthKm * 1000.0 + 0.0001));
    record.Put(23, 31, RecordEastText(EastKm * 1000.0 + 0.0001));
    record.Put(32, 32, std::string(1, Message));
    record.Put(33, 41, Call);
    record.Put(43, 89, Info);
    record.Put(90, 90, std::string(1, Object));
    record.Put(91, 100, Via);
    record.Put(101, 103, Symbol);
    return record;
  }
};

// The groups of controls that the map handles.
struct MapWorldControls {
  WindowControls Window;
  MapControls Map;
  ReadoutControls Readouts;
  ScaleControls Scales;
  PaletteControls Palette;
  Moni1Controls Moni1;
  MoniAllControls MoniAll;
  RecordPanelControls Record;
  ChatControls Chat;
  QthSetupControls Qth;

  MapRoomControls All() {
    return {Window, Map, Readouts, Scales, Palette, Moni1, MoniAll, Record, Chat, Qth};
  }
};

struct MapWorld {
  static constexpr int kWidth = 800;
  static constexpr int kHeight = 600;

  // The view of the worked examples: 800 x 600, 50 km tiles, centre 5825 / 425.
  MapWorld() : MapWorld(Standing()) {}
  explicit MapWorld(OverlayLayers& overlays)
      : Disk(Folder.Path()),
        Surface(kWidth, kHeight),
        Base(kWidth, kHeight),
        Room({State.Map, State.Stores, State.Followed, State.Gps, State.Transmission,
              State.Identity, State.Places, State.Internet, State.Settings},
             Controls.All(),
             {Disk, Clock, Boxes, Desktop, Surface, Base, Quiet, Timer1, Timer2, &overlays}) {
    State.Identity.ProgramFolder = R"(C:\Z)";
    State.Identity.TempFolder = R"(C:\Z\TEMP)";
    State.Identity.MapsPath = R"(C:\Z\U33)";
    Disk.MakeFolder(R"(C:\Z\TEMP)");
    Disk.MakeFolder(R"(C:\Z\U33)");
    State.Map.ViewWidthPx = kWidth;
    State.Map.ViewHeightPx = kHeight;
    State.Map.CentreNorthKm = 5825.0;
    State.Map.CentreEastKm = 425.0;
    State.Map.MapTileKm = 50.0;
    State.Stores.MoniAllRecords.Limit = 666;
    State.Stores.Moni1Records.Limit = 3330;
    Controls.Record.Frame1.Visible = false;
    Controls.Palette.PalettePanel.Visible = false;
  }

  void AddTile(const std::string& folder, const std::string& name, const std::string& bytes) {
    Disk.MakeFolder(R"(C:\Z\U33\)" + folder);
    Disk.Write(R"(C:\Z\U33\)" + folder + "\\" + name, bytes);
  }
  void AddSheet(int number) {
    Disk.Write(R"(C:\Z\ZEPRSYM)" + WholeNumber(number) + ".BMP",
               BmpMaker{337, 127, 8, TestPalette(256), std::string(340 * 127, '\7')}.Bytes());
  }
  void Hear(const RecordMaker& maker) { State.Stores.MoniAllRecords.Append(maker.Make()); }
  void Follow(const RecordMaker& maker) {
    State.Stores.Moni1Records.Append(maker.Make());
    State.Followed.Moni1Call = maker.Call;
    State.Followed.MonitorNorthKm = maker.NorthKm;
    State.Followed.MonitorEastKm = maker.EastKm;
  }
  // The controls as if nobody listened to them: for another interaction than the room's own.
  MapWorldControls& ControlsAnew() {
    std::destroy_at(&Controls);
    std::construct_at(&Controls);
    Controls.Record.Frame1.Visible = false;
    Controls.Palette.PalettePanel.Visible = false;
    return Controls;
  }
  void Scan() { Room.Library.MapLibraryScan(); }
  void Redraw() {
    Surface.Operations.clear();
    Base.Operations.clear();
    Room.Redrawer.MapRedraw();
  }
  MapViewState& View() { return State.Map; }

  static OverlayLayers& Standing() {
    static OverlayLayers none;
    return none;
  }

  TempFolder Folder;
  NativeFiles Disk;
  VirtualClock Clock;
  RecorderSurface Surface;
  RecorderSurface Base;
  RuntimeState State;
  MapWorldControls Controls;
  QuietDialogs Boxes;
  QuietDesktop Desktop;
  QuietActions Quiet;
  Timer Timer1{6000};
  Timer Timer2{6000};
  MapRoom Room;
};

}  // namespace zepril
