// The course of a run: fonts, folder, start window, maps of a first run, main window, end.
#include "desktop/desktop_program.h"

#include <QCoreApplication>

#include <cstdlib>

#include "config/config_file.h"
#include "config/ports_file.h"
#include "config/window_file.h"
#include "core/texts/boxes.h"
#include "core/texts/file_troubles.h"
#include "desktop/window_place.h"
#include "map/symbol_sheets.h"
#include "platform/code_page.h"
#include "platform/qt/serial_devices.h"
#include "platform/qt/text.h"
#include "sample_maps/sample_maps.h"
#include "viewers/sun_curve.h"

namespace zepril {
namespace {

constexpr int kFirstMapWidth = 880;
constexpr int kFirstMapHeight = 700;
constexpr int kColourDepthBits = 32;

}  // namespace

DesktopProgram::DesktopProgram(const ProgramPlaces& places)
    : places_(places),
      disk_(DefaultDriveFolder()),
      dialogs_(loop_),
      map_surface_(kFirstMapWidth, kFirstMapHeight, fonts_),
      base_surface_(kFirstMapWidth, kFirstMapHeight, fonts_),
      sun_surface_(SunCurve::kPlotWidth, SunCurve::kPlotHeight, fonts_),
      tx_symbol_surface_(kSymbolCellPixels, kSymbolCellPixels, fonts_),
      object_symbol_surface_(kSymbolCellPixels, kSymbolCellPixels, fonts_) {
  QCoreApplication::instance()->installEventFilter(&key_repeats_);
}

DesktopProgram::~DesktopProgram() {
  loop_.ControlsOut = nullptr;
  loop_.StepEnded = nullptr;
  // The program's timers go before the loop does.
  loop_.ForgetTimers();
}

bool DesktopProgram::LoadFonts() {
  return fonts_.LoadFonts(ToQt(places_.DataFolder + "/fonts"));
}

void DesktopProgram::CloseAsOperator() {
  // A box that waits for the operator must not keep the session from ending.
  dialogs_.AnswerNoMore();
  loop_.AskForEnd(true);
  if (window_) {
    window_->close();
  } else if (program_ || (panel_ && panel_->Starting())) {
    // The modem is set up, or the station is starting: the end follows when that has returned.
    close_asked_ = true;
  } else {
    TellEnded();
  }
}

// One program a folder: two would overwrite each other's logs, histories and settings.
bool DesktopProgram::TakeFolder() {
  constexpr int kFrontPollMs = 500;
  disk_.MakeFolder(places_.ProgramFolder);
  const std::string path = disk_.NativePath(places_.ProgramFolder + "\\ZEPRIL.RUN");
  if (lock_.Take(path) != RunLock::Outcome::TakenByOther) {
    QObject::connect(&front_timer_, &QTimer::timeout, [this] {
      if (lock_.FrontWanted()) ComeToFront();
    });
    front_timer_.start(kFrontPollMs);
    return true;
  }
  const std::string text = boxes::kRunsAlready.With({places_.ProgramFolder});
  const DialogAnswer answer =
      dialogs_.Ask(boxes::kTitle, text, DialogButtons::YesNo, DialogAnswer::Yes);
  if (answer == DialogAnswer::Yes) RunLock::AskForFront(path);
  return false;
}

void DesktopProgram::ComeToFront() {
  QWidget* window = window_ ? static_cast<QWidget*>(window_.get()) : start_window_.get();
  if (window == nullptr) return;
  window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
  window->raise();
  window->activateWindow();
}

// Settings that can't be read are never written over.
bool DesktopProgram::ReadableSettings() {
  const auto trouble = TroubleWithConfig(disk_, places_.ProgramFolder);
  if (!trouble) return true;
  const std::string text =
      boxes::kSettingsUnread.With({ConfigPath(places_.ProgramFolder), WordsOf(*trouble)});
  if (dialogs_.Ask(boxes::kTitle, text, DialogButtons::YesNo, DialogAnswer::No) !=
      DialogAnswer::Yes) {
    return false;
  }
  held_settings_ = std::make_unique<SettingsInMemory>(disk_, places_.ProgramFolder);
  files_ = held_settings_.get();
  return true;
}

bool DesktopProgram::ShowStartWindow() {
  if (!TakeFolder() || !ReadableSettings()) {
    TellEnded();
    return false;
  }
  const char* temp = std::getenv("TEMP");
  FillProgramFolder(disk_, places_);
  modem_.DeviceOfNumber = [this](int number) {
    return DeviceOfPort(*files_, places_.ProgramFolder, number);
  };
  panel_ = std::make_unique<StartPanel>(
      StartPanelPlatform{*files_, loop_, dialogs_, modem_, PresentSerialDevices},
      places_.ProgramFolder, temp != nullptr ? temp : "");
  start_window_ = std::make_unique<StartWindow>(*panel_, loop_, fonts_);
  dialogs_.SetOwner(start_window_.get());
  loop_.ControlsOut = [this] { start_window_->ControlsOut(); };
  loop_.StepEnded = [this] {
    if (close_asked_) {
      start_window_->hide();
      TellEnded();
    } else if (start_asked_) {
      OpenMainWindow();
    }
  };
  panel_->Started = [this] { start_asked_ = true; };
  start_window_->Closed = [this] { CloseAsOperator(); };
  PlaceWindow(*start_window_, ReadWindowFile(*files_, places_.ProgramFolder), "START");
  start_window_->show();
  DrawMissingSampleMaps();
  return true;
}

// A first run without any map gets the sample library; one that was ended early goes on.
void DesktopProgram::DrawMissingSampleMaps() {
  const std::string target = places_.ProgramFolder + "\\U33";
  const bool begun = !files_->List(target, std::string(kFolderBeingDrawn) + "*").empty();
  if (!begun && !files_->List(target, "M*.*").empty()) return;
  if (panel_->Controls.Text1.Text.empty()) return;
  files_->MakeFolder(target);
  worker_ =
      std::make_unique<SampleMapWorker>(CodePageFromUtf8(places_.DataFolder) + "/maps", target);
  worker_->Progress = [this](int done, int total) {
    start_window_->ShowMapProgress(done, total);
    panel_->Controls.Command1.Enabled = done >= total;
    start_window_->ControlsOut();
  };
  panel_->Controls.Command1.Enabled = false;
  start_window_->ShowMapProgress(0, 1);
  start_window_->ControlsOut();
  worker_->Begin();
}

void DesktopProgram::OpenMainWindow() {
  start_asked_ = false;
  loop_.StepEnded = nullptr;
  program_ = std::make_unique<StationProgram>(
      StationPlatform{*files_, loop_, dialogs_, desktop_, socket_, modem_, map_surface_,
                      base_surface_, sun_surface_, tx_symbol_surface_, object_symbol_surface_});
  if (!panel_->ModemIsSetUp()) program_->ModemWasNotSetUp();
  loop_.Drive(program_->Timer1(), false);
  loop_.Drive(program_->Timer2(), true);
  loop_.Drive(program_->ReopenTimer(), true);
  bool started = false;
  // The start window stays until the link stands, so that its boxes have an owner.
  loop_.RunStep([&] { started = program_->Start(places_.ProgramFolder, kColourDepthBits); });
  if (!started || close_asked_) {
    End(started);
    return;
  }
  ShowWhatTheTerminalReceives();
  window_ = std::make_unique<MainWindow>(*program_, loop_, fonts_,
                                         WindowSurfaces{map_surface_, base_surface_, sun_surface_,
                                                        tx_symbol_surface_, object_symbol_surface_},
                                         *files_);
  dialogs_.SetOwner(window_.get());
  desktop_.SetWindows(window_.get(), window_->Map());
  window_->Closed = [this] { End(true); };
  loop_.ControlsOut = [this] { window_->ControlsOut(); };
  loop_.StepEnded = [this] { window_->CloseWhenAsked(); };
  window_->TakeKept(ReadWindowFile(*files_, places_.ProgramFolder));
  window_->show();
  KeepPlaces();
  start_window_->Closed = nullptr;
  start_window_->close();
}

// While the terminal is open no timer brings its text to the screen: what arrives is a step then.
void DesktopProgram::ShowWhatTheTerminalReceives() {
  modem_.DataArrived = [this, take = modem_.DataArrived] {
    if (!take) return;
    program_->Controls().Terminal.Frame19.Visible ? loop_.RunStep(take) : take();
  };
}

void DesktopProgram::End(bool by_operator) {
  if (ending_) return;
  ending_ = true;
  // The stop itself waits as it must.
  loop_.AskForEnd(false);
  loop_.TakeNoMorePresses();
  loop_.ControlsOut = nullptr;
  loop_.StepEnded = nullptr;
  start_window_->Closed = nullptr;
  KeepPlaces();
  if (window_) window_->hide();
  start_window_->hide();
  loop_.RunStep([&] { program_->Stop(by_operator && !program_->EndWanted()); });
  TellEnded();
}

// For the next run. It is no harm where the file can't be written.
void DesktopProgram::KeepPlaces() {
  WindowValues values;
  if (start_window_ && start_window_->isVisible()) values = PlaceOf(*start_window_, "START");
  if (window_ && window_->isVisible()) values.merge(window_->Kept());
  if (!values.empty()) WriteWindowFile(*files_, places_.ProgramFolder, values);
}

void DesktopProgram::TellEnded() {
  if (ended_) return;
  ended_ = true;
  if (!window_) KeepPlaces();
  if (Ended) Ended();
}

}  // namespace zepril
