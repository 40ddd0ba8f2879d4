// Looks, states, captions and spoken names, put to the widget where they have changed.
#include "desktop/shown_controls.h"

#include <QAbstractButton>
#include <QWidget>

#include <algorithm>

#include "desktop/control_access.h"
#include "platform/qt/text.h"

namespace zepril {
namespace {

void ShowColours(QWidget* widget, const Control& control, const Look& look) {
  if (!control.BackColour && !control.ForeColour) {
    widget->setStyleSheet(QString());
    return;
  }
  QString sheet;
  const QColor back = control.BackColour ? StateShade(*control.BackColour, look) : look.Window;
  const QColor usual = control.BackColour ? StateInk(*control.BackColour, look) : look.Text;
  if (control.BackColour) sheet += QStringLiteral("background: %1;").arg(back.name());
  QColor ink = usual;
  if (control.ForeColour) {
    ink = ChatInk(*control.ForeColour, look).value_or(InkOn(*control.ForeColour, back, usual));
  }
  sheet += QStringLiteral("color: %1;").arg(ink.name());
  widget->setStyleSheet(sheet);
}

// The tool tip, with the key that does the same.
QString TipOf(const Control& control) {
  const QString tip = ToQt(control.ToolTip);
  if (tip.isEmpty() || control.KeyName.empty()) return tip;
  return tip + QStringLiteral("  [%1]").arg(ToQt(control.KeyName));
}

// Left to itself the focus of what goes would jump to whatever comes next, and Enter press that, or
// letters be typed into it.
void DropFocusIn(QWidget* widget) {
  QWidget* focused = widget->window()->focusWidget();
  if (focused != nullptr && (focused == widget || widget->isAncestorOf(focused))) {
    focused->clearFocus();
  }
}

QString ButtonText(const std::string& caption) {
  return CaptionText(caption).replace(QStringLiteral("&"), QStringLiteral("&&"));
}

}  // namespace

void ShowCommon(QWidget* widget, Control& control, Shown& shown, const Look& look) {
  if (!shown.Known || shown.Visible != control.Visible) {
    if (!control.Visible) DropFocusIn(widget);
    widget->setVisible(control.Visible);
  }
  if (!shown.Known || shown.Enabled != control.Enabled) {
    if (!control.Enabled) DropFocusIn(widget);
    widget->setEnabled(control.Enabled);
  }
  if (!shown.Known || shown.ToolTip != control.ToolTip) widget->setToolTip(TipOf(control));
  if (shown.BackColour != control.BackColour || shown.ForeColour != control.ForeColour) {
    ShowColours(widget, control, look);
  }
  if (control.LeaveWanted) {
    control.LeaveWanted = false;
    if (widget->hasFocus()) widget->clearFocus();
  }
  shown = {true,
           control.Visible,
           control.Enabled,
           control.ToolTip,
           control.BackColour,
           control.ForeColour};
}

QString CaptionText(const std::string& caption) {
  return ToQt(caption).replace(QStringLiteral("&&"), QStringLiteral("&"));
}

void ShowName(QWidget* widget, const std::string& caption, const std::string& tip, QString& shown) {
  if (widget->accessibleName() != shown) return;
  QString name = CaptionText(caption).trimmed();
  const QString told = ToQt(tip).section(QStringLiteral(" / "), 0, 0);
  const auto letters =
      std::count_if(name.begin(), name.end(), [](QChar c) { return c.isLetter(); });
  if (letters < 2 && !told.isEmpty()) name = told;
  if (name.isEmpty()) name = SpokenOfEmpty(widget);
  if (name.isEmpty()) return;
  shown = name;
  widget->setAccessibleName(name);
}

void ShowCaption(QAbstractButton* widget, const std::string& caption, const std::string& tip,
                 ShownCaption& shown) {
  if (shown.Known && shown.Caption == caption && shown.ToolTip == tip) return;
  if (!shown.Known || shown.Caption != caption) {
    if (!widget->property("picture_only").toBool()) widget->setText(ButtonText(caption));
  }
  ShowName(widget, caption, tip, shown.Name);
  shown.Known = true;
  shown.Caption = caption;
  shown.ToolTip = tip;
}

void ShowRepeat(QAbstractButton* widget, int repeat_ms) {
  if (widget->autoRepeat() == (repeat_ms > 0)) return;
  widget->setAutoRepeat(repeat_ms > 0);
  widget->setAutoRepeatDelay(repeat_ms);
  widget->setAutoRepeatInterval(repeat_ms);
}

}  // namespace zepril
