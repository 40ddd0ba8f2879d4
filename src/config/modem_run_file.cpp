// Reads and rewrites the lines of `MODEM.RUN`; it goes with the last modem that was led back.
#include "config/modem_run_file.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "core/text_fields.h"
#include "platform/code_page.h"

namespace zepril {
namespace {

constexpr std::size_t kLongestFile = 65536;   // bytes
constexpr std::size_t kLongestDevice = 1000;  // characters
constexpr int kHighestMode = 6;
constexpr int kMostBaud = 4'000'000;

std::string RunPath(const std::string& program_folder) {
  return program_folder + "\\MODEM.RUN";
}

bool MayBeKept(const ModemRun& run) {
  const std::string& device = run.Device;
  return run.Baud > 0 && !device.empty() && device.size() <= kLongestDevice &&
         std::none_of(device.begin(), device.end(), IsControlCharacter);
}

// Digits alone, up to the next blank, which goes with them.
std::optional<int> TakeNumber(std::string_view& line, int highest) {
  const std::size_t blank = line.find(' ');
  if (blank == std::string_view::npos) return std::nullopt;
  const std::string_view digits = line.substr(0, blank);
  line.remove_prefix(blank + 1);
  if (digits.empty() || !std::all_of(digits.begin(), digits.end(), IsDigit)) return std::nullopt;
  return WholeVal(digits, 0, highest);
}

std::optional<ModemRun> ReadRun(std::string_view line) {
  const auto mode = TakeNumber(line, kHighestMode);
  if (!mode) return std::nullopt;
  const auto baud = TakeNumber(line, kMostBaud);
  if (!baud) return std::nullopt;
  ModemRun run{*mode, *baud, std::string(line)};
  if (!MayBeKept(run)) return std::nullopt;
  return run;
}

std::vector<ModemRun> ReadRuns(const Files& files, const std::string& program_folder) {
  std::vector<ModemRun> runs;
  const auto text = files.ReadAll(RunPath(program_folder), kLongestFile);
  if (!text) return runs;
  for (const std::string_view line : Split(*text, '\n')) {
    const auto run = ReadRun(line.substr(0, line.find('\r')));
    if (run) runs.push_back(*run);
  }
  return runs;
}

bool SameModem(const ModemRun& a, const ModemRun& b) {
  return a.RadioMode == b.RadioMode && a.Device == b.Device;
}

bool WriteRuns(Files& files, const std::string& program_folder, const std::vector<ModemRun>& runs) {
  std::string text;
  for (const ModemRun& run : runs)
    text += WholeNumber(run.RadioMode) + ' ' + WholeNumber(run.Baud) + ' ' + run.Device + "\r\n";
  return files.Replace(RunPath(program_folder), text);
}

}  // namespace

bool NoteModemRun(Files& files, const std::string& program_folder, const ModemRun& run) {
  if (!MayBeKept(run)) return false;
  std::vector<ModemRun> runs = ReadRuns(files, program_folder);
  std::erase_if(runs, [&](const ModemRun& other) { return SameModem(other, run); });
  runs.push_back(run);
  if (runs.size() > kMostModemRuns) {
    runs.erase(runs.begin(), runs.end() - static_cast<std::ptrdiff_t>(kMostModemRuns));
  }
  return WriteRuns(files, program_folder, runs);
}

void EndModemRun(Files& files, const std::string& program_folder, const ModemRun& run) {
  std::vector<ModemRun> runs = ReadRuns(files, program_folder);
  if (std::erase_if(runs, [&](const ModemRun& other) { return SameModem(other, run); }) == 0) {
    return;
  }
  if (runs.empty()) {
    files.Remove(RunPath(program_folder));
  } else {
    WriteRuns(files, program_folder, runs);
  }
}

std::optional<int> SpeedOfModemRun(const Files& files, const std::string& program_folder,
                                   const ModemRun& run) {
  for (const ModemRun& left : ReadRuns(files, program_folder))
    if (SameModem(left, run)) return left.Baud;
  return std::nullopt;
}

}  // namespace zepril
