// Takes repeated key presses off buttons before they act.
#include "desktop/key_repeats.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeyEvent>

#include "desktop/keys.h"

namespace zepril {
namespace {

constexpr quint64 kSameMoment = 2;  // milliseconds; no hand is that quick

}  // namespace

bool KeyRepeats::IsRepeat(const QKeyEvent& press) const {
  if (press.isAutoRepeat()) return true;
  const bool known = released_at_ != 0 && press.timestamp() >= released_at_;
  return known && press.key() == released_key_ && press.timestamp() - released_at_ <= kSameMoment;
}

bool KeyRepeats::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyRelease) {
    const auto& release = *static_cast<const QKeyEvent*>(event);
    released_key_ = release.key();
    released_at_ = release.timestamp();
    return false;
  }
  if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
  const auto& press = *static_cast<const QKeyEvent*>(event);
  if (!IsRepeat(press)) return false;
  if (IsClickKey(press) && qobject_cast<QAbstractButton*>(watched) != nullptr) return true;
  if (press.isAutoRepeat()) return false;
  QKeyEvent marked(QEvent::KeyPress, press.key(), press.modifiers(), press.nativeScanCode(),
                   press.nativeVirtualKey(), press.nativeModifiers(), press.text(), true,
                   static_cast<quint16>(press.count()));
  marked.setTimestamp(press.timestamp());
  const bool taken = QCoreApplication::sendEvent(watched, &marked);
  event->setAccepted(marked.isAccepted());
  return taken;
}

}  // namespace zepril
