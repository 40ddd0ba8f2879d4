// Buttons, switches and options.
#include "desktop/binder.h"

#include <QAbstractButton>
#include <QSignalBlocker>

#include "desktop/control_access.h"
#include "desktop/shown_controls.h"

namespace zepril {

void Binder::Bind(QAbstractButton* widget, Button& control) {
  BindCommon(widget, control);
  // One that repeats acts when it goes down, and not once more when it is let go.
  connect(widget, &QAbstractButton::clicked, this, [this, &control] {
    if (control.RepeatMs == 0) Press(control, control.Click);
  });
  connect(widget, &QAbstractButton::pressed, this, [this, &control] {
    if (control.RepeatMs > 0) Press(control, control.Click);
  });
  outs_.push_back([widget, &control, shown = ShownCaption()]() mutable {
    ShowRepeat(widget, control.RepeatMs);
    ShowCaption(widget, control.Caption, control.ToolTip, shown);
  });
}

void Binder::Bind(QAbstractButton* widget, CheckBox& control) {
  BindCommon(widget, control);
  SetAccessibleRole(widget, QAccessible::CheckBox);
  widget->setCheckable(true);
  const bool three_states = widget->property("three_states").toBool();
  connect(widget, &QAbstractButton::clicked, this, [this, &control, three_states] {
    Press(control, [&control, three_states] {
      control.Value = (control.Value + 1) % (three_states ? 3 : 2);
      if (control.Click) control.Click();
    });
  });
  outs_.push_back([widget, &control, shown = ShownCaption()]() mutable {
    if (widget->isChecked() != (control.Value != 0)) {
      const QSignalBlocker quiet(widget);
      widget->setChecked(control.Value != 0);
    }
    if (widget->property("third_state").toBool() != (control.Value == 2)) {
      widget->setProperty("third_state", control.Value == 2);
      widget->update();
    }
    ShowCaption(widget, control.Caption, control.ToolTip, shown);
  });
}

void Binder::Bind(QAbstractButton* widget, OptionButton& control) {
  BindCommon(widget, control);
  SetAccessibleRole(widget, QAccessible::RadioButton);
  widget->setCheckable(true);
  connect(widget, &QAbstractButton::clicked, this, [this, &control] {
    Press(control, [&control] {
      control.Value = true;
      if (control.Click) control.Click();
    });
  });
  outs_.push_back([widget, &control, shown = ShownCaption()]() mutable {
    if (widget->isChecked() != control.Value) {
      const QSignalBlocker quiet(widget);
      widget->setChecked(control.Value);
    }
    ShowCaption(widget, control.Caption, control.ToolTip, shown);
  });
}

}  // namespace zepril
