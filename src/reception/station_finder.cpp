// The field and buttons of FIND, and the redraw that marks the station.
#include "reception/station_finder.h"

#include "core/keys.h"
#include "core/text_fields.h"

namespace zepril {
StationFinder::StationFinder(MapViewState& view, const StoresState& stores,
                             MoniAllControls& controls, RecordPanelControls& record,
                             MapActions& map, Timer& timer1)
    : view_(view), stores_(stores), controls_(controls), map_(map), timer1_(timer1) {
  controls_.Command14.Click = [this] { Find(controls_.Text15.Text); };
  controls_.Text15.KeyDown = [this](KeyPress key) {
    if (key.Code == kEnterKey) Find(controls_.Text15.Text);
  };
  record.Command36.Click = [this] { Find(stores_.SelectedStationCall); };
}

void StationFinder::Find(const std::string& call) {
  view_.FindCall = Upper(Trim(call));
  controls_.Text15.Text = view_.FindCall;
  timer1_.Hold();
  map_.MapRedraw();
}

}  // namespace zepril
