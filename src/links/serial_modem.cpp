#include "links/serial_modem.h"

#include "links/agw_link.h"

namespace zepril {

SerialModem::SerialModem(const IdentityState& identity, RadioState& radio,
                         const TransmissionState& transmission, SerialModemTools tools)
    : identity_(identity), radio_(radio), transmission_(transmission), tools_(tools) {}

void SerialModem::Open() {
  tools_.Port.DataArrived = [this] {
    radio_.LastDataSeconds = tools_.LocalClock.MonotonicSeconds();
    if (DataArrived) DataArrived();
  };
  tools_.ReopenTimer.Elapsed = [this] { ReopenElapsed(); };
  Run(OpenModemScript({identity_, radio_, transmission_}));
  // Who was away at START too has not heard under which call it sends.
  untold_ = !tools_.Port.IsOpen();
  tools_.ReopenTimer.Arm(kReopenMilliseconds);
}

void SerialModem::Leave() {
  tools_.ReopenTimer.Stop();
  Run(LeaveModemScript(radio_));
}

void SerialModem::Program(Progress& progress) {
  // A conversation that is under way is not broken into; what it leaves untold follows it.
  untold_ = busy_;
  if (!busy_) Tell([&progress](double share) { progress.Report("TX SETUP", share); });
  progress.Done();
}

void SerialModem::Tell(const ScriptProgress& progress) {
  untold_ = false;
  Run(ApplyTxSetupScript({identity_, radio_, transmission_}), progress);
  // Lost before its end: a modem under the old call and path must not stay so.
  if (!tools_.Port.IsOpen()) untold_ = true;
}

void SerialModem::ReopenElapsed() {
  if (busy_ || tools_.Port.IsOpen() || (MayReopen && !MayReopen())) return;
  // The waits of the opening only for a device that is there.
  if (!tools_.Port.Open(ModemDevice(radio_), ModemBaud(radio_))) return;
  Run(LeaveConverseScript(radio_));
  Run(OpenModemScript({identity_, radio_, transmission_}));
  while (untold_ && tools_.Port.IsOpen())
    Tell();
  if (Reopened) Reopened();
}

void SerialModem::Run(const ModemScript& script, const ScriptProgress& progress) {
  busy_ = true;
  RunModemScript(script, tools_.Port, tools_.LocalClock, progress);
  busy_ = false;
}

}  // namespace zepril
