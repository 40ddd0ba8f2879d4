// What the SCS TNC is told, at START and when TX SETUP is confirmed.
#include "links/scs_tnc.h"

#include "core/sent_text.h"
#include "core/text_fields.h"
#include "links/modem_call.h"
#include "links/modem_lines.h"

namespace zepril {
namespace {

// The two modes of an HF pair take turns; any other second mode is named.
std::string SecondModeCommand(const RadioState& radio) {
  const bool pair = (radio.BaudMode == "300R" && radio.CrossMode == "300") ||
                    (radio.BaudMode == "300" && radio.CrossMode == "R300");
  return pair ? "%AGH" : "%AG " + radio.CrossMode;
}

ModemScript SetUp(const ModemSections& s) {
  const std::string call = CallText(s.Identity.MyCall, s.Identity.MySsid);
  ModemScript script;
  script.Open(ScsDevice(s.Radio), BaudOf(ScsSpeed(s.Radio))).Wait(1.0);
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
      ScsSpeedCommand("%B", s.Radio.BaudMode),
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
ModemScript ApplyTxSetup(const ModemSections& s) {
  const std::string call = CallText(s.Identity.MyCall, s.Identity.MySsid);
  ModemScript script;
  const std::string lines[] = {
      ScsSpeedCommand("%B", s.Radio.BaudMode),
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

ModemScript Leave() {
  ModemScript script;
  return script.SendPumping("\x1B%ZL\r", 0.2);
}

ModemScript OutOfConverse() {
  ModemScript script;
  return script.Send("\x18", 0.2);
}

// "* I QX7KB-10 *" and "* QX7KB-10 *", but not "* OK *" nor words of another kind.
std::optional<std::string> CallOfTnc(std::string_view line) {
  if (line.size() < 2 || line.front() != '*' || line.back() != '*') return std::nullopt;
  const auto words = WordsOf(line.substr(1, line.size() - 2));
  const bool named = words.size() == 2 && words.front() == "I";
  if ((words.size() != 1 && !named) || words.back() == "OK") return std::nullopt;
  return std::string(words.back());
}

ModemScript SecondMode(bool on) {
  ModemScript script;
  AddEsc(script, on ? "%AU1" : "%AU0", 0.1);
  return script;
}

}  // namespace

const ModemKind kScsTnc{
    .Dialect = "SCS TNC",
    .ReadsUntilSilent = true,
    .Device = ScsDevice,
    .Speed = ScsSpeed,
    .SetUp = SetUp,
    .ApplyTxSetup = ApplyTxSetup,
    .Leave = Leave,
    .AtOpening = "",
    .IntoConverse = "",
    .OutOfConverse = OutOfConverse,
    .WipeLine = "\x18",
    .Call = {"", "\x1BI\r", ""},
    .CallIn = CallOfTnc,
    .AnswersWithEmptyLines = false,
    .KeysThatEndALine = "\r\x18",
    .KeysThatBeginACommand = "",
    .SecondMode = SecondMode,
};

}  // namespace zepril
