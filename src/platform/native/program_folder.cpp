// Chooses the folder, and copies into it the shipped files that it lacks.
#include "platform/native/program_folder.h"

#include <unistd.h>

namespace zepril {
namespace {

constexpr const char* kOwnFiles[] = {"ZEPRSYM0.BMP", "ZEPRSYM1.BMP", "SERVICES.TXT", "ALARM.WAV"};
constexpr std::size_t kLargestOwnFile = 16u << 20;

bool HasData(const std::string& folder) {
  return ::access((folder + "/" + kOwnFiles[0]).c_str(), R_OK) == 0;
}

}  // namespace

ProgramPlaces FindProgramPlaces(const std::string& executable_folder,
                                const std::string& build_data_folder) {
  if (HasData(executable_folder)) {
    const bool writable = ::access(executable_folder.c_str(), W_OK) == 0;
    return {writable ? executable_folder : std::string("C:\\ZEPRIL"), executable_folder};
  }
  return {"C:\\ZEPRIL", build_data_folder};
}

bool FillProgramFolder(NativeFiles& files, const ProgramPlaces& places) {
  bool whole = files.MakeFolder(places.ProgramFolder);
  for (const char* name : kOwnFiles) {
    const std::string target = places.ProgramFolder + "\\" + name;
    if (files.Exists(target)) continue;
    const auto bytes = files.ReadAll(places.DataFolder + "/" + name, kLargestOwnFile);
    whole = bytes && files.Write(target, *bytes) && whole;
  }
  return whole;
}

}  // namespace zepril
