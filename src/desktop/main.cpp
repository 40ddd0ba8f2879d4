// zepril: the station program. The start window takes the settings, the main window runs the
// station.
#include <QApplication>
#include <QDir>
#include <QStyleFactory>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "desktop/look.h"
#include "desktop/main_window.h"
#include "desktop/qt_desktop_actions.h"
#include "desktop/qt_dialogs.h"
#include "desktop/sample_map_worker.h"
#include "desktop/session_end.h"
#include "desktop/start_window.h"
#include "platform/absent_devices.h"
#include "platform/native/native_files.h"
#include "platform/native/program_folder.h"
#include "platform/qt/map_fonts.h"
#include "platform/qt/qt_loop.h"
#include "platform/qt/qt_socket.h"
#include "platform/qt/qt_surface.h"
#include "platform/qt/text.h"
#include "station/start_panel.h"
#include "station/station_program.h"

namespace zepril {
namespace {

constexpr int kFirstMapWidth = 880;
constexpr int kFirstMapHeight = 700;

std::string NativeText(const QString& path) {
  return path.toUtf8().toStdString();
}

// One run of the program from the start window to the end.
class Desktop {
 public:
  explicit Desktop(const ProgramPlaces& places)
      : places_(places),
        files_(DefaultDriveFolder()),
        dialogs_(loop_),
        map_surface_(kFirstMapWidth, kFirstMapHeight, fonts_),
        base_surface_(kFirstMapWidth, kFirstMapHeight, fonts_) {}

  // The program's timers go before the loop does.
  ~Desktop() { loop_.ForgetTimers(); }
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  bool LoadFonts() { return fonts_.LoadFonts(ToQt(places_.DataFolder + "/fonts")); }

  // The session ends: as if the operator closed the window that is open.
  void CloseAsOperator() {
    if (window_) {
      window_->close();
    } else {
      QCoreApplication::quit();
    }
  }

  void ShowStartWindow() {
    const char* temp = std::getenv("TEMP");
    FillProgramFolder(files_, places_);
    panel_ = std::make_unique<StartPanel>(files_, dialogs_, places_.ProgramFolder,
                                          temp != nullptr ? temp : "");
    start_window_ = std::make_unique<StartWindow>(*panel_, loop_, fonts_);
    dialogs_.SetOwner(start_window_.get());
    loop_.ControlsOut = [this] { start_window_->ControlsOut(); };
    loop_.StepEnded = [this] {
      if (start_asked_) OpenMainWindow();
    };
    panel_->Started = [this] { start_asked_ = true; };
    start_window_->Closed = [] { QCoreApplication::quit(); };
    start_window_->show();
    DrawMissingSampleMaps();
  }

 private:
  // A first run without any map gets the sample library.
  void DrawMissingSampleMaps() {
    const std::string target = places_.ProgramFolder + "\\U33";
    if (!files_.List(target, "M*.*").empty() || panel_->Controls.Text1.Text.empty()) return;
    files_.MakeFolder(target);
    worker_ =
        std::make_unique<SampleMapWorker>(places_.DataFolder + "/maps", files_.NativePath(target));
    worker_->Progress = [this](int done, int total) {
      if (start_window_) start_window_->ShowMapProgress(done, total);
      panel_->Controls.Command1.Enabled = done >= total;
      if (start_window_) start_window_->ControlsOut();
    };
    panel_->Controls.Command1.Enabled = false;
    worker_->Begin();
  }

  void OpenMainWindow() {
    start_asked_ = false;
    loop_.StepEnded = nullptr;
    program_ = std::make_unique<StationProgram>(StationPlatform{
        files_, loop_, dialogs_, desktop_, socket_, modem_, map_surface_, base_surface_});
    loop_.Drive(program_->Timer1(), false);
    loop_.Drive(program_->Timer2(), true);
    loop_.Drive(program_->ReopenTimer(), true);
    bool started = false;
    // The start window stays until the link stands, so that its boxes have an owner.
    loop_.RunStep([&] { started = program_->Start(places_.ProgramFolder, 32); });
    if (!started) {
      End(false);
      return;
    }
    window_ = std::make_unique<MainWindow>(*program_, loop_, fonts_, map_surface_, base_surface_);
    dialogs_.SetOwner(window_.get());
    desktop_.SetWindows(window_.get(), window_->Map());
    window_->Closed = [this] { End(true); };
    loop_.ControlsOut = [this] { window_->ControlsOut(); };
    loop_.StepEnded = [this] { window_->CloseWhenAsked(); };
    window_->show();
    start_window_->Closed = nullptr;
    start_window_->close();
  }

  void End(bool by_operator) {
    if (ended_) return;
    ended_ = true;
    loop_.ControlsOut = nullptr;
    loop_.StepEnded = nullptr;
    if (window_) window_->hide();
    loop_.RunStep([&] { program_->Stop(by_operator && !program_->EndWanted()); });
    QCoreApplication::quit();
  }

  ProgramPlaces places_;
  NativeFiles files_;
  QtLoop loop_;
  QtDialogs dialogs_;
  QtDesktopActions desktop_;
  QtSocket socket_;
  AbsentSerialPort modem_;
  MapFonts fonts_;
  QtSurface map_surface_;
  QtSurface base_surface_;
  std::unique_ptr<StartPanel> panel_;
  std::unique_ptr<StartWindow> start_window_;
  std::unique_ptr<SampleMapWorker> worker_;
  std::unique_ptr<StationProgram> program_;
  std::unique_ptr<MainWindow> window_;
  bool start_asked_ = false;
  bool ended_ = false;
};

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
    std::fputs("zepril: no display: set DISPLAY, or QT_QPA_PLATFORM=offscreen\n", stderr);
    return 1;
  }
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("zepril"));
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setPalette(zepril::PaletteOf(zepril::NightLook()));
  app.setStyleSheet(zepril::StyleSheetOf(zepril::NightLook()));

  const std::string executable = zepril::NativeText(QCoreApplication::applicationDirPath());
  zepril::Desktop desktop(zepril::FindProgramPlaces(executable, ZEPRIL_DATA_DIR));
  if (!desktop.LoadFonts()) {
    std::fputs("zepril: its fonts are missing, a fixed font of the system stands in\n", stderr);
  }
  const zepril::SessionEnd session_end([&desktop] { desktop.CloseAsOperator(); });
  desktop.ShowStartWindow();
  return QApplication::exec();
}
