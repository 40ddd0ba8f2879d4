// What tests of the real windows share: waiting for the event loop, keys and presses as an operator
// makes them.
#pragma once

#include <QWidget>

#include <functional>
#include <string>

namespace zepril {

// Lets the event loop run until `done`, at most `milliseconds`. Returns what `done` says.
bool PumpUntil(const std::function<bool()>& done, int milliseconds = 30000);
// Lets everything that waits be done.
void Pump();

// The widget of this object name; fails the test when there is none.
template <class Widget = QWidget>
Widget* Find(QWidget& window, const char* name) {
  auto* found = window.findChild<Widget*>(QString::fromLatin1(name));
  if (found == nullptr) throw std::string("no widget ") + name;
  return found;
}

// Asks for the menu of a widget as the right button does, or as the Menu key does.
void AskForMenu(QWidget* widget, bool by_keyboard);

}  // namespace zepril
