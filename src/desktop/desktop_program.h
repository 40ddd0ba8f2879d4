// One run of the program on the desktop: the start window, then the main window, to the end.
#pragma once

#include <QTimer>

#include <memory>
#include <optional>

#include "config/settings_in_memory.h"
#include "desktop/key_repeats.h"
#include "desktop/main_window.h"
#include "desktop/qt_machine.h"
#include "desktop/sample_map_worker.h"
#include "desktop/start_window.h"
#include "platform/event.h"
#include "platform/native/native_files.h"
#include "platform/native/program_folder.h"
#include "platform/native/run_lock.h"
#include "station/start/start_panel.h"
#include "station/station_program.h"

namespace zepril {

class DesktopProgram {
 public:
  explicit DesktopProgram(const ProgramPlaces& places);
  ~DesktopProgram();
  DesktopProgram(const DesktopProgram&) = delete;
  DesktopProgram& operator=(const DesktopProgram&) = delete;

  // False when the program's fonts are missing: a fixed font of the system stands in.
  bool LoadFonts();
  // False when the run ends before it has begun: another program runs in the folder, or the
  // settings can't be read and the operator does not want the defaults. Nothing has changed then.
  bool ShowStartWindow();
  // The session ends: as if the operator closed the window that is open.
  void CloseAsOperator();
  // The run is over and everything is stored. Called once.
  Event<> Ended;

  QtLoop& Loop() { return machine_.Loop; }
  StartWindow* Starting() { return start_window_.get(); }
  // Null until START; the window follows when the start has gone well.
  StationProgram* Station() { return program_.get(); }
  MainWindow* Window() { return window_.get(); }

 private:
  bool TakeFolder();
  bool ReadableSettings();
  void ComeToFront();
  void DrawMissingSampleMaps();
  void OpenMainWindow();
  void ShowMainWindow();
  void EndBeforeStart();
  void End(bool by_operator);
  void TellEnded();
  void KeepPlaces();

  ProgramPlaces places_;
  NativeFiles disk_;
  std::unique_ptr<SettingsInMemory> held_settings_;  // of a run on defaults that writes none
  Files* files_ = &disk_;
  RunLock lock_;
  QTimer front_timer_;
  QtMachine machine_;
  std::optional<Machine> given_;  // once the settings are readable
  KeyRepeats key_repeats_;
  std::unique_ptr<StartPanel> panel_;
  std::unique_ptr<StartWindow> start_window_;
  std::unique_ptr<SampleMapWorker> worker_;
  std::unique_ptr<StationProgram> program_;
  std::unique_ptr<MainWindow> window_;
  bool close_asked_ = false;  // while START is under way
  bool ending_ = false;
  bool ended_ = false;
};

}  // namespace zepril
