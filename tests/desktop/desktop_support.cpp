// Waits on the event loop, and the main of the window tests, which run with no screen.
#include "tests/desktop/desktop_support.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QStyleFactory>
#include <gtest/gtest.h>

#include "desktop/look.h"

namespace zepril {

bool PumpUntil(const std::function<bool()>& done, int milliseconds) {
  QElapsedTimer spent;
  spent.start();
  while (!done()) {
    if (spent.elapsed() > milliseconds) return false;
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
  }
  return true;
}

void Pump() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
}

void AskForMenu(QWidget* widget, bool by_keyboard) {
  const QPoint at = widget->rect().center();
  const auto reason = by_keyboard ? QContextMenuEvent::Keyboard : QContextMenuEvent::Mouse;
  QContextMenuEvent menu(reason, at, widget->mapToGlobal(at));
  QApplication::sendEvent(widget, &menu);
}

}  // namespace zepril

// A main of its own, in place of the library's: windows need an application, and no screen.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setPalette(zepril::PaletteOf(zepril::NightLook()));
  application.setStyleSheet(zepril::StyleSheetOf(zepril::NightLook()));
  return RUN_ALL_TESTS();
}
