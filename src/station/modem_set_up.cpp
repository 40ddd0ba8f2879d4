#include "station/modem_set_up.h"

#include <algorithm>
#include <utility>

#include "config/main_window_settings.h"
#include "links/modem_script.h"
#include "links/setup_sequences.h"

namespace zepril {
namespace {

constexpr double kLongestPiece = 0.25;  // seconds between two tellings

// The program's clock, which tells before each wait and cuts long ones so that it can tell in
// between. What it waits is the same.
class TellingClock final : public Clock {
 public:
  TellingClock(Clock& clock, std::function<void()> tell) : clock_(clock), tell_(std::move(tell)) {}

  LocalTime Now() const override { return clock_.Now(); }
  double SecondsSinceMidnight() const override { return clock_.SecondsSinceMidnight(); }
  double MonotonicSeconds() const override { return clock_.MonotonicSeconds(); }
  void Wait(double seconds) override {
    for (; seconds > 2.0 * kLongestPiece; seconds -= kLongestPiece) {
      tell_();
      clock_.Wait(kLongestPiece);
    }
    tell_();
    clock_.Wait(seconds);
  }
  void WaitPumping(double seconds) override { clock_.WaitPumping(seconds); }
  void HandOver() override { clock_.HandOver(); }
  std::int64_t LoopsPerSecond() override { return clock_.LoopsPerSecond(); }

 private:
  Clock& clock_;
  std::function<void()> tell_;
};

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

void TncSetup(const StartPanelSettings& settings, SerialPort& port, Clock& clock,
              const std::function<void(const SetUpProgress&)>& told) {
  const IdentityState identity = IdentityOf(settings);
  const RadioState radio = RadioOf(settings);
  const TransmissionState transmission = TransmissionOf(settings);
  const ModemScript script = TncSetupScript({identity, radio, transmission});
  if (script.Steps().empty()) return;
  const double whole = script.Seconds();
  const double begin = clock.MonotonicSeconds();
  TellingClock telling(clock, [&] {
    const double gone = std::min(clock.MonotonicSeconds() - begin, whole);
    told({gone / whole, whole - gone, port.IsOpen() ? std::string() : port.Trouble()});
  });
  RunModemScript(script, port, telling);
}

}  // namespace zepril
