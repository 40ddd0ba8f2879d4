// The colours of day and night, the style sheet, and the shades and inks of state colours.
#include "desktop/look.h"

#include <algorithm>
#include <cmath>

#include "core/state/chat.h"
#include "core/state_colours.h"

namespace zepril {
namespace {

double Channel(double value) {
  return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
  return 0.2126 * Channel(colour.redF()) + 0.7152 * Channel(colour.greenF()) +
         0.0722 * Channel(colour.blueF());
}

}  // namespace

const Look& NightLook() {
  static const Look look{QColor(0x20, 0x26, 0x2B), QColor(0x2A, 0x31, 0x38),
                         QColor(0x17, 0x1C, 0x20), QColor(0x3A, 0x43, 0x4B),
                         QColor(0xE6, 0xE9, 0xEB), QColor(0x9A, 0xA4, 0xAB),
                         QColor(0x38, 0x69, 0x8D)};
  return look;
}

const Look& DayLook() {
  static const Look look{QColor(0xE9, 0xEC, 0xEE), QColor(0xF7, 0xF8, 0xF9),
                         QColor(0xFF, 0xFF, 0xFF), QColor(0xC9, 0xD0, 0xD5),
                         QColor(0x1B, 0x20, 0x24), QColor(0x5C, 0x66, 0x6E),
                         QColor(0x9C, 0xC6, 0xE4)};
  return look;
}

QPalette PaletteOf(const Look& look) {
  QPalette palette;
  palette.setColor(QPalette::Window, look.Window);
  palette.setColor(QPalette::WindowText, look.Text);
  palette.setColor(QPalette::Base, look.Field);
  palette.setColor(QPalette::AlternateBase, look.Panel);
  palette.setColor(QPalette::Text, look.Text);
  palette.setColor(QPalette::PlaceholderText, look.Dim);
  palette.setColor(QPalette::Button, look.Panel);
  palette.setColor(QPalette::ButtonText, look.Text);
  palette.setColor(QPalette::Highlight, look.Accent);
  palette.setColor(QPalette::HighlightedText, look.Text);
  palette.setColor(QPalette::ToolTipBase, look.Panel);
  palette.setColor(QPalette::ToolTipText, look.Text);
  for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, look.Dim);
  }
  return palette;
}

QString StyleSheetOf(const Look& look) {
  return QStringLiteral(R"(
QWidget { font-size: 12px; }
QToolTip { color: %5; background: %2; border: 1px solid %4; padding: 3px; }
QFrame#MapBar, QFrame#BottomLine { background: %2; border: none; }
QFrame[panel="true"] { background: %2; border: 1px solid %4; border-radius: 4px; }
QFrame[alarm="panel"] { background: %8; border: 4px double %9; border-radius: 4px; }
QLabel[alarm] { color: %9; border: none; background: transparent; }
QLabel[alarm="title"] { font-size: 36px; font-weight: bold; }
QLabel[alarm="call"] { font-size: 28px; font-weight: bold; }
QLabel[group="true"] { color: %6; font-weight: bold; font-size: 11px; }
QLabel[dim="true"] { color: %6; }
QLabel[fault="true"] { color: #E88A8A; }
QPushButton, QToolButton { background: %2; color: %5; border: 1px solid %4; border-radius: 3px;
  padding: 2px 8px; min-height: 20px; }
QToolButton, QPushButton[tight="true"] { padding: 2px 4px; }
QPushButton:hover, QToolButton:hover { border-color: %6; }
QPushButton:pressed, QToolButton:pressed { background: %3; }
QPushButton:checked, QToolButton:checked { background: %7; border-color: %6; font-weight: bold; }
QLineEdit:focus, QComboBox:focus { border: 1px solid %5; }
QPushButton:focus { border: 2px solid %5; padding: 1px 7px; }
QToolButton:focus, QPushButton[tight="true"]:focus { border: 2px solid %5; padding: 1px 3px; }
QLabel:focus { border: 1px solid %5; }
QPushButton:disabled, QToolButton:disabled { color: %6; }
QLineEdit, QComboBox { background: %3; color: %5; border: 1px solid %4; border-radius: 3px;
  padding: 1px 4px; min-height: 20px; }
QLineEdit:disabled, QComboBox:disabled { color: %6; background: %1; }
QPushButton[on_air="true"]:checked { background: %8; color: %9; }
QPushButton[own_object="true"]:checked { background: %10; color: %11; }
QLabel[notice="true"] { background: %2; color: %5; border: 1px solid %5; border-radius: 4px;
  padding: 8px; }
QLabel[over_map="true"] { background: %2; color: %5; }
QPlainTextEdit { background: %3; color: %5; border: 1px solid %4; border-radius: 3px; }
QPlainTextEdit:focus { border: 1px solid %5; }
QScrollArea[bare="true"], QScrollArea[bare="true"] > QWidget > QWidget { background: transparent; }
QComboBox::drop-down { border: none; width: 16px; }
QComboBox QAbstractItemView { background: %3; color: %5; border: 1px solid %4; }
QListView { background: %3; color: %5; border: 1px solid %4; }
QProgressBar { background: %3; border: 1px solid %4; border-radius: 3px; text-align: center; }
QProgressBar::chunk { background: %7; }
QTabWidget::pane { border: 1px solid %4; }
QTabBar::tab { background: %1; color: %6; padding: 3px 12px; border: 1px solid %4; }
QTabBar::tab:selected { background: %2; color: %5; }
QScrollBar:vertical { background: %1; width: 12px; }
QScrollBar::handle:vertical { background: %4; border-radius: 3px; min-height: 24px; }
QScrollBar::add-line, QScrollBar::sub-line { height: 0; width: 0; }
)")
      .arg(look.Window.name(), look.Panel.name(), look.Field.name(), look.Line.name(),
           look.Text.name(), look.Dim.name(), look.Accent.name())
      .arg(PlainColour(state_colours::kOnTheAir).name(),
           TextOn(PlainColour(state_colours::kOnTheAir)).name(),
           PlainColour(state_colours::kOwnObject).name(),
           TextOn(PlainColour(state_colours::kOwnObject)).name());
}

QColor PlainColour(std::uint32_t state_colour) {
  return QColor(static_cast<int>(state_colour & 0xFFU),
                static_cast<int>((state_colour >> 8) & 0xFFU),
                static_cast<int>((state_colour >> 16) & 0xFFU));
}

QColor StateShade(std::uint32_t state_colour, const Look& look) {
  // What is on the air is told loudly.
  if (state_colour == state_colours::kOnTheAir) return PlainColour(state_colour);
  // A dimmed map is a switch that is on; the brighter one is seen by itself.
  if (state_colour == state_colours::kMapDimmed) return look.Accent;
  if (state_colour == state_colours::kMapAsItIs || state_colour == state_colours::kMapBrighter)
    return look.Panel;
  // What can't go on sinks into the window.
  if (state_colour == state_colours::kOwnObjectDimmed) return look.Window;
  const QColor plain = PlainColour(state_colour);
  // Greys name "nothing special": they take the field's own colour, or its line when darker.
  if (plain.saturation() < 24) return plain.lightness() > 160 ? look.Field : look.Line;
  // Other hues keep their hue at the lightness of the look.
  const bool night = look.Window.lightness() < 128;
  return QColor::fromHsl(plain.hslHue(), std::min(plain.hslSaturation(), 150), night ? 70 : 195);
}

QColor StateInk(std::uint32_t state_colour, const Look& look) {
  return state_colour == state_colours::kOwnObjectDimmed ? look.Dim
                                                         : TextOn(StateShade(state_colour, look));
}

std::optional<QColor> ChatInk(std::uint32_t state_colour, const Look& look) {
  const bool night = look.Window.lightness() < 128;
  const auto ink = [night](const QColor& by_night, const QColor& by_day) {
    return night ? by_night : by_day;
  };
  if (chat_colours::HasSendsLeft(state_colour))
    return ink(QColor(0xFF, 0xA0, 0xA0), QColor(0xB3, 0x26, 0x1E));
  switch (state_colour) {
    case chat_colours::kGivenUp:
      return ink(QColor(0xF0, 0xB0, 0x70), QColor(0x8A, 0x4B, 0x00));
    case chat_colours::kAcknowledged:
      return ink(QColor(0xBC, 0x9A, 0x9A), QColor(0x70, 0x48, 0x48));
    case chat_colours::kPingAnswer:
      return ink(QColor(0xD5, 0xA6, 0xC4), QColor(0x7B, 0x2F, 0x62));
    case chat_colours::kForMe:
      return ink(QColor(0x8C, 0xE0, 0x8C), QColor(0x1B, 0x6B, 0x2E));
    case chat_colours::kBetweenOthers:
      return look.Dim;
    default:
      return std::nullopt;
  }
}

double ContrastOf(const QColor& one, const QColor& other) {
  const double first = Luminance(one) + 0.05;
  const double second = Luminance(other) + 0.05;
  return std::max(first, second) / std::min(first, second);
}

QColor InkOn(std::uint32_t state_colour, const QColor& ground, const QColor& otherwise) {
  const QColor plain = PlainColour(state_colour);
  return ContrastOf(plain, ground) >= kReadable ? plain : otherwise;
}

QColor TextOn(const QColor& back) {
  const QColor white(Qt::white);
  const QColor black(Qt::black);
  return ContrastOf(white, back) >= ContrastOf(black, back) ? white : black;
}

}  // namespace zepril
