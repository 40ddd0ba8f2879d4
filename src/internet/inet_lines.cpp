// Finds the lines in a page, brings their dates to one form, takes a packet apart.
#include "internet/inet_lines.h"

#include <algorithm>

#include "core/text_fields.h"
#include "platform/clock.h"

namespace zepril {
namespace {

constexpr auto kNone = std::string_view::npos;
constexpr std::string_view kCentury = "20";
constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kShortestLine = 40;
constexpr std::size_t kDigits = 14;      // of the plain date and time
constexpr std::size_t kDashedDate = 19;  // characters of "2024-05-14 12:30:00"

std::string WithoutNuls(std::string_view body) {
  std::string text(body);
  std::erase(text, '\0');
  return text;
}

bool AreDigits(std::string_view text) {
  return std::all_of(text.begin(), text.end(), IsDigit);
}

// The fourteen digits of a date in either form; nothing without one.
std::optional<std::string> DigitsOf(std::string_view line) {
  std::string digits(line.substr(0, kDigits));
  if (Mid(line, 5, 1) == "-") {
    digits.clear();
    for (const auto& [start, length] : {std::pair{1, 4}, {6, 2}, {9, 2}, {12, 2}, {15, 2}, {18, 2}})
      digits += Mid(line, start, length);
  }
  if (digits.size() != kDigits || !digits.starts_with(kCentury) || !AreDigits(digits))
    return std::nullopt;
  return digits;
}

// What stands behind date, time and one separator.
std::string_view PacketOf(std::string_view line) {
  const std::size_t date = Mid(line, 5, 1) == "-" ? kDashedDate : kDigits;
  return line.size() > date ? line.substr(date + 1) : std::string_view();
}

// The front line of `rest`, which is taken off.
std::string_view TakeLine(std::string_view& rest) {
  const std::size_t end = std::min(rest.find('\n'), rest.size());
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

std::int64_t SecondsOfDigits(std::string_view digits) {
  const auto number = [digits](int start, int length) {
    return static_cast<int>(ToWhole(Val(Mid(digits, start, length))));
  };
  return SecondsOf(
      {number(1, 4), number(5, 2), number(7, 2), number(9, 2), number(11, 2), number(13, 2)});
}

bool HasLineStart(std::string_view text) {
  return text.starts_with(kCentury) || text.find("\n20") != kNone;
}

// "SRC>DST,PATH" as the header of a frame in normal form, as the answer to a ping tells it.
std::string NormalHeader(std::string_view source, std::string_view path,
                         std::string_view destination) {
  const std::string way = path.empty() ? "*>" : ">" + std::string(path) + ">";
  return std::string(source) + way + std::string(destination) + " <UI>";
}

}  // namespace

bool SaysNoData(std::string_view body) {
  return InStr(Upper(body), "NO DATA FOUND FOR") > 0;
}

std::string LinesOfCgiReply(std::string_view body, std::string_view call) {
  constexpr std::string_view kMarker = "RAW DATA: ";
  constexpr std::size_t kTooShort = 60;
  const std::string text = WithoutNuls(body);
  const std::string_view station = Trim(call);
  std::string_view rest = text;
  for (;;) {
    const std::size_t marker = rest.find(kMarker);
    if (marker == kNone) return {};
    rest.remove_prefix(marker + kMarker.size());
    if (EqualFolded(rest.substr(0, station.size()), station)) break;
  }
  rest.remove_prefix(station.size());
  if (rest.size() <= kTooShort || !HasLineStart(rest)) return {};
  std::string lines(rest);
  if (!lines.ends_with('\n')) lines += kLineEnd;
  return lines;
}

std::string LinesOfRestReply(std::string_view body) {
  constexpr std::size_t kTooShortToBegin = 60;
  constexpr std::size_t kTooShort = 40;
  std::string text = WithoutNuls(body);
  if (text.starts_with(kCentury) && text.size() > kTooShortToBegin) text.insert(0, kLineEnd);
  const std::size_t first = text.find("\n20");
  if (first == kNone || text.size() - first <= kTooShort) return {};
  std::string_view rest = std::string_view(text).substr(first + 1);
  std::string lines;
  lines.reserve(rest.size());
  while (!rest.empty()) {
    const std::string_view line = TakeLine(rest);
    const std::optional<std::string> digits = DigitsOf(line);
    if (digits) {
      lines += *digits;
      lines += ',';
      lines += PacketOf(line);
    } else {
      lines += line;
    }
    lines += kLineEnd;
  }
  return lines;
}

std::vector<InetLine> CutInetLines(std::string_view text) {
  std::vector<InetLine> lines;
  // The head, which may stand on a line of its own behind an empty one.
  while (!text.empty() && !text.starts_with(kCentury))
    TakeLine(text);
  while (!text.empty()) {
    const std::string_view line = TakeLine(text);
    if (line.size() < kShortestLine) break;
    const std::optional<std::string> digits = DigitsOf(line);
    if (digits) lines.push_back({SecondsOfDigits(*digits), line});
  }
  std::stable_sort(lines.begin(), lines.end(),
                   [](const InetLine& a, const InetLine& b) { return a.Seconds < b.Seconds; });
  return lines;
}

bool ReadInetLine(std::string_view line, AnalysedFrame& frame) {
  const std::string_view packet = PacketOf(line);
  const std::size_t colon = packet.find(':');
  if (colon == kNone) return false;
  const std::string_view header = packet.substr(0, colon);
  const std::size_t arrow = header.find('>');
  if (arrow == kNone || arrow == 0) return false;
  const std::string_view information = packet.substr(colon + 1);
  const std::string_view behind = header.substr(arrow + 1);
  const std::size_t comma = std::min(behind.find(','), behind.size());
  const std::string_view path = behind.substr(std::min(comma + 1, behind.size()));

  if (!information.starts_with('}') || !ReadThirdParty(information.substr(1), frame)) {
    const std::string_view source = header.substr(0, arrow);
    frame.ThirdParty = false;
    frame.PacketCall = Upper(source);
    frame.PacketDestination = behind.substr(0, comma);
    frame.PacketType = information.empty() ? '\0' : information.front();
    frame.PacketInfo = Trim(information.substr(0, information.find('\r')));
    frame.Header.clear();
    if (frame.PacketType == ':') frame.Header = NormalHeader(source, path, frame.PacketDestination);
  }

  frame.PacketHeardVia = "inet";
  if (!path.empty()) frame.PacketHeardVia = Lower(path.substr(path.rfind(',') + 1));
  if (line.find("TCPIP*") != kNone) frame.PacketHeardVia = "tcpip";
  return true;
}

bool IsOwnRetransmission(std::string_view line, const AnalysedFrame& frame,
                         std::string_view my_call_full) {
  constexpr std::string_view kRetransmitted = "ZEPRRE";
  constexpr std::size_t kColumns = 26;
  const std::string_view own = Trim(my_call_full);
  return frame.PacketDestination == kRetransmitted && !own.empty() &&
         line.substr(0, kColumns).find(own) != kNone;
}

}  // namespace zepril
