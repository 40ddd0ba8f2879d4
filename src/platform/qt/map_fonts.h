// The two faces of the map, "QX7_F6" at 12 pixels and the marks face at 23 pixels, as pixels.
//
// Each glyph is drawn once by the font engine, without smoothing, and kept as the list of its
// pixels; a label then costs no more than they are.
#pragma once

#include <QFont>
#include <QString>

#include <array>
#include <optional>
#include <vector>

#include "platform/drawing_surface.h"

namespace zepril {

struct MapGlyph {
  std::vector<PixelPoint> Pixels;  // from the cell's top left
  int Advance = 0;                 // to the next cell
};

class MapFonts {
 public:
  static constexpr int kTextPixels = 12;
  static constexpr int kTextAdvance = 8;
  static constexpr int kMarksPixels = 23;

  // Loads the font files of `folder` into the application. False when one of the two faces is not
  // there: a fixed face of the system stands in for it.
  bool LoadFonts(const QString& folder);

  // The face of read-outs, lists and labels.
  const QFont& TextFont() const { return text_font_; }
  // Glyph of a byte of code page 1252.
  const MapGlyph& Glyph(FontFace face, unsigned char byte);

  MapFonts();

 private:
  MapGlyph DrawGlyph(FontFace face, unsigned char byte) const;

  QFont text_font_;
  QFont marks_font_;
  std::array<std::array<std::optional<MapGlyph>, 256>, 2> glyphs_;
};

}  // namespace zepril
