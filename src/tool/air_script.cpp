// Reads times and packets line by line, in both of their forms.
#include "tool/air_script.h"

#include <algorithm>
#include <optional>

#include "core/text_fields.h"
#include "links/agw_frame.h"

namespace zepril {
namespace {

constexpr double kSecondsBetweenUntimed = 1.0;
constexpr double kLatest = 1e6;  // seconds, well over a week

// Takes one line off the front of `text`, without its LF and the CRs before it.
std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  while (line.ends_with('\r'))
    line.remove_suffix(1);
  return line;
}

// Takes "@4.2 " off the front of `line`.
std::optional<double> TakeTime(std::string_view& line) {
  const std::size_t blank = line.find(' ');
  if (!line.starts_with('@') || blank == std::string_view::npos) return std::nullopt;
  const std::string_view number = line.substr(1, blank - 1);
  if (number.empty() || !IsNumericField(number)) return std::nullopt;
  line.remove_prefix(blank + 1);
  return std::min(Val(number), kLatest);
}

// "1:Fm " with a port of one digit.
bool IsMonitorHeader(std::string_view line) {
  return line.size() > 5 && IsDigit(line[0]) && line.substr(1, 4) == ":Fm ";
}

// The word behind `mark` in a monitor header, up to the next blank.
std::string_view WordBehind(std::string_view header, std::string_view mark) {
  const std::size_t found = header.find(mark);
  if (found == std::string_view::npos) return {};
  const std::string_view rest = header.substr(found + mark.size());
  return rest.substr(0, rest.find(' '));
}

bool IsCall(std::string_view call) {
  constexpr std::size_t kLongestCall = 9;
  return !call.empty() && call.size() <= kLongestCall && call.find(' ') == std::string_view::npos;
}

std::optional<AirPacket> MonitorPacket(std::string_view line, std::string_view& rest) {
  AirPacket packet;
  const std::size_t end = line.find('\r');
  packet.Header = line.substr(0, end);
  packet.Information = end == std::string_view::npos ? TakeLine(rest) : line.substr(end + 1);
  packet.From = WordBehind(packet.Header, ":Fm ");
  packet.To = WordBehind(packet.Header, " To ");
  packet.Via = WordBehind(packet.Header, " Via ");
  if (!IsCall(packet.From) || !IsCall(packet.To)) return std::nullopt;
  return packet;
}

// "SRC>DST,PATH:information".
std::optional<AirPacket> Tnc2Packet(std::string_view line) {
  const std::size_t colon = line.find(':');
  if (colon == std::string_view::npos) return std::nullopt;
  const std::string_view header = line.substr(0, colon);
  const std::size_t arrow = header.find('>');
  if (arrow == std::string_view::npos) return std::nullopt;
  const std::string_view elements = header.substr(arrow + 1);
  const std::size_t comma = elements.find(',');

  AirPacket packet;
  packet.From = header.substr(0, arrow);
  packet.To = elements.substr(0, comma);
  if (comma != std::string_view::npos) packet.Via = elements.substr(comma + 1);
  packet.Information = line.substr(colon + 1);
  if (!IsCall(packet.From) || !IsCall(packet.To)) return std::nullopt;
  return packet;
}

std::string HeaderLine(const AirPacket& packet, const LocalTime& time) {
  std::string header = "1:Fm " + packet.From + " To " + packet.To;
  if (!packet.Via.empty()) header += " Via " + packet.Via;
  header += " <UI pid=F0 Len=" + WholeNumber(static_cast<std::int64_t>(packet.Information.size()));
  header += " PF=0 >[" + ZeroPadded(time.Hour, 2) + ':' + ZeroPadded(time.Minute, 2) + ':' +
            ZeroPadded(time.Second, 2) + ']';
  return header;
}

}  // namespace

AirScript ReadAirScript(std::string_view text) {
  AirScript script;
  double last = -kSecondsBetweenUntimed;
  while (!text.empty()) {
    std::string_view line = TakeLine(text);
    if (line.empty()) continue;
    const double seconds = TakeTime(line).value_or(last + kSecondsBetweenUntimed);
    auto packet = IsMonitorHeader(line) ? MonitorPacket(line, text) : Tnc2Packet(line);
    if (!packet || packet->Information.size() > kLongestInformation) {
      ++script.Refused;
      continue;
    }
    last = packet->Seconds = std::max({seconds, last, 0.0});
    script.Packets.push_back(*std::move(packet));
  }
  return script;
}

std::string MonitorFrame(const AirPacket& packet, const LocalTime& time) {
  const std::string header = packet.Header.empty() ? HeaderLine(packet, time) : packet.Header;
  return MakeAgwFrame(0, 'U', packet.From, packet.To, header + '\r' + packet.Information + "\r\r");
}

}  // namespace zepril
