// Finds the picture, track point or place at a press.
#include "map/map_lookups.h"

#include "core/centre_follow.h"
#include "map/map_view.h"
#include "map/picture_marks_layer.h"
#include "map/track_layer.h"

namespace zepril {
namespace {

constexpr int kPictureTimer1Ms = 30000;  // a picture is looked at for a while

}  // namespace

bool PressLookups::LookupPicture() {
  const auto found = FindPictureNear(view_, view_.ClickNorthKm, view_.ClickEastKm);
  if (!found) return false;
  view_.SelectedPicture = *found;
  view_.PictureMode = MapShows::Picture;
  FollowNobody(view_, controls_);
  tools_.MapSurface.Clear(kBlack);
  ++controls_.Picture1.Revision;
  if (tools_.Panels.Pictures) tools_.Panels.Pictures->ShowPicture(view_.SelectedPicture);
  tools_.Timer1.Arm(kPictureTimer1Ms);
  return true;
}

bool PressLookups::LookupTrackPoint() {
  const auto found =
      FindPointNear(places_.TrackPoints, view_.ClickNorthKm, view_.ClickEastKm, PointToleranceKm());
  if (!found) return false;
  DrawTrackPointText(tools_.MapSurface, places_.TrackPoints, *found, DrawPixel(view_.CursorX),
                     DrawPixel(view_.CursorY));
  ++controls_.Picture1.Revision;
  return true;
}

bool PressLookups::LookupPlace() {
  const auto found =
      FindPointNear(places_.PoiPoints, view_.ClickNorthKm, view_.ClickEastKm, PointToleranceKm());
  if (!found) return false;
  if (tools_.Panels.Places) tools_.Panels.Places->EditPlace(*found);
  return true;
}

}  // namespace zepril
