// One run of the program on the desktop: the start window, then the main window, to the end.
#pragma once

#include <QTimer>

#include <functional>
#include <memory>

#include "desktop/key_repeats.h"
#include "config/settings_in_memory.h"
#include "desktop/main_window.h"
#include "desktop/qt_desktop_actions.h"
#include "desktop/qt_dialogs.h"
#include "desktop/sample_map_worker.h"
#include "desktop/start_window.h"
#include "platform/native/native_files.h"
#include "platform/native/program_folder.h"
#include "platform/native/run_lock.h"
#include "platform/qt/map_fonts.h"
#include "platform/qt/qt_loop.h"
#include "platform/qt/qt_serial_port.h"
#include "platform/qt/qt_socket.h"
#include "platform/qt/qt_surface.h"
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
  std::function<void()> Ended;

  QtLoop& Loop() { return loop_; }
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
  void ShowWhatTheTerminalReceives();
  void End(bool by_operator);
  void TellEnded();
  void KeepPlaces();

  ProgramPlaces places_;
  NativeFiles disk_;
  std::unique_ptr<SettingsInMemory> held_settings_;  // of a run on defaults that writes none
  Files* files_ = &disk_;
  RunLock lock_;
  QTimer front_timer_;
  QtLoop loop_;
  QtDialogs dialogs_;
  QtDesktopActions desktop_;
  QtSocket socket_;
  QtSerialPort modem_;
  KeyRepeats key_repeats_;
  MapFonts fonts_;
  QtSurface map_surface_;
  QtSurface base_surface_;
  QtSurface sun_surface_;
  QtSurface tx_symbol_surface_;
  QtSurface object_symbol_surface_;
  std::unique_ptr<StartPanel> panel_;
  std::unique_ptr<StartWindow> start_window_;
  std::unique_ptr<SampleMapWorker> worker_;
  std::unique_ptr<StationProgram> program_;
  std::unique_ptr<MainWindow> window_;
  bool start_asked_ = false;
  bool close_asked_ = false;  // while START is under way
  bool ending_ = false;
  bool ended_ = false;
};

}  // namespace zepril
