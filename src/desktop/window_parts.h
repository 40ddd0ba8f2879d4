// What the parts of a window are made of: captions, boxes, buttons and labels of one look, bound to
// the program's controls.
#pragma once

#include <QFont>

#include <QBoxLayout>

#include "core/texts/text.h"
#include "desktop/binder.h"
#include "desktop/icons.h"
#include "desktop/look.h"
#include "platform/qt/qt_loop.h"

class QFrame;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;
class QWidget;

namespace zepril {

inline constexpr int kGap = 4;  // pixels
inline constexpr int kControlHeight = 26;

struct WindowParts {
  QtLoop& Loop;
  Binder& Binding;
  const Look& Shades;
  QFont FixedFont;  // "QX7_F6"

  // Widgets that are to be bound; from their control they have their name then.
  QToolButton* Tool(Picture picture, bool caption) const;
  QLabel* FixedLabel() const;
  QFrame* Panel(QWidget* parent) const;
  // The grid of a set-up panel, with the frame's caption over `columns` columns in its first row.
  QGridLayout* SetUpGrid(QFrame* panel, const Frame& frame, int columns);
  // A row of it: what the field is, and the field.
  void FieldRow(QGridLayout* grid, int row, TextBox& control);
  // A field that is bound already, in the fixed font.
  QLineEdit* BoundField(TextBox& control);
  // A button, a switch or an option that is bound already.
  QPushButton* BoundButton(Button& control);
  QPushButton* BoundButton(CheckBox& control);
  QPushButton* BoundButton(OptionButton& control);

 private:
  void KeepRoomForBold(QPushButton* button);
};

QPushButton* SmallButton();
QLabel* GroupCaption(Text text);
QLabel* DimLabel(Text text);
// Says on a panel that the main cycle rests while it is open.
QLabel* RestsLabel();
QBoxLayout* TightBox(QBoxLayout::Direction direction, QWidget* parent = nullptr);
// A column that scrolls where the window is too low for it.
QWidget* Scrolling(QWidget* column, int width);

}  // namespace zepril
