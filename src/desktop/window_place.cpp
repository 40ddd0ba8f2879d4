// Chooses the screen, and brings a window's rectangle into it.
#include "desktop/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

#include "core/text_fields.h"

namespace zepril {
namespace {

// Title bar and edges that a desktop draws around a window, before it tells them.
constexpr int kTitleHeight = 32;
constexpr int kEdge = 4;

QRect RoomOn(const QScreen& screen) {
  return screen.availableGeometry().adjusted(kEdge, kTitleHeight, -kEdge, -kEdge);
}

}  // namespace

QRect BroughtInto(const QRect& wanted, const QRect& screen) {
  const QSize size = wanted.size().boundedTo(screen.size()).expandedTo(QSize(1, 1));
  const int x = std::clamp(wanted.x(), screen.left(), screen.right() - size.width() + 1);
  const int y = std::clamp(wanted.y(), screen.top(), screen.bottom() - size.height() + 1);
  return {QPoint(x, y), size};
}

void PlaceWindow(QWidget& window, const WindowValues& values, const std::string& key) {
  const QScreen* screen = window.screen();
  QRect wanted(QPoint(), window.size());
  wanted.moveCenter(RoomOn(*screen).center());
  if (const auto kept = WindowNumbers(values, key, 4); kept && (*kept)[2] > 0 && (*kept)[3] > 0) {
    wanted = QRect((*kept)[0], (*kept)[1], (*kept)[2], (*kept)[3]);
    // The screen that it was on may be there no more.
    if (const QScreen* under = QGuiApplication::screenAt(wanted.center())) screen = under;
  }
  // A screen smaller than the least size is worth more than the least size.
  window.setMinimumSize(window.minimumSize().boundedTo(RoomOn(*screen).size()));
  window.setGeometry(BroughtInto(wanted, RoomOn(*screen)));
  if (WindowNumber(values, key + "MAX", 1, 1)) {
    window.setWindowState(window.windowState() | Qt::WindowMaximized);
  }
}

WindowValues PlaceOf(const QWidget& window, const std::string& key) {
  const QRect place = window.isMaximized() ? window.normalGeometry() : window.geometry();
  WindowValues values;
  values[key] = WholeNumber(place.x()) + "," + WholeNumber(place.y()) + "," +
                WholeNumber(place.width()) + "," + WholeNumber(place.height());
  values[key + "MAX"] = window.isMaximized() ? "1" : "";
  return values;
}

}  // namespace zepril
