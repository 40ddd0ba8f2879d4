// The main window's reader and writers of `ZEPRIL.INI`.
#pragma once

#include <array>
#include <string>

#include "core/runtime_state.h"
#include "platform/files.h"

namespace zepril {

// Sets the fallback values of the keys, then reads the file; derives the on-air call, the label of
// the radio mode and the folders. A file that can't be read leaves the fallback values.
void ReadConfigForMainWindow(Files& files, RuntimeState& state);

// Rewrites the file whole with 73 keys. The caller enables `Timer1` afterwards. False, and an
// unchanged file, when it can't be written.
bool WriteConfigFromMainWindow(Files& files, RuntimeState& state);

// What the merge at exit puts into the file.
struct LastValues {
  std::array<std::string, 6> CurrentMaps;  // box texts of M5000 to M0002, "M0050TOPO"
  double CentreNorthKm = 0.0;
  double CentreEastKm = 0.0;
  double OwnNorthKm = 0.0;
  double OwnEastKm = 0.0;
};

// Puts the last maps, centre and own position into the file and keeps every other line and their
// order. A file of more than 100 lines, or one that would grow beyond that, stays as it is: false.
bool MergeConfigAtExit(Files& files, const std::string& program_folder, const LastValues& values);

}  // namespace zepril
