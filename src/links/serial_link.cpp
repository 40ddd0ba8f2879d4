// Writes frames to the modem's line, and forgets half a line of before.
#include "links/serial_link.h"

#include "core/radio_rules.h"
#include "core/sent_text.h"
#include "links/modem_script.h"
#include "links/setup_sequences.h"

namespace zepril {

SerialLink::SerialLink(const RadioState& radio, ReceptionState& reception, SerialModem& modem,
                       SerialPort& port, Clock& clock)
    : radio_(radio), reception_(reception), modem_(modem), port_(port), clock_(clock) {
  modem_.HeardMeanwhile = [this](const std::string& text) { reception_.ModemText += text; };
  modem_.GivenUp = [this] {
    if (Changed) Changed();
  };
  modem_.Reopened = [this] {
    if (Changed) Changed();
    reception_.ForgetModemText();
  };
}

bool SerialLink::Open() {
  modem_.Open();
  return true;
}

bool SerialLink::Send(std::string_view text, SecondMode second_mode) {
  if (second_mode == SecondMode::SwitchOff && ListensOnTwoModes(radio_)) {
    RunModemScript(SecondModeScript(radio_, false), port_, clock_);
  }
  if (!port_.IsOpen()) return false;
  // A modem takes some of these for the way back to its commands; a text that was heard may hold
  // any.
  port_.Write(WithoutControlCharacters(text) + "\r");
  modem_.FrameWritten();
  return port_.IsOpen();
}

void SerialLink::TakeNewSettings(Progress& progress) {
  modem_.Program(progress);
  reception_.ForgetModemText();
}

}  // namespace zepril
