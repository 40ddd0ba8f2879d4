// Holds what the operator does in the program's windows, and gives it back later in its order. A
// window's close is not held: it acts at once, as far as it may.
#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>

#include <deque>
#include <memory>

#include "platform/event.h"

namespace zepril {

class InputHold final : public QObject {
 public:
  // Beyond so many events what follows is dropped: nobody types on for that long.
  static constexpr std::size_t kMostEvents = 10000;

  // From now on, until the release.
  void Begin();
  // Told of each event that is held from now on, and for which window.
  Event<const QObject&, const QEvent&> Holding;
  // What was held is posted to the windows for which it was meant, if they are still there.
  void Release();

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  struct Held {
    QPointer<QObject> Receiver;
    std::unique_ptr<QEvent> What;
  };

  bool holding_ = false;
  std::deque<Held> held_;
};

}  // namespace zepril
