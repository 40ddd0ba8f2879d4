#include "desktop/keys.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

namespace zepril {

KeyPress KeyPressOf(const QKeyEvent& event) {
  KeyPress key;
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      key.Code = 13;
      break;
    case Qt::Key_Escape:
      key.Code = 27;
      break;
    case Qt::Key_Left:
      key.Code = 37;
      break;
    case Qt::Key_Up:
      key.Code = 38;
      break;
    case Qt::Key_Right:
      key.Code = 39;
      break;
    case Qt::Key_Down:
      key.Code = 40;
      break;
    default:
      key.Code = event.key() < 256 ? event.key() : 0;
  }
  if (event.modifiers().testFlag(Qt::ShiftModifier)) key.Shift += 1;
  if (event.modifiers().testFlag(Qt::ControlModifier)) key.Shift += 2;
  if (event.modifiers().testFlag(Qt::AltModifier)) key.Shift += 4;
  return key;
}

bool IsClickKey(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter ||
         event.key() == Qt::Key_Space;
}

bool IsTypedIn(const QWidget* widget) {
  if (qobject_cast<const QLineEdit*>(widget) != nullptr) return true;
  const auto* list = qobject_cast<const QComboBox*>(widget);
  return list != nullptr && list->isEditable();
}

bool IsRightClickKey(const QKeyEvent& event) {
  return event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier;
}

}  // namespace zepril
