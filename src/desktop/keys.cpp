#include "desktop/keys.h"

#include <QKeyEvent>

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

}  // namespace zepril
