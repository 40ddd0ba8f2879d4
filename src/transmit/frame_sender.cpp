// The way of a text by radio interface: either engine, or the line of a modem.
#include "transmit/frame_sender.h"

#include <string>

#include "core/baud_mode.h"
#include "core/sent_text.h"
#include "links/setup_sequences.h"

namespace zepril {

Delivery FrameSender::SendFrame(std::string_view text, SecondMode second_mode) {
  Delivery delivery = Delivery::ModemBusy;
  if (!HeldBack || !HeldBack()) {
    sending_ = true;
    if (Leaving) Leaving();
    delivery = HandOver(text, second_mode);
    // Without a radio nothing goes out, and nothing is waited for.
    if (delivery != Delivery::NoRadio) tools_.LocalClock.Wait(kPauseSeconds);
    sending_ = false;
  } else if (IsSerialModem(ModeOf(radio_)) && !tools_.Modem.IsOpen()) {
    delivery = Delivery::LinkLost;
  }
  if (Left) Left(delivery);
  return delivery;
}

Delivery FrameSender::HandOver(std::string_view text, SecondMode second_mode) {
  const auto told = [](bool sent) { return sent ? Delivery::Sent : Delivery::LinkLost; };
  switch (ModeOf(radio_)) {
    case RadioMode::AgwLocal:
      return told(ToLocalEngine(text));
    case RadioMode::AgwRemote:
      return told(ToRemoteEngine(text));
    case RadioMode::ScsTnc:
      if (radio_.HfDualOn == 1 && second_mode == SecondMode::SwitchOff) {
        RunModemScript(SecondModeScript(false), tools_.Modem, tools_.LocalClock);
      }
      return told(ToModem(text));
    case RadioMode::Pk232:
    case RadioMode::ScsPtc:
      return told(ToModem(text));
    default:
      return Delivery::NoRadio;
  }
}

bool FrameSender::ToLocalEngine(std::string_view text) {
  return tools_.LocalEngine.AGWPutData(transmission_.TxDestination + "," + transmission_.TxPath,
                                       text);
}

bool FrameSender::ToRemoteEngine(std::string_view text) {
  transmission_.AgwTxText = text;
  return tools_.RemoteEngine.SendAgwUnproto();
}

// Destination and path are the modem's own settings.
bool FrameSender::ToModem(std::string_view text) {
  if (!tools_.Modem.IsOpen()) return false;
  // A modem takes some of these for the way back to its commands; a text that was heard may hold
  // any.
  tools_.Modem.Write(WithoutControlCharacters(text) + "\r");
  if (ModemFrameWritten) ModemFrameWritten();
  return tools_.Modem.IsOpen();
}

}  // namespace zepril
