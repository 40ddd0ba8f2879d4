// A start panel with its files, devices and a modem's port that writes down what is done with it.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/text_fields.h"
#include "platform/native/native_files.h"
#include "station/start/start_panel.h"
#include "tests/doubles/machine.h"
#include "tests/doubles/recorded_desktop.h"
#include "tests/doubles/scripted_dialogs.h"
#include "tests/doubles/temp_folder.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {

using Lines = std::vector<std::string>;

// A modem's port that writes down what is done with it, between the waits of a clock.
class NotedPort final : public SerialPort {
 public:
  bool Open(const std::string& device, int baud) override {
    Notes.push_back("open " + device + " " + WholeNumber(baud));
    open_ = !Absent;
    return open_;
  }
  void Close() override {
    Notes.emplace_back("close");
    open_ = false;
  }
  bool IsOpen() const override { return open_; }
  void Write(std::string_view bytes) override { Notes.emplace_back(bytes); }
  void ForgetDevice() override { ++Forgotten; }
  std::string LastingName(const std::string& device) const override { return "usb-" + device; }
  std::string ReadAll() override { return {}; }
  std::size_t BytesToWrite() const override { return 0; }
  std::string Trouble() const override { return Absent ? "no such port" : ""; }

  bool Absent = false;
  int Forgotten = 0;
  Lines Notes;

 private:
  bool open_ = false;
};

class StartPanelWorld : public ::testing::Test {
 protected:
  StartPanelWorld() {
    clock.OnWait = [this](double seconds, bool pumping) {
      EXPECT_FALSE(pumping);
      waited += seconds;
      if (OnWait) OnWait();
    };
  }
  std::unique_ptr<StartPanel> MakePanel() {
    auto panel =
        std::make_unique<StartPanel>(MachineOf(files, clock, clock, dialogs, desktop,
                                               {{}, {&modem}, {}}, [this] { return devices; }),
                                     "C:\\Z", "");
    panel->Started = [this] { ++starts; };
    return panel;
  }
  // A panel of a file with these lines.
  std::unique_ptr<StartPanel> PanelOf(const std::string& settings) {
    files.MakeFolder("C:\\Z");
    files.Write("C:\\Z\\ZEPRIL.INI", "USER=QX7KB\r\nTEMP=C:\\T\r\n" + settings);
    return MakePanel();
  }
  std::string Ports() { return files.ReadAll("C:\\Z\\PORTS.TXT", 1 << 20).value_or("(none)"); }
  static void Type(StartPanel& panel, const std::string& port) {
    panel.Controls.Text3.Text = port;
    panel.Controls.Text3.Change();
  }
  int CountOf(const std::string& note) const {
    return static_cast<int>(std::count(modem.Notes.begin(), modem.Notes.end(), note));
  }
  // What was written, without openings and closings.
  Lines Sent() const {
    Lines sent;
    for (const std::string& note : modem.Notes) {
      if (!note.starts_with("open ") && note != "close") sent.push_back(note);
    }
    return sent;
  }
  std::string Ini() { return files.ReadAll("C:\\Z\\ZEPRIL.INI", 1 << 20).value_or("(missing)"); }
  bool Has(const std::string& line) { return Ini().find(line + "\r\n") != std::string::npos; }

  TempFolder folder;
  NativeFiles files{folder.Path()};
  ScriptedDialogs dialogs;
  RecordedDesktop desktop;
  VirtualClock clock;
  NotedPort modem;
  std::vector<SerialDevice> devices{
      {"/dev/ttyUSB0", "FTDI FT232R", "/dev/serial/by-id/usb-FTDI_A1-if00"},
      {"/dev/ttyS0", "", ""}};
  int starts = 0;
  double waited = 0.0;  // seconds
  std::function<void()> OnWait;
};

}  // namespace zepril
