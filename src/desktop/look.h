// How the windows look: one palette and a short style sheet over Qt's Fusion style.
#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

#include <cstdint>
#include <optional>

namespace zepril {

// Roles of the palette in use.
struct Look {
  QColor Window;
  QColor Panel;
  QColor Field;
  QColor Line;
  QColor Text;
  QColor Dim;
  QColor Accent;  // a switch that is on
};

const Look& NightLook();
const Look& DayLook();

QPalette PaletteOf(const Look& look);
QString StyleSheetOf(const Look& look);

// A colour that the program's logic gives to a control (0xBBGGRR names a state) in a shade of this
// look that stays readable behind its text.
QColor StateShade(std::uint32_t state_colour, const Look& look);
// What is written on that shade.
QColor StateInk(std::uint32_t state_colour, const Look& look);
// The colour itself, for fill bars and inks.
QColor PlainColour(std::uint32_t state_colour);
// The letters of a chat line in the colour of its state; nothing for any other colour.
std::optional<QColor> ChatInk(std::uint32_t state_colour, const Look& look);
// Contrast of two colours, 1 to 21; text wants kReadable on its ground.
double ContrastOf(const QColor& one, const QColor& other);
inline constexpr double kReadable = 4.5;
// The colour of a text where that is readable on `ground`, `otherwise` where it is not.
QColor InkOn(std::uint32_t state_colour, const QColor& ground, const QColor& otherwise);
// Black or white, whichever reads better on `back`.
QColor TextOn(const QColor& back);

}  // namespace zepril
