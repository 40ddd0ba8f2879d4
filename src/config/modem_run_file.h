// `MODEM.RUN` in the program folder: which serial modems a run has brought to converse and not led
// back. There a line that is meant as a command goes on the air; the file outlives a crash, so that
// the next START leads the modem back before it says anything else.
//
// A line each: radio interface, line speed, name of the device.
//   read:    "1 9600 /dev/serial/by-id/usb-FTDI_A1-if00"
//   refused: "1 9600", "x 9600 /dev/ttyUSB0", "1 0 /dev/ttyUSB0", what holds control characters
#pragma once

#include <optional>
#include <string>

#include "platform/files.h"

namespace zepril {

struct ModemRun {
  int RadioMode = 0;
  int Baud = 0;
  std::string Device;  // by the name that stays with it
};

// Modems beyond this many push the oldest out.
inline constexpr std::size_t kMostModemRuns = 20;

// The modem is about to be brought to converse. False when the file can't be written.
bool NoteModemRun(Files& files, const std::string& program_folder, const ModemRun& run);
// It is led back: the file goes with its last line.
void EndModemRun(Files& files, const std::string& program_folder, const ModemRun& run);
// The line speed that the modem of this interface and device had; nothing when it was led back.
std::optional<int> SpeedOfModemRun(const Files& files, const std::string& program_folder,
                                   const ModemRun& run);

}  // namespace zepril
