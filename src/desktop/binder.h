// Joins control structs and widgets: what the operator does goes in through the control's event,
// changed properties go out in one pass after every step of the program.
#pragma once

#include <QComboBox>
#include <QObject>
#include <QPointer>

#include <functional>
#include <vector>

#include "core/controls.h"
#include "desktop/look.h"
#include "platform/qt/qt_loop.h"

class QAbstractButton;
class QFocusEvent;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QListView;
class QMouseEvent;
class QPlainTextEdit;
class QStringListModel;
class QWidget;

namespace zepril {

class FillBarWidget;

class Binder final : public QObject {
 public:
  Binder(QtLoop& loop, const Look& look) : loop_(loop), look_(look) {}

  void Bind(QAbstractButton* widget, Button& control);
  void Bind(QAbstractButton* widget, CheckBox& control);
  void Bind(QAbstractButton* widget, OptionButton& control);
  void Bind(QLabel* widget, Label& control);
  void Bind(QLineEdit* widget, TextBox& control);
  // A text of several lines that takes no typing by itself.
  void Bind(QPlainTextEdit* widget, TextBox& control);
  void Bind(QComboBox* widget, ComboBox& control);
  void Bind(QListView* widget, QStringListModel* model, ListBox& control);
  void Bind(FillBarWidget* widget, FillBar& control);
  void Bind(QWidget* widget, Frame& control);

  // Enter presses the button that has the focus, as the space bar does; not where it means another
  // thing all over the window.
  bool EnterPresses = true;

  // Adds something that is brought out in each pass.
  void OnControlsOut(std::function<void()> out) { outs_.push_back(std::move(out)); }
  // Brings all changed properties to the widgets.
  void ControlsOut();
  // `event`, which is held until the step under way has ended, presses a control in `window`: that
  // is noted.
  void NotePress(const QObject& window, const QEvent& event);
  // The step has ended: what was noted acts.
  void ForgetPresses();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Widgets without a click signal of their own tell by the button that is let go over them.
  struct Watched {
    QObject* Widget;
    Control* Subject;
    std::function<void(KeyPress)> KeyDown;
    bool PressIsClick;
    const TextBox* Field = nullptr;    // tells when it gets the focus
    const ComboBox* Choice = nullptr;  // tells when it loses it
    ListBox* List = nullptr;           // is told when it is held
  };
  struct FocusWish {
    QPointer<QWidget> Widget;
    Control* Subject;
  };

  void BindCommon(QWidget* widget, Control& control, bool press_is_click = false);
  void BindTyping(QComboBox* widget, ComboBox& control);
  void BindPlace(QListView* widget, ListBox& control);
  void BindKeys(QWidget* widget, std::function<void(KeyPress)> key_down);
  void BindFocus(QWidget* widget, const TextBox& control);
  void Raise(const Event<>& event);
  // The operator has pressed the control: the event, or `act`, in the loop's order.
  void Press(const Control& control, const Event<>& event);
  void Press(const Control& control, const std::function<void()>& act);
  void TakeFocusWishes();
  bool Leave(const Watched& row, QFocusEvent& event);
  void NoteHold(const Watched& row, bool held);
  void AimAt(ListBox& list);
  bool Released(const Watched& row, const QMouseEvent& event);
  bool Pressed(const Watched& row, const QKeyEvent& event);
  bool PressesButton(const QKeyEvent& event) const;
  static bool IsPressKey(const Watched& row, const QKeyEvent& event);

  QtLoop& loop_;
  const Look& look_;
  std::vector<std::function<void()>> outs_;
  std::vector<Watched> watched_;
  std::vector<FocusWish> focus_wishes_;
  int aims_ = 0;  // moves of the mouse over lists
};

}  // namespace zepril
