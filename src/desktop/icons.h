// The program's own icons, drawn from lines: sharp at every scale of the screen.
#pragma once

#include <QColor>
#include <QIcon>

namespace zepril {

enum class Picture {
  Coarser,  // chevron to the left
  Finer,    // chevron to the right
  ZoomOut,
  ZoomOne,
  ZoomIn,
  Centre,      // cross hairs
  Own,         // ring with ticks, as the own position's mark
  Station,     // the followed station's diamond
  Brightness,  // half disc
  Grid,
  Circles,  // rings of equal distance
  Pictures,
  Track,
  Places,  // a pin
  Save,
  ClassMoving,
  ClassFixed,
  ClassNetwork,
  ClassSpecial,
  ClassWeather,
};

QIcon IconOf(Picture picture, const QColor& ink);

}  // namespace zepril
