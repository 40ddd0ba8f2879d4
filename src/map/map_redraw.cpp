// The redraw's order of steps: zone, centre, tiles, overlays, stations, marks, texts.
#include "map/map_redraw.h"

#include "core/centre_follow.h"
#include "core/position_text.h"
#include "core/state_colours.h"
#include "core/text_fields.h"
#include "core/texts/status_texts.h"
#include "map/all_stations_layer.h"
#include "map/fill_bars.h"
#include "map/map_view.h"
#include "map/moni1_layer.h"
#include "map/position_marks.h"
#include "map/scale_text.h"
#include "map/scales.h"
#include "map/tile_coverage.h"
#include "map/tile_frames.h"
#include "map/tile_layer.h"

namespace zepril {
MapRedrawer::MapRedrawer(MapRedrawSections sections, MapRedrawControls controls,
                         MapRedrawTools tools)
    : sections_(sections), controls_(controls), tools_(tools) {}

void MapRedrawer::MapRedraw() {
  Draw();
  if (Redrawn) Redrawn();
}

void MapRedrawer::Draw() {
  MapViewState& view = sections_.View;
  DrawingSurface& surface = tools_.MapSurface;

  // Caption of the centre button.
  controls_.Map.Command12.Caption =
      view.MapLockedOnRecord == 1 ? status_texts::kCentreLocked : status_texts::kCentre;

  // A picture in place of the map: nothing else is drawn.
  if (view.PictureMode == MapShows::Picture) {
    surface.Clear(kBlack);
    tools_.Overlays.ShowPicture(surface, view);
    ++controls_.Map.Picture1.Revision;
    tools_.Timer1.Enable();
    return;
  }

  // Wait pointer, map visible, but not over its plain form that is just looked at.
  SetPointer(PointerShape::Hourglass);
  if (!view.PlainMapHeld) controls_.Map.Picture1.Visible = true;

  ReadZone();

  // The own position, when it comes from GPS.
  if (OwnPositionFromGps()) {
    view.OwnNorthKm = sections_.Gps.GpsNorthKm;
    view.OwnEastKm = sections_.Gps.GpsEastKm;
  }

  // The centre, by what is followed; focus; the centre held on the map.
  FollowCentre();
  TakeFocus();
  ClampCentre(view);

  // Folder of the scale, resolution and edges.
  ChooseFolders();
  ComputeViewEdges(view);

  // Map tiles, and the plain map under a map type.
  tools_.Tiles.BeginRedraw();
  tools_.Sheets.BeginRedraw();
  surface.Clear(kBlack);
  const PixelPoint last_tile = DrawActiveTiles(surface, tools_.Tiles, view, controls_.Palette);
  DrawBaseMap();

  // Everything over the tiles.
  DrawOverlays(last_tile);
  DrawPositionMarks();

  // Read-outs, scale text, fill bars.
  ShowTexts();

  // Which scales have a tile here.
  TileCoverageMarks(view, tools_.Library, controls_.Scales, controls_.Record);

  Finish();
}

// The first redraw, and one after a change of the zone, tells the read-outs its number and
// meridian; the strips of the other systems start with it.
void MapRedrawer::ReadZone() {
  if (zone_read_ == sections_.Identity.MapZoneName) return;
  zone_read_ = sections_.Identity.MapZoneName;
  ZoneOfMap(tools_.ReadoutTexts.Values(), sections_.Identity, sections_.View);
}

bool MapRedrawer::OwnPositionFromGps() const {
  return sections_.Gps.GpsFixValid == 1 || sections_.Gps.GpsFixValidBefore == 1;
}

void MapRedrawer::FollowCentre() {
  MapViewState& view = sections_.View;
  const FollowedStationState& followed = sections_.Followed;
  const bool station_known = followed.MonitorNorthKm != 0.0 || followed.MonitorEastKm != 0.0;
  if (view.CentreFollow == Following::Station && station_known) {
    view.CentreNorthKm = followed.MonitorNorthKm;
    view.CentreEastKm = followed.MonitorEastKm;
  }
  if (view.CentreFollow == Following::OwnPosition) {
    view.CentreNorthKm = view.OwnNorthKm;
    view.CentreEastKm = view.OwnEastKm;
  }
  // A pending jump to the own object.
  if (view.ObjectCenterPending) {
    view.CentreNorthKm = sections_.Transmission.ObjectNorth;
    view.CentreEastKm = sections_.Transmission.ObjectEast;
  }
  // One jump to the typed position, which ends all following.
  if (view.CentreFollow == Following::TypedPosition) {
    view.PictureMode = MapShows::Map;
    view.CentreNorthKm = PositionTextKm(Trim(view.QthNorthText));
    view.CentreEastKm = PositionTextKm(Trim(view.QthEastText));
    FollowNobody(view, controls_.Map);
  }
}

void MapRedrawer::TakeFocus() {
  const bool typing = controls_.Chat.Text2.HasFocus || controls_.Chat.Text3.HasFocus;
  if (!typing) controls_.Map.Picture1.FocusWanted = true;
}

void MapRedrawer::ChooseFolders() {
  MapViewState& view = sections_.View;
  if (!ScaleRow(view.MapTileKm)) view.MapTileKm = kMapScaleTable.front().TileKm;
  const auto row = static_cast<std::size_t>(*ScaleRow(view.MapTileKm));
  view.ActiveFolderName = controls_.Scales.Folder[row].Selected();
  view.ActiveFolderPath = sections_.Identity.MapsPath + "\\" + view.ActiveFolderName;
  view.BaseFolderPath = sections_.Identity.MapsPath + "\\" +
                        std::string(Left(view.ActiveFolderName, kScalePrefixLength));
}

void MapRedrawer::DrawBaseMap() {
  const MapViewState& view = sections_.View;
  if (view.ActiveFolderPath == view.BaseFolderPath) return;
  tools_.BaseSurface.Clear(kBlack);
  DrawBaseTiles(tools_.BaseSurface, tools_.Tiles, view);
  ++controls_.Map.PictureBase.Revision;
}

void MapRedrawer::DrawOverlays(PixelPoint last_tile) {
  const MapViewState& view = sections_.View;
  DrawingSurface& surface = tools_.MapSurface;
  OverlayLayers& overlays = tools_.Overlays;
  // Coordinate grids, system by system.
  if (view.GridOn) {
    for (int mode = 0; mode < kDisplayModes; ++mode) {
      overlays.GridLayer(surface, view, static_cast<DisplayMode>(mode), last_tile);
    }
  }
  // Distance circles.
  if (view.CirclesOn) overlays.CirclesLayer(surface, view);
  // Frames of the tiles that exist.
  TileFrames(surface, view, tools_.Library, controls_.Scales);
  // All stations.
  if (ShowsStations(view.StationLabelLevel)) {
    AllStationsDraw(surface, view, sections_.Stores.MoniAllRecords, sections_.Followed.Moni1Call,
                    tools_.Symbols, tools_.Sheets, tools_.LocalClock.Now());
  }
  // Marks of pictures, tracks, places.
  if (view.PicturesOn) overlays.PictureMarksLayer(surface, view);
  if (view.TracksOn) overlays.TrackLayer(surface, view);
  if (view.PoiLevel > 0) overlays.PoiLayer(surface, view);
}

void MapRedrawer::DrawPositionMarks() {
  MapViewState& view = sections_.View;
  DrawingSurface& surface = tools_.MapSurface;
  const TransmissionState& own = sections_.Transmission;
  // The centre, when nothing is followed.
  if (view.CentreFollow == Following::Nobody) DrawCentreMark(surface, view);
  // The monitored station with its track.
  SetStationAnchor();
  Moni1Draw(surface, view, sections_.Followed, sections_.Stores.Moni1Records, tools_.Symbols,
            tools_.Sheets, tools_.LocalClock.Now(), controls_.Moni1);
  // The own position and the own object.
  DrawOwnPosition(surface, view, OwnPositionFromGps());
  DrawOwnObject(surface, view, own.ObjectNorth, own.ObjectEast, own.ObjectName,
                own.ObjectTxOn == 1);
}

void MapRedrawer::SetStationAnchor() {
  MapViewState& view = sections_.View;
  const FollowedStationState& followed = sections_.Followed;
  const PixelPoint at = view.CentreFollow == Following::Station
                            ? CentrePixel(view)
                            : MarkPixel(view, followed.MonitorNorthKm, followed.MonitorEastKm);
  view.StationAnchorX = at.X;
  view.StationAnchorY = at.Y;
}

void MapRedrawer::ShowTexts() {
  const StoresState& stores = sections_.Stores;
  tools_.ReadoutTexts.CentreReadout();
  tools_.ReadoutTexts.CursorReadout();
  tools_.ReadoutTexts.MonitorReadout();
  controls_.Map.ScaleText.Caption = ScaleText(sections_.View.MetresPerPixel);
  controls_.Map.ScaleText.ForeColour = state_colours::kScaleText;
  ShowMoniAllBar(controls_.MoniAll.Label5, stores.MoniAllRecords.Count(),
                 stores.MoniAllRecords.Limit);
  ShowMoni1Bar(controls_.Moni1.Label17, stores.Moni1Records.Count(), stores.Moni1Records.Limit);
}

void MapRedrawer::SetPointer(PointerShape shape) {
  controls_.Window.Pointer = shape;
  controls_.Map.Picture1.Pointer = shape;
}

void MapRedrawer::Finish() {
  MapViewState& view = sections_.View;
  SetPointer(PointerShape::Default);
  view.MapDrawn = true;
  ++controls_.Map.Picture1.Revision;
  // Kept: a jump to the own object leaves `Timer1` as it is, for the object's panel stops it.
  if (view.ObjectCenterPending) {
    view.ObjectCenterPending = false;
  } else {
    tools_.Timer1.Enable();
  }
}

}  // namespace zepril
