#include "transmit/frame_sender.h"

#include <algorithm>
#include <string>

#include "links/setup_sequences.h"
#include "platform/code_page.h"

namespace zepril {
void FrameSender::SendFrame(std::string_view text, SecondMode second_mode) {
  if (HeldBack && HeldBack()) return;
  const auto mode = static_cast<RadioMode>(radio_.RadioMode);
  switch (mode) {
    case RadioMode::AgwLocal:
      ToLocalEngine(text);
      break;
    case RadioMode::AgwRemote:
      ToRemoteEngine(text);
      break;
    case RadioMode::ScsTnc:
      if (radio_.HfDualOn == 1 && second_mode == SecondMode::SwitchOff) {
        RunModemScript(SecondModeScript(false), tools_.Modem, tools_.LocalClock);
      }
      ToModem(text);
      break;
    case RadioMode::Pk232:
    case RadioMode::ScsPtc:
      ToModem(text);
      break;
    default:
      return;  // without a radio nothing goes out, and nothing is waited for
  }
  tools_.LocalClock.Wait(kPauseSeconds);
}

void FrameSender::ToLocalEngine(std::string_view text) {
  tools_.LocalEngine.AGWPutData(transmission_.TxDestination + "," + transmission_.TxPath, text);
}

void FrameSender::ToRemoteEngine(std::string_view text) {
  transmission_.AgwTxText = text;
  tools_.RemoteEngine.SendAgwUnproto();
}

// Destination and path are the modem's own settings.
void FrameSender::ToModem(std::string_view text) {
  if (!tools_.Modem.IsOpen()) return;
  // A modem takes some of these for the way back to its commands; a text that was heard may hold
  // any.
  std::string line(text);
  std::replace_if(line.begin(), line.end(), IsControlCharacter, ' ');
  tools_.Modem.Write(line + "\r");
}

}  // namespace zepril
