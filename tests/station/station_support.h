// A whole station in virtual time: real files in a folder of its own, everything else played.
#pragma once

#include <memory>
#include <string>

#include "core/text_fields.h"
#include "links/agw_frame.h"
#include "platform/native/native_files.h"
#include "station/station_program.h"
#include "tests/doubles/machine.h"
#include "tests/doubles/played_programs.h"
#include "tests/doubles/recorded_desktop.h"
#include "tests/doubles/recorded_surfaces.h"
#include "tests/doubles/scripted_dialogs.h"
#include "tests/doubles/temp_folder.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {

class StationHarness : public RecordedSurfaces {
 public:
  explicit StationHarness(const std::string& extra_settings = {}) {
    files.MakeFolder(kFolder);
    files.Write(
        std::string(kFolder) + "\\ZEPRIL.INI",
        "USER=QX7KB\r\nMSYS=U33\r\nUMAPS=C:\\ZEPRIL\\U33\r\nTEMP=C:\\ZEPRIL\\TEMP\r\nMODEM=3\r\n"
        "HOSTC=engine\r\nHOSTP=8000\r\nCALL=QX1AB-9\r\nLOGS=1\r\nIONA=0\r\nUTN=5800\r\nUTE=400\r\n"
        "UUN=5817.860\r\nUUE=391.394\r\nFOO=1\r\n" +
            extra_settings);
    EngineAccepts();
    modem.Call = "QX7KB";
    Make();
  }

  static constexpr const char* kFolder = "C:\\ZEPRIL";

  // The engine takes connections and registrations.
  void EngineAccepts() {
    socket.OnConnect = [this] {
      clock.Schedule(0.05, [this] { socket.SetState(SocketState::Connected); });
    };
    socket.OnSend = [this](std::string_view bytes) {
      if (bytes[4] != 'X') return;
      clock.Schedule(0.3, [this] { socket.Deliver(MakeAgwFrame(0, 'X', "QX7KB", "", "\x01")); });
    };
  }

  bool Start() {
    const bool started = program->Start(kFolder, 32);
    return started;
  }
  // Closes as the operator does and builds the next run on the same files.
  void Restart() {
    program->Stop(true);
    Make();
    Start();
  }
  // A monitored frame of the engine.
  void Hear(const std::string& from, const std::string& info, const std::string& via = {}) {
    const std::string path = via.empty() ? std::string() : " Via " + via;
    const std::string text = "1:Fm " + from + " To APRS" + path + " <UI pid=F0 Len=" +
                             WholeNumber(static_cast<std::int64_t>(info.size())) +
                             " PF=0 >[12:34:56]\r" + info + "\r\r";
    socket.Deliver(MakeAgwFrame(0, 'U', from, "APRS", text));
  }
  void Ticks(int count) { clock.Run(6.0 * count + 0.01); }

  RuntimeState& State() { return program->State(); }
  MainWindowControls& Controls() { return program->Controls(); }
  std::string File(const std::string& name) const {
    return files.ReadAll(std::string(kFolder) + "\\" + name, 1 << 22).value_or("(missing)");
  }
  bool DrewText(const std::string& words) const {
    for (const auto& operation : map_surface.Operations) {
      if (operation.Kind == "text" && operation.Words == words) return true;
    }
    return false;
  }

  TempFolder folder;
  NativeFiles files{folder.Path()};
  VirtualClock clock{{2024, 1, 15, 12, 34, 0}};
  ScriptedDialogs dialogs;
  RecordedDesktop desktop;
  FakeSocket socket;
  FakeSocket server_socket;  // to the APRS-IS server
  FakeSerial modem;
  FakeSerial gps;
  std::shared_ptr<FakePages> pages = std::make_shared<FakePages>();
  PlayedPrograms programs;
  std::unique_ptr<StationProgram> program;

 private:
  void Make() {
    program.reset();
    program = std::make_unique<StationProgram>(
        MachineOf(files, clock, clock, dialogs, desktop,
                  {{&socket, &server_socket}, {&modem, &gps}, Surfaces(), pages, &programs}));
    clock.ForgetTimers();
    for (const DrivenTimer& timer : program->Timers())
      clock.Drive(timer);
  }
};

}  // namespace zepril
