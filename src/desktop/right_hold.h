// Tells a list when the second mouse button goes down over it and when it goes up again. The Menu
// key or Shift+F10, held, do the same. Whatever ends the hold ends it once: the button or the key
// let go, wherever the pointer is then, the focus lost, the list or its window hidden.
#pragma once

#include <QObject>

#include "core/controls.h"
#include "platform/qt/qt_loop.h"

class QAbstractScrollArea;
class QKeyEvent;

namespace zepril {

class RightHold final : public QObject {
 public:
  // Acts while `RightDown` of the list is set.
  RightHold(QAbstractScrollArea* view, QtLoop& loop, ListBox& list, QObject* parent);
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool MouseChanged(bool down, Qt::MouseButton button);
  bool KeyChanged(bool down, const QKeyEvent& event);
  void Begin();
  void End();

  QAbstractScrollArea* view_;
  QtLoop& loop_;
  ListBox& list_;
  bool held_ = false;
};

}  // namespace zepril
