// Each kind of control with its widget: signals to events, changed properties to the widget.
#include "desktop/binder.h"

#include <QLabel>

#include "desktop/control_access.h"
#include "desktop/corner_mark.h"
#include "desktop/fill_bar_widget.h"
#include "desktop/shown_controls.h"
#include "platform/qt/text.h"

namespace zepril {

void Binder::Raise(const Event<>& event) {
  if (event) loop_.RunStep(event);
}

void Binder::Press(const Control& control, const Event<>& event) {
  Press(control, [&event] { event(); });
}

void Binder::Press(const Control& control, const std::function<void()>& act) {
  loop_.Press(&control, control.PressesInWaits, act);
}

void Binder::BindCommon(QWidget* widget, Control& control, bool press_is_click) {
  NameAfter(widget, control);
  watched_.push_back({widget, &control, nullptr, press_is_click});
  widget->installEventFilter(this);
  if (control.RightClick) new CornerMark(widget);
  focus_wishes_.push_back({widget, &control});
  outs_.push_back([widget, &control, this, shown = Shown{}]() mutable {
    ShowCommon(widget, control, shown, look_);
  });
}

void Binder::BindKeys(QWidget* widget, std::function<void(KeyPress)> key_down) {
  for (Watched& watched : watched_) {
    if (watched.Widget != widget) continue;
    watched.KeyDown = std::move(key_down);
    return;
  }
}

void Binder::Bind(QLabel* widget, Label& control) {
  BindCommon(widget, control, true);
  if (control.Click) SetAccessibleRole(widget, QAccessible::Button);
  widget->setTextFormat(Qt::PlainText);
  outs_.push_back([widget, &control, caption = std::string("\x01")]() mutable {
    if (caption == control.Caption) return;
    caption = control.Caption;
    widget->setText(CaptionText(caption));
    widget->setAccessibleName(caption.empty() ? ToQt(control.Called) : widget->text());
  });
}

void Binder::Bind(FillBarWidget* widget, FillBar& control) {
  BindCommon(widget, control, true);
  SetAccessibleRole(widget, QAccessible::ProgressBar);
  outs_.push_back([widget, &control, name = QString()]() mutable {
    ShowName(widget, {}, control.ToolTip, name);
    widget->Show(control.FilledPx, control.FullWidthPx, PlainColour(control.Colour));
  });
}

void Binder::Bind(QWidget* widget, Frame& control) {
  BindCommon(widget, control, true);
  // What is opened last lies on top.
  outs_.push_back([widget, &control, shown = control.Visible]() mutable {
    if (control.Visible && !shown) widget->raise();
    shown = control.Visible;
  });
}

void Binder::ControlsOut() {
  for (const auto& out : outs_)
    out();
  TakeFocusWishes();
}

// When all is visible that is to be.
void Binder::TakeFocusWishes() {
  for (const FocusWish& wish : focus_wishes_) {
    if (!wish.Subject->FocusWanted) continue;
    wish.Subject->FocusWanted = false;
    if (wish.Widget) wish.Widget->setFocus(Qt::OtherFocusReason);
  }
}

}  // namespace zepril
