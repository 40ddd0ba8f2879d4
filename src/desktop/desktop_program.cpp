// The course of a run: fonts, folder, start window, maps of a first run, main window, end.
#include "desktop/desktop_program.h"

#include <QCoreApplication>

#include <cstdlib>

#include "config/config_file.h"
#include "config/window_file.h"
#include "core/texts/boxes.h"
#include "core/texts/file_troubles.h"
#include "desktop/window_place.h"
#include "platform/code_page.h"
#include "platform/qt/text.h"
#include "sample_maps/sample_maps.h"
#include "station/station_surfaces.h"

namespace zepril {
namespace {

constexpr int kColourDepthBits = 32;

}  // namespace

DesktopProgram::DesktopProgram(const ProgramPlaces& places)
    : places_(places), disk_(DefaultDriveFolder()) {
  QCoreApplication::instance()->installEventFilter(&key_repeats_);
}

DesktopProgram::~DesktopProgram() {
  machine_.Loop.ControlsOut = nullptr;
  machine_.Loop.StepEnded = nullptr;
  // The program's timers go before the loop does.
  machine_.Loop.ForgetTimers();
}

bool DesktopProgram::LoadFonts() {
  return machine_.Fonts.LoadFonts(ToQt(places_.DataFolder + "/fonts"));
}

void DesktopProgram::CloseAsOperator() {
  // A box that waits for the operator must not keep the session from ending.
  machine_.Boxes.AnswerNoMore();
  machine_.Loop.AskForEnd(true);
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
      machine_.Boxes.Ask(boxes::kTitle, text, DialogButtons::YesNo, DialogAnswer::Yes);
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
  if (machine_.Boxes.Ask(boxes::kTitle, text, DialogButtons::YesNo, DialogAnswer::No) !=
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
  given_.emplace(machine_.Given(*files_, places_.ProgramFolder));
  panel_ =
      std::make_unique<StartPanel>(*given_, places_.ProgramFolder, temp != nullptr ? temp : "");
  start_window_ = std::make_unique<StartWindow>(*panel_, machine_.Loop, machine_.Fonts);
  machine_.Boxes.SetOwner(start_window_.get());
  machine_.Loop.ControlsOut = [this] { start_window_->ControlsOut(); };
  machine_.Loop.StepEnded = [this] {
    if (close_asked_) EndBeforeStart();
  };
  panel_->Started = [this] { machine_.Loop.Post([this] { OpenMainWindow(); }); };
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
  if (ended_ || program_) return;
  if (close_asked_) return EndBeforeStart();
  machine_.Loop.StepEnded = nullptr;
  program_ = std::make_unique<StationProgram>(*given_, panel_->Modem());
  if (!panel_->ModemIsSetUp()) program_->ModemWasNotSetUp();
  for (const DrivenTimer& timer : program_->Timers())
    machine_.Loop.Drive(timer);
  bool started = false;
  // The start window stays until the link stands, so that its boxes have an owner.
  machine_.Loop.RunStep(
      [&] { started = program_->Start(places_.ProgramFolder, kColourDepthBits); });
  started && !close_asked_ ? ShowMainWindow() : End(started);
}

void DesktopProgram::ShowMainWindow() {
  const StationSurfaces& painted = program_->Surfaces();
  window_ = std::make_unique<MainWindow>(
      *program_, machine_.Loop, machine_.Fonts,
      WindowSurfaces{QtMachine::Own(*painted.Map), QtMachine::Own(*painted.Base),
                     QtMachine::Own(*painted.Sun), QtMachine::Own(*painted.TxSymbol),
                     QtMachine::Own(*painted.ObjectSymbol), QtMachine::Own(*painted.Weather)},
      *files_);
  machine_.Boxes.SetOwner(window_.get());
  machine_.Desktop.SetWindows(window_.get(), window_->Map());
  window_->Closed = [this] { End(true); };
  machine_.Loop.ControlsOut = nullptr;  // the start window's
  machine_.Loop.ControlsOut = [this] { window_->ControlsOut(); };
  machine_.Loop.StepEnded = [this] { window_->StepEnded(); };
  window_->TakeKept(ReadWindowFile(*files_, places_.ProgramFolder));
  window_->show();
  KeepPlaces();
  start_window_->Closed = nullptr;
  start_window_->close();
}

void DesktopProgram::EndBeforeStart() {
  start_window_->hide();
  TellEnded();
}

void DesktopProgram::End(bool by_operator) {
  if (ending_) return;
  ending_ = true;
  // The stop itself waits as it must.
  machine_.Loop.AskForEnd(false);
  machine_.Loop.TakeNoMorePresses();
  machine_.Loop.ControlsOut = nullptr;
  machine_.Loop.StepEnded = nullptr;
  start_window_->Closed = nullptr;
  KeepPlaces();
  if (window_) window_->hide();
  start_window_->hide();
  machine_.Loop.RunStep([&] { program_->Stop(by_operator && !program_->EndWanted()); });
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
