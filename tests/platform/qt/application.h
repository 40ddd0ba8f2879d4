// Windows, fonts and sockets need an application; one serves all tests of a program.
#pragma once

#include <QElapsedTimer>
#include <QGuiApplication>

#include <functional>

namespace zepril {

inline void NeedApplication() {
  if (QCoreApplication::instance() != nullptr) return;
  static int argc = 1;
  static char name[] = "platform_qt_test";
  static char* argv[] = {name, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static QGuiApplication application(argc, argv);
}

// Lets the event loop run until `done`, at most two seconds. Returns what `done` says.
inline bool PumpUntil(const std::function<bool()>& done) {
  QElapsedTimer spent;
  spent.start();
  while (!done()) {
    if (spent.elapsed() > 2000) return false;
    QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
  }
  return true;
}

}  // namespace zepril
