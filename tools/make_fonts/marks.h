// The two map marks that are drawn as letters: an object ("i") and a place of interest ("n").
#pragma once

#include "make_fonts/truetype.h"

namespace zepril {

// A cell of 23 x 23 pixels, baseline under row 17; both marks are centred at (11.5, 12.5) from the
// cell's top left, so that a mark printed at (x - 11, y - 12) stands on the map point (x, y).
FontFace MarksFace();

}  // namespace zepril
