// Paths and line forms of the logs, and names that can't leave the folder.
#include "reception/station_logs.h"

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

bool IsRefusedInFileName(char c) {
  constexpr std::string_view kRefused = R"(\/:*?"<>|)";
  return Asc(c) < 32 || kRefused.find(c) != std::string_view::npos;
}

}  // namespace

constinit const std::string_view StationLogs::kHeardPosition = "GLL     : ";
constinit const std::string_view StationLogs::kInternetPosition = "QTH GLL : ";

std::string StationLogs::LogPath(std::string_view name) const {
  std::string path = identity_.MapSystemFolder;
  path += R"(\LOG\)";
  path += name;
  return path;
}

bool StationLogs::AppendRaw(std::string_view collected) {
  return Append("_LOGRAW_.TXT", collected);
}

bool StationLogs::Append(std::string_view name, std::string_view text) {
  const std::string path = LogPath(name);
  if (files_.Append(path, text)) return true;
  failed_path_ = path;
  return false;
}

std::string ShortLogLine(const StationRecord& record) {
  std::string line(record.Columns(1, 58));
  line += ' ';
  line += record.Columns(90, 120);
  return line;
}

bool StationLogs::AppendRecords(std::span<const StationRecord> records) {
  lines_.clear();
  for (const StationRecord& record : records) {
    lines_ += ShortLogLine(record);
    lines_ += kLineEnd;
  }
  const bool short_written = Append("_LOG_.TXT", lines_);
  lines_.clear();
  for (const StationRecord& record : records) {
    lines_ += record.Text();
    lines_ += kLineEnd;
  }
  const bool long_written = Append("_LOGL_.TXT", lines_);
  return short_written && long_written;
}

bool StationLogs::AppendEmergency(const AlarmState& alarm, std::string_view position_label) {
  const std::string rule(60, '-');
  const std::string zone(Mid(identity_.MapZoneName, 2));
  std::string block = rule;
  const auto add = [&block](std::string_view label, std::string_view text) {
    block += kLineEnd;
    block += label;
    block += text;
  };
  add("STATION : ", alarm.AlarmCall);
  add("TIME    : ", alarm.AlarmTime);
  add(position_label, alarm.AlarmLat + " " + alarm.AlarmLon);
  add("UTM(Z" + zone + "): ", alarm.AlarmNorth + " " + alarm.AlarmEast);
  add("INFO    : ", alarm.AlarmInfo);
  add(rule, kLineEnd);
  return Append("_ALARM_.TXT", block);
}

std::string HistoryPath(const IdentityState& identity, std::string_view call) {
  std::string name(Trim(call));
  for (char& c : name) {
    if (IsRefusedInFileName(c)) c = '-';
  }
  if (name.starts_with('_')) name.front() = '-';
  return identity.MapSystemFolder + R"(\LOG\)" + name + ".TXT";
}

}  // namespace zepril
