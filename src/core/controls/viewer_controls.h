// The controls that show the map's centre outside, and fetch a place from there.
#pragma once

#include "core/controls.h"

namespace zepril {

struct ViewerControls {
  Button GlobeShow;
  Button GlobeFetch;
  Button MinKarta;
  Button Norgeskart;
  Button Karttapaikka;
  Button GoogleMapsShow;
  Button GoogleMapsFetch;
  Label ViewerNote;  // why nothing was shown or fetched
};

}  // namespace zepril
