// What a lower room asks of the map.
#pragma once

namespace zepril {

class MapActions {
 public:
  virtual ~MapActions() = default;
  // Paints the whole map window anew; `Timer1` is enabled at its end.
  virtual void MapRedraw() = 0;
  // Shows what has been painted without painting it again.
  virtual void MapRefresh() = 0;
};

}  // namespace zepril
