// Takes the modem's settings from the start panel and runs its set-up sequence.
#include "station/start/modem_set_up.h"

#include <algorithm>

#include "config/modem_run_file.h"
#include "links/modem_script.h"
#include "links/setup_sequences.h"
#include "links/telling_clock.h"

namespace zepril {
namespace {

// False when the modem has not got it.
bool LeaveConverse(const RadioState& radio, int baud, SerialPort& port, Clock& clock) {
  ModemScript script;
  script.Open(ModemDevice(radio), baud).Append(LeaveConverseScript(radio)).AwaitSent().Close();
  return RunModemScript(script, port, clock);
}

}  // namespace

void LeaveConverseOfLastRun(const StartPanelSettings& settings, Files& files,
                            const std::string& program_folder, SerialPort& port, Clock& clock) {
  const RadioState& radio = settings.Radio;
  const ModemRun run{radio.RadioMode, 0, port.LastingName(ModemDevice(radio))};
  const auto speed = SpeedOfModemRun(files, program_folder, run);
  if (speed && LeaveConverse(radio, *speed, port, clock)) EndModemRun(files, program_folder, run);
}

bool TncSetup(const StartPanelSettings& settings, SerialPort& port, Clock& clock,
              const std::function<void(const SetUpProgress&)>& told) {
  // Listening on two modes is switched on by hand in each run: in these settings it is off.
  const ModemScript script =
      TncSetupScript({settings.Identity, settings.Radio, settings.Transmission});
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
