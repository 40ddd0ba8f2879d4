// Takes the modem's settings from the start panel and runs its set-up sequence.
#include "station/modem_set_up.h"

#include <algorithm>

#include "config/main_window_settings.h"
#include "links/modem_script.h"
#include "links/setup_sequences.h"
#include "links/telling_clock.h"

namespace zepril {
namespace {

IdentityState IdentityOf(const StartPanelSettings& settings) {
  IdentityState identity;
  identity.MyCall = settings.MyCall;
  identity.MySsid = settings.MySsid;
  identity.MyCallFull = FullCall(settings.MyCall, settings.MySsid);
  return identity;
}

RadioState RadioOf(const StartPanelSettings& settings) {
  RadioState radio;
  radio.RadioMode = settings.RadioMode;
  radio.TncPort = settings.TncPort;
  radio.TncBaud = settings.TncBaud;
  radio.ScsPort = settings.ScsPort;
  radio.ScsBaud = settings.ScsBaud;
  radio.BaudMode = settings.BaudMode;
  radio.CrossMode = settings.CrossMode;
  radio.TxAudioLevel = settings.TxAudioLevel;
  radio.TxAfc = settings.TxAfc;
  radio.DigiOn = settings.DigiOn;
  // Listening on two modes is switched on by hand in each run: it is off here.
  return radio;
}

TransmissionState TransmissionOf(const StartPanelSettings& settings) {
  TransmissionState transmission;
  transmission.TxDestination = settings.TxDestination;
  transmission.TxPath = settings.TxPath;
  return transmission;
}

}  // namespace

bool LeaveConverse(const StartPanelSettings& settings, int baud, SerialPort& port, Clock& clock) {
  const RadioState radio = RadioOf(settings);
  ModemScript script;
  script.Open(ModemDevice(radio), baud).Append(LeaveConverseScript(radio)).AwaitSent().Close();
  return RunModemScript(script, port, clock);
}

std::string ModemDevice(const StartPanelSettings& settings) {
  return ModemDevice(RadioOf(settings));
}

bool TncSetup(const StartPanelSettings& settings, SerialPort& port, Clock& clock,
              const std::function<void(const SetUpProgress&)>& told) {
  const IdentityState identity = IdentityOf(settings);
  const RadioState radio = RadioOf(settings);
  const TransmissionState transmission = TransmissionOf(settings);
  const ModemScript script = TncSetupScript({identity, radio, transmission});
  if (script.Steps().empty()) return true;
  const double whole = script.Seconds();
  const double begin = clock.MonotonicSeconds();
  TellingClock telling(clock, [&] {
    const double gone = std::min(clock.MonotonicSeconds() - begin, whole);
    told({gone / whole, whole - gone, port.IsOpen() ? std::string() : port.Trouble()});
  });
  return RunModemScript(script, port, telling);
}

}  // namespace zepril
