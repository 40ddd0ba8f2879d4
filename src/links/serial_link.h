// A serial modem as a radio interface, of whatever kind. A frame is its text and a carriage return:
// destination and path are the modem's own settings.
#pragma once

#include "core/state/radio.h"
#include "core/state/reception.h"
#include "links/radio_link.h"
#include "links/serial_modem.h"
#include "platform/clock.h"
#include "platform/serial_port.h"

namespace zepril {

class SerialLink final : public RadioLink {
 public:
  // Takes the modem's events of loss and return.
  SerialLink(const RadioState& radio, ReceptionState& reception, SerialModem& modem,
             SerialPort& port, Clock& clock);

  bool Open() override;
  void Leave() override { modem_.Leave(); }
  bool IsUp() const override { return modem_.LinkIsUp(); }
  std::string Trouble() const override { return modem_.Trouble(); }
  std::string LostNotice() const override { return modem_.Trouble(); }
  bool MaySend() override { return modem_.MaySend(); }
  // A control character of the text becomes a blank: the modem would take it for a command.
  bool Send(std::string_view text, SecondMode second_mode) override;
  bool HasUnsent() const override { return port_.IsOpen() && port_.BytesToWrite() > 0; }
  void DropUnsent() override { modem_.DropUnsent(); }
  void TakeNewSettings(Progress& progress) override;
  bool HasTerminal() const override { return true; }

 private:
  const RadioState& radio_;
  ReceptionState& reception_;
  SerialModem& modem_;
  SerialPort& port_;
  Clock& clock_;
};

}  // namespace zepril
