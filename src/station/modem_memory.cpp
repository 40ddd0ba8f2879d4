// Joins the modem's memory to the file that holds it.
#include "station/modem_memory.h"

#include "config/modem_run_file.h"
#include "links/setup_sequences.h"

namespace zepril {

ConverseMemory MemoryInFile(Files& files, const IdentityState& identity, const RadioState& radio,
                            const SerialPort& port) {
  const auto now = [&radio, &port] {
    return ModemRun{radio.RadioMode, ModemBaud(radio), port.LastingName(ModemDevice(radio))};
  };
  const std::string& folder = identity.ProgramFolder;
  return {[&files, &folder, now] { NoteModemRun(files, folder, now()); },
          [&files, &folder, now] { EndModemRun(files, folder, now()); },
          [&files, &folder, now] { return SpeedOfModemRun(files, folder, now()); }};
}

}  // namespace zepril
