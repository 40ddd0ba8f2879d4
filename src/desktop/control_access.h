// What assistive programs are told of a widget that is more than its class says: a button that is a
// switch, a text that is pressed, a bar that fills, the map.
#pragma once

#include <QAccessible>
#include <QString>

#include "core/controls.h"

class QWidget;

namespace zepril {

// Gives the widget its control's name, unless it has one of its own, and what it is called where
// the control has such a text.
void NameAfter(QWidget* widget, const Control& control);
// Gives the widget this role; to be called before the window is shown.
void SetAccessibleRole(QWidget* widget, QAccessible::Role role);
// What a button or a text that is pressed is called while it has no caption.
void SpeakOfEmpty(QWidget* widget, const QString& name);
QString SpokenOfEmpty(const QWidget* widget);

}  // namespace zepril
