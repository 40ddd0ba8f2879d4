// What the SCS PTC is told, at START and when TX SETUP is confirmed.
#include "links/scs_ptc.h"

#include <algorithm>

#include "core/sent_text.h"
#include "core/text_fields.h"
#include "links/modem_call.h"
#include "links/modem_lines.h"

namespace zepril {
namespace {

constexpr const char* kCrLf = "\r\n";

std::string SpacedPath(const std::string& list) {
  std::string path = WithoutEmptyElements(list);
  std::replace(path.begin(), path.end(), ',', ' ');
  return path;
}

ModemScript SetUp(const ModemSections& s) {
  const std::string call = CallText(std::string(Trim(s.Identity.MyCall)), s.Identity.MySsid);
  constexpr double kPause = 0.3;
  ModemScript script;
  script.Wait(5.0).Open(ScsDevice(s.Radio), BaudOf(ScsSpeed(s.Radio))).Wait(1.0);
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
      "MONITOR 1", ScsSpeedCommand("B ", s.Radio.BaudMode), "TXL A" + level, "TXL F" + level,
      "TXDELAY 1:300", s.Radio.DigiOn == Digipeater::On ? "DIGI ON" : "DIGI OFF", "MFI 128"};
  for (const std::string& line : lines)
    AddEsc(script, line, kPause, kCrLf);
  script.Wait(0.5).Drain().Close();
  return script;
}

// Kept: the lines end with CR alone here.
ModemScript ApplyTxSetup(const ModemSections& s) {
  const std::string level = Str(s.Radio.TxAudioLevel);
  ModemScript script;
  AddEsc(script, ScsSpeedCommand("B ", s.Radio.BaudMode), 0.1);
  AddEsc(script, "TXL A" + level, 0.5);
  AddEsc(script, "TXL F" + level, 0.1);
  AddEsc(script, s.Radio.DigiOn == Digipeater::On ? "DIGI ON" : "DIGI OFF", 0.1);
  AddEsc(script,
         "UNPROTO " + s.Transmission.TxDestination + " " + SpacedPath(s.Transmission.TxPath), 0.2);
  script.Wait(1.0).Drain();
  return script;
}

ModemScript Leave() {
  ModemScript script;
  AddEsc(script, "Q", 0.5);
  AddEsc(script, "RESET", 0.5);
  return script;
}

ModemScript OutOfConverse() {
  ModemScript script;
  AddEsc(script, "Q", 0.5);
  return script;
}

}  // namespace

// It takes ESC for the beginning of a command wherever it comes.
const ModemKind kScsPtc{
    .Dialect = "SCS PTC",
    .ReadsUntilSilent = true,
    .Device = ScsDevice,
    .Speed = ScsSpeed,
    .SetUp = SetUp,
    .ApplyTxSetup = ApplyTxSetup,
    .Leave = Leave,
    .AtOpening = "",
    .IntoConverse = "K\r",
    .OutOfConverse = OutOfConverse,
    .WipeLine = "\x1B\r",
    .Call = {"", "\x1BMYCALL\r\n", ""},
    .CallIn = CallOfMyCall,
    .AnswersWithEmptyLines = false,
    .KeysThatEndALine = "\r",
    .KeysThatBeginACommand = "\x1B",
    .SecondMode = nullptr,
};

}  // namespace zepril
