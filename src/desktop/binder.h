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
class QLabel;
class QLineEdit;
class QListView;
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
  void Bind(QComboBox* widget, ComboBox& control);
  void Bind(QListView* widget, QStringListModel* model, ListBox& control);
  void Bind(FillBarWidget* widget, FillBar& control);
  void Bind(QWidget* widget, Frame& control);

  // Adds something that is brought out in each pass.
  void OnControlsOut(std::function<void()> out) { outs_.push_back(std::move(out)); }
  // Brings all changed properties to the widgets.
  void ControlsOut();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Watched {
    QObject* Widget;
    Control* Subject;
    std::function<void(KeyPress)> KeyDown;
    bool PressIsClick;  // widgets without a click signal of their own
  };

  void BindCommon(QWidget* widget, Control& control, bool press_is_click = false);
  void BindTyping(QComboBox* widget, ComboBox& control);
  void BindKeys(QWidget* widget, std::function<void(KeyPress)> key_down);
  void Raise(const Event& event);

  QtLoop& loop_;
  const Look& look_;
  std::vector<std::function<void()>> outs_;
  std::vector<Watched> watched_;
};

}  // namespace zepril
