// All that a station paints on, each writing down what is drawn.
#pragma once

#include <vector>

#include "tests/doubles/recorder_surface.h"

namespace zepril {

struct RecordedSurfaces {
  RecorderSurface map_surface{800, 600};
  RecorderSurface base_surface{800, 600};
  RecorderSurface sun_surface{361, 91};
  RecorderSurface tx_symbol_surface{22, 22};
  RecorderSurface object_symbol_surface{22, 22};
  RecorderSurface weather_surface{161, 161};

  std::vector<DrawingSurface*> Surfaces() {
    return {&map_surface,       &base_surface,          &sun_surface,
            &tx_symbol_surface, &object_symbol_surface, &weather_surface};
  }
};

}  // namespace zepril
