// zepril: the station program. The start window takes the settings, the main window runs the
// station.
#include <QApplication>
#include <QStyleFactory>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "core/texts/window_texts.h"
#include "desktop/desktop_program.h"
#include "desktop/look.h"
#include "desktop/session_end.h"

namespace zepril {
namespace {

std::string NativeText(const QString& path) {
  return path.toUtf8().toStdString();
}

bool HasDisplay() {
  for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    const char* value = std::getenv(variable);
    if (value != nullptr && *value != '\0') return true;
  }
  return false;
}

}  // namespace
}  // namespace zepril

int main(int argc, char** argv) {
  if (!zepril::HasDisplay()) {
    std::fputs(zepril::window_texts::kNoDisplay.English, stderr);
    return 1;
  }
  // A file that may not grow any more is one that can't be written, not the end of the program.
  std::signal(SIGXFSZ, SIG_IGN);
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("zepril"));
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setPalette(zepril::PaletteOf(zepril::NightLook()));
  app.setStyleSheet(zepril::StyleSheetOf(zepril::NightLook()));

  const std::string executable = zepril::NativeText(QCoreApplication::applicationDirPath());
  zepril::DesktopProgram desktop(zepril::FindProgramPlaces(executable, executable + "/data"));
  if (!desktop.LoadFonts()) {
    std::fputs(zepril::window_texts::kNoFonts.English, stderr);
  }
  desktop.Ended = [] { QCoreApplication::quit(); };
  const zepril::SessionEnd session_end([&desktop] { desktop.CloseAsOperator(); });
  if (!desktop.ShowStartWindow()) return 0;
  return QApplication::exec();
}
