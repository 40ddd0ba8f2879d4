// Loads the font files and takes each glyph's pixels once.
#include "platform/qt/map_fonts.h"

#include <QDir>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QStringList>

#include "platform/code_page.h"

namespace zepril {
namespace {

constexpr int kCellPixels = 64;  // room for any glyph of the two faces
constexpr int kCellMargin = 16;

const QString kTextFamily = QStringLiteral("QX7_F6");
const QString kMarksFamily = QStringLiteral("ZEPRIL Marks");

QFont PixelFont(const QString& family, int pixels) {
  QFont font(family);
  font.setPixelSize(pixels);
  font.setStyleHint(QFont::Monospace,
                    static_cast<QFont::StyleStrategy>(QFont::NoAntialias | QFont::PreferDefault));
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setFixedPitch(true);
  font.setKerning(false);
  return font;
}

}  // namespace

MapFonts::MapFonts()
    : text_font_(PixelFont(kTextFamily, kTextPixels)),
      marks_font_(PixelFont(kMarksFamily, kMarksPixels)) {}

bool MapFonts::LoadFonts(const QString& folder) {
  const QDir fonts(folder);
  for (const QString& file : fonts.entryList({QStringLiteral("*.ttf")}, QDir::Files)) {
    QFontDatabase::addApplicationFont(fonts.filePath(file));
  }
  for (auto& face : glyphs_)
    face.fill(std::nullopt);
  const QStringList families = QFontDatabase::families();
  const QString fallback = QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
  const bool text_there = families.contains(kTextFamily);
  const bool marks_there = families.contains(kMarksFamily);
  text_font_ = PixelFont(text_there ? kTextFamily : fallback, kTextPixels);
  marks_font_ = PixelFont(marks_there ? kMarksFamily : fallback, kMarksPixels);
  return text_there && marks_there;
}

const MapGlyph& MapFonts::Glyph(FontFace face, unsigned char byte) {
  auto& glyph = glyphs_[face == FontFace::Text ? 0 : 1][byte];
  if (!glyph) glyph = DrawGlyph(face, byte);
  return *glyph;
}

MapGlyph MapFonts::DrawGlyph(FontFace face, unsigned char byte) const {
  const bool text = face == FontFace::Text;
  const QFont& font = text ? text_font_ : marks_font_;
  const QFontMetrics metrics(font);
  const QString character(QChar(static_cast<char16_t>(CodePointOfByte(byte))));
  QImage cell(kCellPixels, kCellPixels, QImage::Format_RGB32);
  cell.fill(0xFF000000u);
  QPainter painter(&cell);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing, false);
  painter.setFont(font);
  painter.setPen(Qt::white);
  // The text face has its base line 12 pixels below the cell's top.
  painter.drawText(kCellMargin, kCellMargin + (text ? kTextPixels : metrics.ascent()), character);
  painter.end();
  MapGlyph glyph;
  glyph.Advance = text ? kTextAdvance : metrics.horizontalAdvance(character);
  for (int y = 0; y < kCellPixels; ++y) {
    for (int x = 0; x < kCellPixels; ++x) {
      constexpr int kHalfBright = 128;
      if (qGray(cell.pixel(x, y)) >= kHalfBright) {
        glyph.Pixels.push_back({x - kCellMargin, y - kCellMargin});
      }
    }
  }
  return glyph;
}

}  // namespace zepril
