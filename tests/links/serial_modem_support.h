// A serial modem on a scripted port in virtual time: one that is silent, one that tells its call.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "links/agw_connection.h"
#include "links/serial_modem.h"
#include "tests/doubles/fake_serial.h"
#include "tests/doubles/recorded_progress.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {

class SerialModemTest : public ::testing::Test {
 protected:
  SerialModemTest() {
    identity.MyCall = "QX7KB";
    identity.MyCallFull = "QX7KB";
    Use(RadioMode::Pk232);
    clock.Drive(reopen, true);
  }
  void Use(RadioMode mode) { radio.RadioMode = static_cast<int>(mode); }
  // What START says.
  std::string SetUp() const {
    std::string bytes;
    const ModemScript script = TncSetupScript({identity, radio, transmission});
    for (const ModemStep& step : script.Steps())
      bytes += step.Act == ModemAct::Send ? step.Text : "";
    return bytes;
  }
  void SendFrame(const std::string& text) {
    port.Write(text);
    modem.FrameWritten();
  }
  // From now on the line takes nothing.
  void Stall() {
    port.OnWrite = [this](std::string_view bytes) { port.Waiting += bytes.size(); };
  }
  void Unstall() { port.OnWrite = nullptr; }

  // What leads each out of converse, and what it is told when the port is opened for the run.
  const std::vector<std::tuple<RadioMode, std::string, std::string>> kModems{
      {RadioMode::Pk232, "\x03", "ECHO ON\rK\r"},
      {RadioMode::ScsTnc, "\x18", ""},
      {RadioMode::ScsPtc, "\x1BQ\r", "K\r"}};

  IdentityState identity;
  RadioState radio;
  TransmissionState transmission;
  FakeSerial port;
  VirtualClock clock;
  RecordedProgress progress;
  SerialModem modem{identity, radio, transmission, {port, clock, progress}};
  Timer& reopen = modem.ReopenTimer;
};

// Answers with the call that it was given, as long as it has its power.
class SerialModemCallTest : public SerialModemTest {
 protected:
  SerialModemCallTest() {
    modem.HeardMeanwhile = [this](const std::string& text) { heard += text; };
    port.OnWrite = [this](std::string_view bytes) {
      line += bytes;
      for (std::size_t end; (end = line.find('\r')) != line.npos; line.erase(0, end + 1))
        Obey(line.substr(0, end));
    };
  }
  void OpenIn(RadioMode mode) {
    Use(mode);
    modem.Open();
    call = "QX7KB";
    clock.Run(30.0);
    port.Written.clear();
  }
  void SwitchOffAndOn() {
    call = "NOCALL";
    line.clear();
  }
  std::string Question() const {
    switch (static_cast<RadioMode>(radio.RadioMode)) {
      case RadioMode::Pk232:
        return "\x03*\rMYCALL\rK\r";
      case RadioMode::ScsTnc:
        return "\x1BI\r";
      default:
        return "\x1BMYCALL\r\n";
    }
  }

  std::string call = "NOCALL";
  bool has_power = true;
  std::string heard_by_modem;  // printed before its answer
  std::string heard;

 private:
  void Obey(std::string command) {
    if (!has_power) return;
    std::erase_if(command, [](char c) { return c < ' ' || c == '*'; });
    if (command == "I") port.Reads.push_back(heard_by_modem + "* I " + call + " *\r\n");
    if (command == "MYCALL") port.Reads.push_back("MYCALL   " + call + "\r\n");
    if (command == "IQX7KB" || command == "MYCALL QX7KB") call = "QX7KB";
  }
  std::string line;
};

}  // namespace zepril
