// Where the program lives: the folder of its configuration and logs, and where its data comes from.
#pragma once

#include <string>

#include "platform/native/native_files.h"

namespace zepril {

struct ProgramPlaces {
  std::string ProgramFolder;  // as the program writes paths
  std::string DataFolder;     // native: fonts, symbol sheets, map data
};

// The program folder is the one that the program runs from when that can be written to and holds
// the program's data; otherwise `C:\ZEPRIL`. `executable_folder` and `build_data_folder` (data of
// the source tree, for a program started where it was built) are native paths.
ProgramPlaces FindProgramPlaces(const std::string& executable_folder,
                                const std::string& build_data_folder);

// First run: puts what the program folder lacks of its own files (symbol sheets, service list)
// there. Never overwrites. False when something could not be copied.
bool FillProgramFolder(NativeFiles& files, const ProgramPlaces& places);

}  // namespace zepril
