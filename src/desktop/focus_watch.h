// Whose focus stays when the map would take it: of whatever is typed or chosen in, and of every
// control that the operator reached by the keyboard.
#pragma once

#include <QObject>
#include <QPointer>

class QFocusEvent;
class QWidget;

namespace zepril {

class FocusWatch final : public QObject {
 public:
  // Watches all of the application's windows from here on.
  FocusWatch();

  // True when a redraw must leave the focus to `widget`, which may be null.
  bool Keeps(const QWidget* widget) const;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Note(QWidget* widget, const QFocusEvent& event);

  QPointer<QWidget> by_keyboard_;
};

}  // namespace zepril
