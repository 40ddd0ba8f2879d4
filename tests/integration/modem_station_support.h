// A whole station with a serial modem on a real pseudo-terminal. Its time runs faster than the
// world's, and its timers with it.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/state/radio.h"
#include "links/modem_script.h"
#include "platform/native/native_files.h"
#include "platform/qt/qt_loop.h"
#include "platform/qt/qt_serial_port.h"
#include "platform/quiet_machine.h"
#include "station/station_program.h"
#include "tests/doubles/hurried_clock.h"
#include "tests/doubles/machine.h"
#include "tests/doubles/recorded_surfaces.h"
#include "tests/doubles/scripted_dialogs.h"
#include "tests/doubles/served_modem.h"
#include "tests/doubles/temp_folder.h"

namespace zepril {

inline constexpr double kTickSeconds = 6.0;
inline constexpr double kReopenSeconds = 10.0;

class ModemStation : public RecordedSurfaces {
 public:
  // `extra_settings`: lines of the configuration, which count before the usual ones.
  explicit ModemStation(RadioMode mode, const std::string& extra_settings = {}, double hurry = 80);
  ~ModemStation();
  ModemStation(const ModemStation&) = delete;
  ModemStation& operator=(const ModemStation&) = delete;

  static constexpr const char* kFolder = "C:\\ZEPRIL";

  // What START says to the modem.
  ModemScript SetUp() const;
  // What the main window says when it opens the port.
  ModemScript Opening() const;
  // START of the start window; true when the main window may open.
  bool PressStart();
  bool Start() { return program->Start(kFolder, 32); }
  // The program is killed in the middle of everything; another one is there to be started.
  void Crash();

  // The program runs for `seconds` of its time.
  void Run(double seconds) { clock.Run(seconds); }
  // Just so long that a tick has come.
  void RunATick() { Run(kTickSeconds + 0.1); }
  // Runs until `done`; false when that lasts too long.
  bool RunUntil(const std::function<bool()>& done);
  // Waits for the world while the program stands still.
  bool Comes(const std::function<bool()>& done);

  RuntimeState& State() { return program->State(); }
  MainWindowControls& Controls() { return program->Controls(); }
  int Records() { return program->State().Stores.MoniAllRecords.Count(); }
  bool Switch(CheckBox& box, int value) {
    box.Value = value;
    box.Click();
    return box.Value == value;
  }

  // From now on the computer has the adapters that are made, and the modem is the first of them.
  void PlayAdapters();
  std::string Adapter(const std::string& name) const { return folder.Sub("by-id/" + name); }

  // The name by which the station knows its modem.
  std::string Link() const { return folder.Sub("modem"); }

  TempFolder folder;
  NativeFiles files{folder.Path()};
  QtLoop loop;
  HurriedClock clock;
  ScriptedDialogs dialogs;
  QuietDesktop desktop;
  FakeSocket socket;
  QtSerialPort port;
  std::unique_ptr<StationProgram> program;

 private:
  void Make();

  RadioMode mode_;
};

// The model of the modem that belongs to `mode`, fresh from the shop.
std::unique_ptr<ModemModel> MakeModel(RadioMode mode);
// The same with the settings of START in it.
std::unique_ptr<ModemModel> MakeModelSetUpBy(RadioMode mode, const ModemScript& set_up);

// Name of a test by its mode.
std::string NameOfModem(const ::testing::TestParamInfo<RadioMode>& info);

}  // namespace zepril
