// Hands each single key press on a widget to `TextBox::KeyTyped`, as a terminal wants it: also Tab,
// Esc and the letters with Ctrl, which otherwise mean something to the window. What is pasted or
// dropped is no key press and goes nowhere. Keys without a character, and those with Alt, stay with
// the window; Shift+Tab leaves the field.
#pragma once

#include <QObject>

#include "core/controls.h"
#include "platform/qt/qt_loop.h"

class QWidget;

namespace zepril {

class TypedKeys final : public QObject {
 public:
  // Acts while `box.KeyTyped` is set.
  TypedKeys(QWidget* widget, QtLoop& loop, TextBox& box, QObject* parent);
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Type(char byte);
  void TakeKeys(QWidget* widget);

  QtLoop& loop_;
  TextBox& box_;
};

}  // namespace zepril
