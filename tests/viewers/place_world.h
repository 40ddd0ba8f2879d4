// Place files in memory with their panel over the map.
#pragma once

#include <string>
#include <vector>

#include "tests/doubles/point_files_world.h"
#include "viewers/place_files.h"

namespace zepril {

inline constexpr const char* kHut = "\xFE 5378.123  412.345  HUT";
inline constexpr const char* kLake = "\xFE 5380.000-  10.517  LAKE";
inline constexpr const char* kPeak = "\xFE 5390.000  400.000 PEAK {www.example.org}";

struct PlaceWorld : PointFilesWorld {
  explicit PlaceWorld(Files& disk)
      : Room(Identity, View, Settings, Places, Controls, Map, {disk, Boxes, Up, Up, Up, LongWork}) {
    View.CentreNorthKm = 5378.123;
    View.CentreEastKm = 412.345;
    Controls.PoiPanel.Visible = false;
    Controls.Command67.Visible = false;
  }
  PlaceWorld() : PlaceWorld(Disk) {}
  // With the file HUTS of these lines loaded.
  explicit PlaceWorld(const std::vector<std::string>& lines) : PlaceWorld() {
    Put("HUTS.POI", FileOf(lines));
    Settings.PoiFile = "HUTS";
    Room.RestoreAtStart();
  }

  static std::string PathOf(const std::string& name) { return R"(C:\Z\U33\POI\)" + name; }
  void Put(const std::string& name, const std::string& text) { Disk.Contents[PathOf(name)] = text; }
  std::string File(const std::string& name = "HUTS.POI") const { return Disk.Of(PathOf(name)); }
  void Choose(const std::string& name) { ChooseIn(Controls.Combo2, name); }
  void Type(const std::string& name) { TypeIn(Controls.Combo2, name); }
  void Enter() { Controls.Combo2.KeyDown({13, 0}); }
  void Name(const std::string& text) {
    Controls.Text4.Text = text;
    Controls.Text4.Change();
  }

  PlaceControls Controls;
  PlaceFiles Room;
};

}  // namespace zepril
