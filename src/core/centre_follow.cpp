// Sets what the centre of the map follows, and shows it.
#include "core/centre_follow.h"

#include "core/controls/map_controls.h"

namespace zepril {

void FollowWith(MapViewState& view, MapControls& controls, Following what) {
  view.CentreFollow = what;
  ShowCentreFollow(view, controls);
}

void FollowNobody(MapViewState& view, MapControls& controls) {
  FollowWith(view, controls, Following::Nobody);
}

void JumpOnceToTyped(MapViewState& view) {
  view.CentreFollow = Following::TypedPosition;
}

void ShowCentreFollow(const MapViewState& view, MapControls& controls) {
  controls.Option1.Value = view.CentreFollow == Following::OwnPosition;
  controls.Option2.Value = view.CentreFollow == Following::Station;
}

}  // namespace zepril
