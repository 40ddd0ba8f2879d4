// The map with its controls, and what it asks of other rooms written down.
#pragma once

#include <string>
#include <vector>

#include "map/map_interaction.h"
#include "tests/map/map_world.h"

namespace zepril {

// The joins of the map, written down.
class Joins final : public MapActions,
                    public MapLookups,
                    public SunPanel,
                    public PicturePanel,
                    public DesktopActions {
 public:
  explicit Joins(MapWorld& world) : world_(world) {}

  void MapRedraw() override {
    timer1_ran_while_redrawing_ = world_.Timer1.Enabled();
    Calls.push_back("redraw");
    world_.Redraw();
  }
  void MapRefresh() override { Calls.push_back("refresh"); }
  bool LookupPicture() override { return Look("PIC"); }
  bool LookupTrackPoint() override { return Look("TRK"); }
  bool LookupPlace() override { return Look("POI"); }
  void ShowSunCurve() override { Calls.push_back("SUN"); }
  void MoveSunCurve() override {}
  void ShowPicture(int) override {}
  void MapRedrawn() override {}
  void HideSunCurve() override { Calls.push_back("hide SUN"); }
  void ClosePicture() override { Calls.push_back("close picture"); }
  bool MainWindowActive() const override { return true; }
  void Open(const std::string&) override {}
  bool MovePointerOnMap(int x, int y) override {
    Pointer.push_back({x, y});
    return PointerMoves;
  }

  std::vector<std::string> Calls;
  std::vector<PixelPoint> Pointer;
  std::string Finds;  // the lookup that finds something
  bool PointerMoves = true;
  bool timer1_ran_while_redrawing_ = false;
  std::vector<std::string> TimersAtLookups;  // what ran when each began

 private:
  bool Look(const std::string& name) {
    Calls.push_back(name);
    TimersAtLookups.push_back(name + (world_.Timer1.Enabled() ? " Timer1" : "") +
                              (world_.Timer2.Enabled() ? " Timer2" : ""));
    // The next one has to arm it anew.
    world_.Timer2.Arm(1);
    world_.Timer1.Enable();
    return Finds == name;
  }
  MapWorld& world_;
};

struct InteractionWorld : MapWorld {
  InteractionWorld()
      : Join(*this),
        Hands(State.Map, State.Stores, State.Followed,
              {ControlsAnew().Window, Controls.Map, Controls.Readouts, Controls.Scales,
               Controls.Palette, Controls.Moni1, Controls.MoniAll, Controls.Record},
              {Join, Room.Library, Room.ReadoutTexts, Quiet, Join, Shown, Join, Timer1, Timer2}) {
    Hands.RecordPicked = [this] { Join.Calls.push_back("record panel"); };
    Redraw();
    Timer1.Enable();
  }
  void Press(int button, double x, double y) { Controls.Map.Picture1.MouseDown({button, 0, x, y}); }
  void Key(int code, int shift = 0) { Controls.Map.Picture1.KeyDown({code, shift}); }

  Joins Join;
  MapPanels Shown{&Join, nullptr, &Join};
  MapInteraction Hands;
};

}  // namespace zepril
