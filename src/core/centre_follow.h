// What the centre of the map follows, and the two buttons that show it. This is the one place where
// either is set.
#pragma once

#include "core/state/map_view.h"

namespace zepril {

struct MapControls;

// From now on the centre follows `what`: state and buttons.
void FollowWith(MapViewState& view, MapControls& controls, Following what);
void FollowNobody(MapViewState& view, MapControls& controls);

// The next redraw goes to the typed position once and follows nobody from then on. The buttons stay
// until it has jumped: a picture may stand in place of the map till then.
void JumpOnceToTyped(MapViewState& view);

// The buttons as the state has it.
void ShowCentreFollow(const MapViewState& view, MapControls& controls);

}  // namespace zepril
