// Turns the toolkit's key events into codes and characters, and names the kinds of keys.
#include "desktop/keys.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

#include "core/keys.h"
#include "platform/code_page.h"

namespace zepril {
namespace {

constexpr const char* kKeepsKeys = "keeps_keys";

// The control code of a key with Ctrl: "A" to "Z", and the signs that follow "Z" in ASCII.
std::optional<char> ControlCode(int key) {
  if (key <= Qt::Key_At || key > Qt::Key_Underscore) return std::nullopt;
  return static_cast<char>(key - Qt::Key_At);
}

}  // namespace

KeyPress KeyPressOf(const QKeyEvent& event) {
  KeyPress key;
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      key.Code = kEnterKey;
      break;
    case Qt::Key_Escape:
      key.Code = kEscapeKey;
      break;
    case Qt::Key_Left:
      key.Code = kLeftKey;
      break;
    case Qt::Key_Up:
      key.Code = kUpKey;
      break;
    case Qt::Key_Right:
      key.Code = kRightKey;
      break;
    case Qt::Key_Down:
      key.Code = kDownKey;
      break;
    default:
      key.Code = event.key() < 256 ? event.key() : 0;
  }
  if (event.modifiers().testFlag(Qt::ShiftModifier)) key.Shift += 1;
  if (event.modifiers().testFlag(Qt::ControlModifier)) key.Shift += 2;
  if (event.modifiers().testFlag(Qt::AltModifier)) key.Shift += 4;
  return key;
}

bool IsEnterKey(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool IsClickKey(const QKeyEvent& event) {
  return IsEnterKey(event) || event.key() == Qt::Key_Space;
}

bool IsTypedIn(const QWidget* widget) {
  if (widget == nullptr) return false;
  if (qobject_cast<const QLineEdit*>(widget) != nullptr) return true;
  if (widget->property(kKeepsKeys).toBool()) return true;
  const auto* list = qobject_cast<const QComboBox*>(widget);
  return list != nullptr && list->isEditable();
}

void KeepKeysIn(QWidget* widget, bool kept) {
  widget->setProperty(kKeepsKeys, kept);
}

std::optional<char> TypedByte(const QString& text) {
  if (text.size() != 1) return std::nullopt;
  const unsigned char byte = ByteOfCodePoint(text.front().unicode(), 0);
  if (byte == 0) return std::nullopt;
  return static_cast<char>(byte);
}

std::optional<char> TypedByte(const QKeyEvent& event) {
  const bool ctrl = event.modifiers().testFlag(Qt::ControlModifier);
  const bool alt = event.modifiers().testFlag(Qt::AltModifier);
  // Both together are AltGr, which makes characters.
  if (alt && !ctrl) return std::nullopt;
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return '\r';
    case Qt::Key_Backspace:
      return '\b';
    case Qt::Key_Tab:
      if (event.modifiers().testFlag(Qt::ShiftModifier)) return std::nullopt;
      return '\t';
    case Qt::Key_Escape:
      return '\x1B';
    case Qt::Key_Delete:
      return '\x7F';
    case Qt::Key_Backtab:
    case Qt::Key_Insert:
      return std::nullopt;
    default:
      break;
  }
  if (ctrl && !alt) return ControlCode(event.key());
  return TypedByte(event.text());
}

bool IsRightClickKey(const QKeyEvent& event) {
  return event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier;
}

}  // namespace zepril
