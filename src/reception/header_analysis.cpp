// Reads sender, digipeater and alias by columns and delimiters; the own echo and third parties.
#include "reception/header_analysis.h"

#include <algorithm>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr auto kNone = std::string_view::npos;
constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kMarkerLength = 6;  // " <UI>:"

void AssignUpper(std::string& target, std::string_view text) {
  target.assign(text);
  std::transform(target.begin(), target.end(), target.begin(), UpperChar);
}

std::string_view CutAtReturn(std::string_view text) {
  return text.substr(0, text.find('\r'));
}

// The text between the last of `delimiters` before offset `end` and `end`.
std::string_view LastElement(std::string_view text, std::size_t end, std::string_view delimiters) {
  const std::string_view before = text.substr(0, end);
  const std::size_t delimiter = before.find_last_of(delimiters);
  return delimiter == kNone ? before : before.substr(delimiter + 1);
}

// A path that began with an alias and was used up: "WIDE2-1" (the digit behind the hyphen is less
// than the one before) or "WIDE1" without a hyphen.
bool UsesAlias(std::string_view path) {
  constexpr std::string_view kWide = "WIDE";
  for (std::size_t hyphen = path.find('-', 1); hyphen != kNone;
       hyphen = path.find('-', hyphen + 1)) {
    if (hyphen + 1 < path.size() && IsDigit(path[hyphen - 1]) && IsDigit(path[hyphen + 1]) &&
        path[hyphen + 1] < path[hyphen - 1]) {
      return true;
    }
  }
  for (std::size_t wide = path.find(kWide, 1); wide != kNone; wide = path.find(kWide, wide + 1)) {
    const std::size_t digit = wide + kWide.size();
    if (digit < path.size() && IsDigit(path[digit]) &&
        (digit + 1 >= path.size() || path[digit + 1] != '-')) {
      return true;
    }
  }
  return false;
}

// True when `frame` begins with the own header. An empty header is never there.
bool IsOwnEcho(std::string_view frame, std::string_view own_header) {
  return !own_header.empty() && frame.starts_with(own_header);
}

HeaderOutcome ReadNormal(std::string_view frame, std::string_view header,
                         std::string_view information, std::string_view own_header,
                         AnalysedFrame& result) {
  constexpr std::size_t kShortestHeader = 6;     // the colon stands at column 7 or beyond
  constexpr std::size_t kSearchFrom = 2;         // offset of column 3
  constexpr std::size_t kDirectStarColumn = 10;  // an asterisk up to this column marks the sender
  if (header.size() < kShortestHeader) return HeaderOutcome::TooShort;
  if (header.find('*') == kNone) return HeaderOutcome::NotMarked;

  // The sender, and the own transmission heard again, also as the echo of a modem's command line.
  const std::size_t delimiter = header.find_first_of("*>", kSearchFrom);
  std::string_view sender = header.substr(0, delimiter);
  if (IsOwnEcho(frame, own_header)) return HeaderOutcome::OwnEcho;
  constexpr std::string_view kPrompt = "cmd:";
  const std::size_t prompt = sender.find(kPrompt);
  if (prompt != kNone) {
    const std::size_t behind = prompt + kPrompt.size();
    if (IsOwnEcho(frame.substr(behind), own_header)) return HeaderOutcome::OwnEcho;
    sender = sender.substr(behind);
  }
  AssignUpper(result.PacketCall, sender);

  // Heard over the element with the first asterisk; an early one stands behind the sender.
  result.PacketHeardVia.clear();
  const std::size_t star = header.find('*', kSearchFrom);
  if (star != kNone && star >= kDirectStarColumn) {
    result.PacketHeardVia = LastElement(header, star, ",>");
  }
  const std::size_t arrow = header.find('>');
  if (result.PacketHeardVia.empty() && arrow != kNone && UsesAlias(header.substr(arrow))) {
    result.PacketHeardVia = "ALIAS";
  }

  // The destination is the last element before the marker.
  const std::size_t marker = header.size() + 1 - kMarkerLength;
  const std::string_view elements = header.substr(0, marker);
  const std::size_t last = elements.rfind('>');
  result.PacketDestination = last == kNone ? elements : elements.substr(last + 1);

  // Only a well formed path has an information: a sender, ">" behind it, an asterisk.
  const bool well_formed =
      delimiter != kNone && elements.find('>', delimiter + 1) != kNone && star != kNone;
  result.PacketInfo.clear();
  result.PacketType = '\0';
  if (well_formed && !information.empty()) {
    result.PacketType = information.front();
    result.PacketInfo = Trim(CutAtReturn(information));
  }
  return HeaderOutcome::Frame;
}

}  // namespace

bool ReadThirdParty(std::string_view information, AnalysedFrame& result) {
  constexpr std::size_t kDirectStarColumn = 11;
  const std::size_t colon = information.find(':');
  if (colon == kNone) return false;
  // The outer header and the "}" go; the inner header is source, ">", destination, path.
  const std::string_view inner = information.substr(0, colon);
  const std::size_t arrow = inner.find('>');
  if (arrow == kNone) return false;

  std::string_view source = inner.substr(0, arrow);
  if (source.ends_with('*')) source.remove_suffix(1);
  AssignUpper(result.PacketCall, source);

  // Heard over the element with the first asterisk, or over the internet.
  result.PacketHeardVia.clear();
  const std::size_t star = inner.find('*');
  if (star != kNone && star >= kDirectStarColumn) {
    result.PacketHeardVia = LastElement(inner, star, ":,>");
  }
  if (inner.find("TCPIP") != kNone) result.PacketHeardVia = "TCPIP";

  const std::string_view behind = inner.substr(arrow + 1);
  result.PacketDestination = behind.substr(0, behind.find_first_of("*,>"));
  if (result.PacketHeardVia.empty()) result.PacketHeardVia = result.PacketDestination;

  result.PacketInfo = Trim(CutAtReturn(Trim(information.substr(colon + 1))));
  result.PacketType = result.PacketInfo.empty() ? '\0' : result.PacketInfo.front();
  result.Header = inner;
  result.ThirdParty = true;
  return true;
}

HeaderOutcome AnalyseHeader(std::string_view frame, std::string_view my_call_full,
                            std::string_view own_header, AnalysedFrame& result) {
  constexpr std::size_t kOwnCallColumns = 12;
  result.ThirdParty = false;
  const std::size_t colon = frame.find(":\r\n");
  if (colon == kNone) return HeaderOutcome::TooShort;
  const std::string_view header = frame.substr(0, colon);
  const std::string_view information = frame.substr(colon + 1 + kLineEnd.size());

  if (information.starts_with('}')) {
    if (!my_call_full.empty() && header.substr(0, kOwnCallColumns).find(my_call_full) != kNone) {
      return HeaderOutcome::OwnGatedBack;
    }
    if (ReadThirdParty(information.substr(1), result)) return HeaderOutcome::Frame;
  }
  result.Header = header;
  return ReadNormal(frame, header, information, own_header, result);
}

}  // namespace zepril
