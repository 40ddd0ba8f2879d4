// Opens addresses and files, and moves the pointer, as far as the system allows.
#include "desktop/qt_desktop_actions.h"

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QDesktopServices>
#include <QUrl>
#include <QWidget>

#include "platform/native/set_clock.h"
#include "platform/qt/text.h"

namespace zepril {

bool QtDesktopActions::MainWindowActive() const {
  return main_window_ != nullptr && QApplication::activeWindow() == main_window_;
}

void QtDesktopActions::Open(const std::string& path_or_address) {
  QDesktopServices::openUrl(QUrl::fromUserInput(ToQt(path_or_address)));
}

bool QtDesktopActions::MovePointerOnMap(int x, int y) {
  if (map_ == nullptr) return false;
  const QPoint target = map_->mapToGlobal(QPoint(x, y));
  QCursor::setPos(target);
  return QCursor::pos() == target;
}

std::string QtDesktopActions::ClipboardText() const {
  return FromQt(QGuiApplication::clipboard()->text());
}

bool QtDesktopActions::SetClock(const LocalTime& time) {
  return zepril::SetClock(time);
}

}  // namespace zepril
