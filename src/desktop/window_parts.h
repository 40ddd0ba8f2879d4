// What the parts of a window are made of: captions, boxes, buttons and labels of one look, bound to
// the program's controls.
#pragma once

#include <QFont>

#include <QBoxLayout>

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

  // Widgets with the object name of their control.
  QToolButton* Tool(const char* name, Picture picture, bool caption) const;
  QLabel* FixedLabel(const char* name) const;
  QFrame* Panel(const char* name, QWidget* parent) const;
  // The grid of a set-up panel, with the frame's caption over `columns` columns in its first row.
  QGridLayout* SetUpGrid(QFrame* panel, const Frame& frame, int columns);
  // A row of it: what the field is, and the field.
  void FieldRow(QGridLayout* grid, int row, const char* name, const char* text, TextBox& control);
  // A field that is bound already, in the fixed font; `text` tells what it is.
  QLineEdit* BoundField(const char* name, const char* text, TextBox& control);
  // A button, a switch or an option that is bound already.
  QPushButton* BoundButton(const char* name, Button& control);
  QPushButton* BoundButton(const char* name, CheckBox& control);
  QPushButton* BoundButton(const char* name, OptionButton& control);

 private:
  void KeepRoomForBold(QPushButton* button);
};

QPushButton* NamedButton(const char* name, QWidget* parent = nullptr);
QLabel* GroupCaption(const char* text);
QLabel* DimLabel(const char* text);
// Says on a panel that the main cycle rests while it is open.
QLabel* RestsLabel();
QBoxLayout* TightBox(QBoxLayout::Direction direction, QWidget* parent = nullptr);
// A column that scrolls where the window is too low for it.
QWidget* Scrolling(QWidget* column, int width);

}  // namespace zepril
