// What assistive programs are told of a widget that is more than its class says: a button that is a
// switch, a text that is pressed, a bar that fills, the map.
#pragma once

#include <QAccessible>
#include <QString>

class QWidget;

namespace zepril {

// Gives the widget this role; to be called before the window is shown.
void SetAccessibleRole(QWidget* widget, QAccessible::Role role);
// What a button or a text that is pressed is called while it has no caption.
void SpeakOfEmpty(QWidget* widget, const char* name);
QString SpokenOfEmpty(const QWidget* widget);

}  // namespace zepril
