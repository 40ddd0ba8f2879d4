// What the PK-232 is told, looked for at every speed that it may have been left at.
#include "links/pk232.h"

#include <initializer_list>

#include "core/sent_text.h"
#include "core/text_fields.h"
#include "links/modem_call.h"
#include "links/modem_lines.h"

namespace zepril {
namespace {

constexpr const char* kCr = "\r";
constexpr int kVhfFrom = 700;  // Bd

// Ends KISS and host mode, whatever the modem was left in.
const std::string kLeaveKiss = "\xC0\xFF\xC0";
const std::string kLeaveHost = {1, 79, 72, 79, 78, 23};
constexpr std::string_view kBreak = "\x03";  // leaves converse mode

std::string Device(const RadioState& radio) {
  return WholeNumber(radio.TncPort);
}

std::string Speed(const RadioState& radio) {
  return radio.TncBaud;
}

std::string Unproto(const TransmissionState& transmission) {
  std::string line = "UNPROTO " + transmission.TxDestination;
  const std::string path = WithoutEmptyElements(transmission.TxPath);
  if (!Trim(path).empty()) line += " VIA " + path;
  return line;
}

std::initializer_list<const char*> DigiLines(Digipeater digi) {
  static const std::initializer_list<const char*> on = {"DIGIPEAT ON", "DFROM ALL",
                                                        "MYALIAS WIDE1-1"};
  static const std::initializer_list<const char*> off = {"DIGIPEAT OFF", "DFROM NONE",
                                                         "MYALIAS NONE"};
  return digi == Digipeater::On ? on : off;
}

// The modem is looked for at every speed that it may have been left at.
void AddSearch(ModemScript& script, const RadioState& radio, const std::string& device) {
  for (int baud : {9600, 4800, 2400, 1200}) {
    script.Open(device, baud);
    script.Send(kLeaveKiss, 0.2).Send(kCr, 0.2);
    script.Send("KISS OFF", 0.2).Send(kCr, 0.2);
    script.Send(kLeaveHost, 0.2).Send(kCr, 0.2);
    AddLine(script, "TB " + radio.TncBaud, 0.2);
    script.Send(std::string("RESTART") + kCr, 0.2).Wait(1.0).AwaitSent().Close();
  }
}

void AddParameters(ModemScript& script, const ModemSections& s) {
  const int speed = BaudOf(s.Radio.BaudMode);
  const std::string call = CallText(s.Identity.MyCall, s.Identity.MySsid);
  const std::string lines[] = {"ECHO OFF",
                               "ACRDISP 0",
                               "ALFDISP ON",
                               "CONOK OFF",
                               "PASSALL OFF",
                               "PA",
                               "HB " + WholeNumber(speed),
                               speed < kVhfFrom ? "VHF OFF" : "VHF ON",
                               "8B ON",
                               "AW 8",
                               "MFILTER $0",
                               "MONITOR 5",
                               "MFROM ALL",
                               "MYCALL " + call,
                               Unproto(s.Transmission)};
  for (const std::string& line : lines)
    AddLine(script, line, 0.2);
  for (const char* line : DigiLines(s.Radio.DigiOn))
    script.Send(std::string(line) + kCr, 0.2);
}

ModemScript SetUp(const ModemSections& s) {
  const std::string device = Device(s.Radio);
  const int baud = BaudOf(Speed(s.Radio));
  ModemScript script;
  // The modem's autobaud.
  script.Wait(5.0).Open(device, baud).Wait(1.0);
  for (int stars = 0; stars < 10; ++stars)
    script.Send("*", 0.5);
  script.Wait(1.0).AwaitSent().Close();
  AddSearch(script, s.Radio, device);
  // Packet mode.
  script.Open(device, baud).Wait(1.0);
  script.Send(std::string("PA") + kCr, 0.2).Send(kCr, 1.0).AwaitSent().Close();
  // Parameters, then what it prints is read until it has stopped answering.
  script.Open(device, baud);
  AddParameters(script, s);
  script.Send(kCr, 1.0).Drain().AwaitPrompt().Close();
  return script;
}

ModemScript ApplyTxSetup(const ModemSections& s) {
  const std::string call = CallText(s.Identity.MyCall, s.Identity.MySsid);
  ModemScript script;
  script.SendPumping(kBreak, 0.5);
  for (const std::string& line : {"MYCALL " + call, Unproto(s.Transmission)})
    script.SendPumping(WithoutControlCharacters(line) + kCr, 0.2);
  for (const char* line : DigiLines(s.Radio.DigiOn))
    script.Send(std::string(line) + kCr, 0.2);
  script.SendPumping(kCr, 1.0).AwaitSent().ReadAway().AwaitPrompt();
  script.SendPumping(std::string("K") + kCr, 0.2);
  return script;
}

ModemScript Leave() {
  ModemScript script;
  return script.SendPumping(kBreak, 0.2);
}

ModemScript OutOfConverse() {
  ModemScript script;
  return script.Send(kBreak, 0.5);
}

}  // namespace

const ModemKind kPk232{
    .Dialect = "PK-232",
    .ReadsUntilSilent = false,
    .Device = Device,
    .Speed = Speed,
    .SetUp = SetUp,
    .ApplyTxSetup = ApplyTxSetup,
    .Leave = Leave,
    .AtOpening = "ECHO ON\r",
    .IntoConverse = "K\r",
    .OutOfConverse = OutOfConverse,
    .WipeLine = "\x18",
    // The star wakes one that was switched on and looks for the speed of its line.
    .Call = {"\x03*\r", "MYCALL\r", "K\r"},
    .CallIn = CallOfMyCall,
    .AnswersWithEmptyLines = true,
    .KeysThatEndALine = "\r\x03\x18",
    .KeysThatBeginACommand = "",
    .SecondMode = nullptr,
};

}  // namespace zepril
