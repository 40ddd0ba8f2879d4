// The lines of each modem for each occasion, by interface, speed and path.
#include "links/setup_sequences.h"

#include <algorithm>
#include <initializer_list>

#include "core/sent_text.h"
#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr const char* kEsc = "\x1B";
constexpr const char* kCr = "\r";
constexpr const char* kCrLf = "\r\n";
constexpr int kVhfFrom = 700;  // Bd
constexpr int kMostBaud = 4'000'000;

// Ends KISS and host mode, whatever the modem was left in.
const std::string kLeaveKiss = "\xC0\xFF\xC0";
const std::string kLeaveHost = {1, 79, 72, 79, 78, 23};
const std::string kBreak = "\x03";       // leaves converse mode
const std::string kCancelLine = "\x18";  // Ctrl+X

int BaudOf(const std::string& text) {
  return WholeVal(text, 0, kMostBaud).value_or(0);
}

// "%B300" or "B 300" of the five speeds; empty for any other text.
std::string SpeedCommand(const std::string& before, const std::string& baud_mode) {
  if (baud_mode == "300R") return before + "R300";
  for (const char* speed : {"300", "1200", "9600", "19200"}) {
    if (baud_mode == speed) return before + speed;
  }
  return {};
}

// The two modes of an HF pair take turns; any other second mode is named.
std::string SecondModeCommand(const RadioState& radio) {
  const bool pair = (radio.BaudMode == "300R" && radio.CrossMode == "300") ||
                    (radio.BaudMode == "300" && radio.CrossMode == "R300");
  return pair ? "%AGH" : "%AG " + radio.CrossMode;
}

std::string SpacedPath(const std::string& list) {
  std::string path = WithoutEmptyElements(list);
  std::replace(path.begin(), path.end(), ',', ' ');
  return path;
}

// A setting's control bytes would be a command of their own.
void AddLine(ModemScript& script, const std::string& line, double wait_seconds,
             const char* end = kCr) {
  script.Send(WithoutControlCharacters(line) + end, wait_seconds);
}

// ---- PK-232 ---------------------------------------------------------------------------------

std::string Pk232Unproto(const TransmissionState& transmission) {
  std::string line = "UNPROTO " + transmission.TxDestination;
  const std::string path = WithoutEmptyElements(transmission.TxPath);
  if (!Trim(path).empty()) line += " VIA " + path;
  return line;
}

std::initializer_list<const char*> Pk232DigiLines(Digipeater digi) {
  static const std::initializer_list<const char*> on = {"DIGIPEAT ON", "DFROM ALL",
                                                        "MYALIAS WIDE1-1"};
  static const std::initializer_list<const char*> off = {"DIGIPEAT OFF", "DFROM NONE",
                                                         "MYALIAS NONE"};
  return digi == Digipeater::On ? on : off;
}

// The modem is looked for at every speed that it may have been left at.
void AddPk232Search(ModemScript& script, const RadioState& radio, const std::string& device) {
  for (int baud : {9600, 4800, 2400, 1200}) {
    script.Open(device, baud);
    script.Send(kLeaveKiss, 0.2).Send(kCr, 0.2);
    script.Send("KISS OFF", 0.2).Send(kCr, 0.2);
    script.Send(kLeaveHost, 0.2).Send(kCr, 0.2);
    AddLine(script, "TB " + radio.TncBaud, 0.2);
    script.Send(std::string("RESTART") + kCr, 0.2).Wait(1.0).AwaitSent().Close();
  }
}

void AddPk232Parameters(ModemScript& script, const ModemSections& s) {
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
                               Pk232Unproto(s.Transmission)};
  for (const std::string& line : lines)
    AddLine(script, line, 0.2);
  for (const char* line : Pk232DigiLines(s.Radio.DigiOn))
    script.Send(std::string(line) + kCr, 0.2);
}

ModemScript Pk232Setup(const ModemSections& s) {
  const std::string device = ModemDevice(s.Radio);
  const int baud = ModemBaud(s.Radio);
  ModemScript script;
  // The modem's autobaud.
  script.Wait(5.0).Open(device, baud).Wait(1.0);
  for (int stars = 0; stars < 10; ++stars)
    script.Send("*", 0.5);
  script.Wait(1.0).AwaitSent().Close();
  AddPk232Search(script, s.Radio, device);
  // Packet mode.
  script.Open(device, baud).Wait(1.0);
  script.Send(std::string("PA") + kCr, 0.2).Send(kCr, 1.0).AwaitSent().Close();
  // Parameters, then what it prints is read until it has stopped answering.
  script.Open(device, baud);
  AddPk232Parameters(script, s);
  script.Send(kCr, 1.0).Drain().AwaitPrompt().Close();
  return script;
}

ModemScript Pk232TxSetup(const ModemSections& s) {
  const std::string call = CallText(s.Identity.MyCall, s.Identity.MySsid);
  ModemScript script;
  script.SendPumping(kBreak, 0.5);
  for (const std::string& line : {"MYCALL " + call, Pk232Unproto(s.Transmission)})
    script.SendPumping(WithoutControlCharacters(line) + kCr, 0.2);
  for (const char* line : Pk232DigiLines(s.Radio.DigiOn))
    script.Send(std::string(line) + kCr, 0.2);
  script.SendPumping(kCr, 1.0).AwaitSent().ReadAway().AwaitPrompt();
  script.SendPumping(std::string("K") + kCr, 0.2);
  return script;
}

// ---- SCS TNC --------------------------------------------------------------------------------

void AddEsc(ModemScript& script, const std::string& command, double wait_seconds,
            const char* end = kCr) {
  if (command.empty()) return;
  script.Send(kEsc + WithoutControlCharacters(command) + end, wait_seconds);
}

ModemScript ScsTncSetup(const ModemSections& s) {
  const std::string call = CallText(s.Identity.MyCall, s.Identity.MySsid);
  ModemScript script;
  script.Open(ModemDevice(s.Radio), ModemBaud(s.Radio)).Wait(1.0);
  AddEsc(script, "%R", 0.5);
  const std::string lines[] = {
      "E0",
      "Z1",
      "A1",
      "S0",
      "Y0",
      "C" + s.Transmission.TxDestination + " " + WithoutEmptyElements(s.Transmission.TxPath),
      "I" + call,
      "%AM" + call,
      "K0",
      "MU",
      "P255",
      "T25",
      "U0",
      "W0",
      "X1",
      "%A0",
      SpeedCommand("%B", s.Radio.BaudMode),
      "%X" + Str(s.Radio.TxAudioLevel),
      "%F 2000",
      "%T" + Str(s.Radio.TxAfc),
      SecondModeCommand(s.Radio),
      s.Radio.DigiOn == Digipeater::On ? "R1" : "R0",
      s.Radio.DigiOn == Digipeater::On ? "%AD3" : "%AD0",
      s.Radio.HfDualOn == 1 ? "%AU1" : "%AU0"};
  for (const std::string& line : lines)
    AddEsc(script, line, 0.1);
  script.Wait(1.0).Drain().Close();
  return script;
}

// Kept: the order is another one than at START.
ModemScript ScsTncTxSetup(const ModemSections& s) {
  const std::string call = CallText(s.Identity.MyCall, s.Identity.MySsid);
  ModemScript script;
  const std::string lines[] = {
      SpeedCommand("%B", s.Radio.BaudMode),
      "I" + call,
      "%AM" + call,
      "C" + s.Transmission.TxDestination + " " + WithoutEmptyElements(s.Transmission.TxPath),
      "%X" + Str(s.Radio.TxAudioLevel),
      SecondModeCommand(s.Radio),
      s.Radio.DigiOn == Digipeater::On ? "R1" : "R0",
      s.Radio.DigiOn == Digipeater::On ? "%AD3" : "%AD0",
      s.Radio.HfDualOn == 1 ? "%AU1" : "%AU0",
      "%F 2000"};
  for (const std::string& line : lines)
    AddEsc(script, line, 0.1);
  script.Wait(1.0).Drain();
  return script;
}

// ---- SCS PTC --------------------------------------------------------------------------------

ModemScript ScsPtcSetup(const ModemSections& s) {
  const std::string call = CallText(std::string(Trim(s.Identity.MyCall)), s.Identity.MySsid);
  constexpr double kPause = 0.3;
  ModemScript script;
  script.Wait(5.0).Open(ModemDevice(s.Radio), ModemBaud(s.Radio)).Wait(1.0);
  script.Send(kCrLf, 3.0);
  for (const std::string& line : {std::string("TERM 0"), "MYCALL " + call, std::string("PAC")})
    AddLine(script, line, kPause, kCrLf);
  const std::string level = Str(s.Radio.TxAudioLevel);
  const std::string lines[] = {
      "MYCALL " + call, "APRS 0", "PORT 1", "PRBOX 0", "USERS 0",
      // Three channels answer to the names of digipeaters. Kept: the number brings its own blank.
      "SETCHN " + Str(2), "MYCALL WIDE1-1", "SETCHN " + Str(3), "MYCALL RELAY", "SETCHN " + Str(4),
      "MYCALL ECHO", "SETCHN 1",
      "UNPROTO " + s.Transmission.TxDestination + " " + SpacedPath(s.Transmission.TxPath),
      "MONITOR 1", SpeedCommand("B ", s.Radio.BaudMode), "TXL A" + level, "TXL F" + level,
      "TXDELAY 1:300", s.Radio.DigiOn == Digipeater::On ? "DIGI ON" : "DIGI OFF", "MFI 128"};
  for (const std::string& line : lines)
    AddEsc(script, line, kPause, kCrLf);
  script.Wait(0.5).Drain().Close();
  return script;
}

// Kept: the lines end with CR alone here.
ModemScript ScsPtcTxSetup(const ModemSections& s) {
  const std::string level = Str(s.Radio.TxAudioLevel);
  ModemScript script;
  AddEsc(script, SpeedCommand("B ", s.Radio.BaudMode), 0.1);
  AddEsc(script, "TXL A" + level, 0.5);
  AddEsc(script, "TXL F" + level, 0.1);
  AddEsc(script, s.Radio.DigiOn == Digipeater::On ? "DIGI ON" : "DIGI OFF", 0.1);
  AddEsc(script,
         "UNPROTO " + s.Transmission.TxDestination + " " + SpacedPath(s.Transmission.TxPath), 0.2);
  script.Wait(1.0).Drain();
  return script;
}

}  // namespace

std::string CallText(const std::string& call, const std::string& ssid) {
  if (ssid.empty() || call.find('-') != std::string::npos) return call;
  return call + "-" + ssid;
}

std::string ModemDevice(const RadioState& radio) {
  return ModeOf(radio) == RadioMode::Pk232 ? WholeNumber(radio.TncPort)
                                           : ShortNumber(radio.ScsPort);
}

int ModemBaud(const RadioState& radio) {
  return BaudOf(ModeOf(radio) == RadioMode::Pk232 ? radio.TncBaud : radio.ScsBaud);
}

ModemScript TncSetupScript(const ModemSections& sections) {
  switch (ModeOf(sections.Radio)) {
    case RadioMode::Pk232:
      return Pk232Setup(sections);
    case RadioMode::ScsTnc:
      return ScsTncSetup(sections);
    case RadioMode::ScsPtc:
      return ScsPtcSetup(sections);
    default:
      return {};
  }
}

ModemScript PrepareModemScript(const ModemSections& sections) {
  constexpr int kReads = 11;
  const RadioMode mode = ModeOf(sections.Radio);
  ModemScript script;
  script.Close().Open(ModemDevice(sections.Radio), ModemBaud(sections.Radio));
  if (mode == RadioMode::Pk232) script.Send(std::string("ECHO ON") + kCr, 0.2);
  for (int reads = 0; reads < kReads; ++reads)
    script.ReadAway().Wait(0.1);
  return script;
}

ModemScript ConverseScript(const RadioState& radio) {
  ModemScript script;
  if (ModeOf(radio) != RadioMode::ScsTnc) script.Send(std::string("K") + kCr, 0.2);
  return script;
}

ModemScript OpenModemScript(const ModemSections& sections) {
  ModemScript script = PrepareModemScript(sections);
  return script.Append(ConverseScript(sections.Radio));
}

// The PTC takes ESC for the beginning of a command wherever it comes.
std::string WipeLineBytes(const RadioState& radio) {
  return ModeOf(radio) == RadioMode::ScsPtc ? std::string(kEsc) + kCr : kCancelLine;
}

ModemScript LeaveConverseScript(const RadioState& radio) {
  ModemScript script;
  switch (ModeOf(radio)) {
    case RadioMode::Pk232:
      script.Send(kBreak, 0.5);
      break;
    case RadioMode::ScsTnc:
      script.Send(kCancelLine, 0.2);
      break;
    case RadioMode::ScsPtc:
      AddEsc(script, "Q", 0.5);
      break;
    default:
      break;
  }
  return script;
}

ModemScript ApplyTxSetupScript(const ModemSections& sections) {
  switch (ModeOf(sections.Radio)) {
    case RadioMode::Pk232:
      return Pk232TxSetup(sections);
    case RadioMode::ScsTnc:
      return ScsTncTxSetup(sections);
    case RadioMode::ScsPtc:
      return ScsPtcTxSetup(sections);
    default:
      return {};
  }
}

ModemScript LeaveModemScript(const RadioState& radio) {
  ModemScript script;
  switch (ModeOf(radio)) {
    case RadioMode::Pk232:
      script.SendPumping(kBreak, 0.2);
      break;
    case RadioMode::ScsTnc:
      script.SendPumping(std::string(kEsc) + "%ZL" + kCr, 0.2);
      break;
    case RadioMode::ScsPtc:
      AddEsc(script, "Q", 0.5);
      AddEsc(script, "RESET", 0.5);
      break;
    default:
      break;
  }
  // In every mode the window system is served once more.
  return script.WaitPumping(0.2);
}

ModemScript SecondModeScript(bool on) {
  ModemScript script;
  AddEsc(script, on ? "%AU1" : "%AU0", 0.1);
  return script;
}

}  // namespace zepril
