// How the parts of the map are built, and what follows a redraw.
#include "map/map_room.h"

#include "core/state_colours.h"
#include "core/text_fields.h"
#include "core/texts/status_texts.h"

namespace zepril {
namespace {

void ShowPlaceLevel(Button& button, int level) {
  button.Caption = status_texts::kPlaceLevel.With({WholeNumber(level)});
  button.BackColour.reset();
  if (level > 0) button.BackColour = state_colours::kLayerOn;
}

}  // namespace

MapRoom::MapRoom(MapRoomSections sections, MapRoomControls controls, MapRoomTools tools)
    : Library(tools.Disk, sections.Identity, sections.View, controls.Scales),
      Tiles(tools.Disk, tools.LocalClock),
      Sheets(tools.Disk, sections.Identity.ProgramFolder),
      ReadoutTexts(sections.View, sections.Followed, sections.Stores.Moni1Records,
                   controls.ReadoutLabels),
      Overlays({sections.Places, sections.Internet, sections.Settings}, ReadoutTexts.Values(),
               tools.LocalClock, Panels),
      Redrawer({sections.View, sections.Stores, sections.Followed, sections.Gps,
                sections.Transmission, sections.Identity},
               {controls.Window, controls.Map, controls.Scales, controls.Palette, controls.Moni1,
                controls.MoniAll, controls.Record, controls.Chat},
               {tools.MapSurface, tools.BaseSurface, Tiles, Library, Sheets, Symbols, ReadoutTexts,
                tools.OtherLayers ? *tools.OtherLayers : static_cast<OverlayLayers&>(Overlays),
                tools.LocalClock, tools.Timer1}),
      Lookups(sections.View, sections.Places, controls.Map,
              {tools.MapSurface, Panels, tools.Timer1}),
      Interaction(sections.View, sections.Stores, sections.Followed,
                  {controls.Window, controls.Map, controls.ReadoutLabels, controls.Scales,
                   controls.Palette, controls.Moni1, controls.MoniAll, controls.Record},
                  {Redrawer, Library, ReadoutTexts, tools.Settings, Lookups, Panels, tools.Desktop,
                   tools.Timer1, tools.Timer2}),
      Qth(sections.View, controls.Qth, controls.Map,
          {Redrawer, tools.Settings, tools.Timer1, tools.Timer2}),
      Saver(sections.Identity, sections.View,
            {tools.Disk, tools.Boxes, tools.MapSurface, Redrawer}),
      controls_(controls) {
  Redrawer.Redrawn = [this, &view = sections.View, &followed = sections.Followed] {
    Redrawn(view, followed);
  };
  controls.Map.Command59.Click = [this] { Saver.SaveMapWindow(); };
  // Whoever moves the map while the panel is open points out his place.
  Interaction.Touched = [this] { Qth.Begin(); };
}

void MapRoom::Redrawn(const MapViewState& view, const FollowedStationState& followed) {
  if (Panels.Pictures) Panels.Pictures->MapRedrawn();
  Qth.ShowFields();
  controls_.Moni1.Command17.Caption =
      status_texts::kTrackStyle.With({WholeNumber(followed.TrackStyle)});
  ShowPlaceLevel(controls_.Map.Command73, view.PoiLevel);
}

}  // namespace zepril
