// Finds where frames begin in the modem's text, and rewrites their headers.
#include "reception/scs_monitor.h"

#include <algorithm>

namespace zepril {
namespace {

constexpr auto kNone = std::string_view::npos;
constexpr std::string_view kFrom = "fm ";
constexpr std::string_view kTo = " to ";
constexpr std::string_view kVia = " via ";
constexpr std::string_view kControl = " ctl ";
constexpr std::string_view kPid = " pid F0\r\n";
constexpr std::string_view kLineEnd = "\r\n";

// Somewhere a header begins and ends, and a line end closes the information behind it.
bool HoldsCompleteFrame(std::string_view text) {
  const std::size_t from = text.find(kFrom);
  if (from == kNone) return false;
  const std::size_t pid = text.find(kPid, from);
  return pid != kNone && text.find(kLineEnd, pid + kPid.size()) != kNone;
}

// Where the next "fm " that begins a frame stands: near the front of the text, at the beginning of
// a line, or behind the PTC's channel number.
std::size_t FrameBegin(std::string_view text, ScsDialect dialect) {
  constexpr std::size_t kNearFront = 9;  // offset of column 10
  const std::size_t first = text.find(kFrom);
  if (first < kNearFront) return first;
  std::size_t begin = text.find("\nfm ");
  if (begin != kNone) ++begin;
  if (dialect == ScsDialect::Ptc) {
    const std::size_t numbered = text.find("1:fm ");
    if (numbered != kNone) begin = std::min(begin, numbered + 2);
  }
  return begin;
}

struct ScsHeader {
  std::string_view Sender;
  std::string_view Destination;
  std::string_view Path;  // digipeaters separated by blanks
  bool Taken = false;
};

// `line` begins with "fm " and ends with its CR LF.
ScsHeader ReadHeader(std::string_view line) {
  ScsHeader header;
  const std::size_t to = line.find(kTo, kFrom.size());
  if (to == kNone) return header;
  const std::size_t control = line.find(kControl, to);
  if (control == kNone || !line.ends_with(kPid)) return header;
  header.Sender = line.substr(kFrom.size(), to - kFrom.size());
  const std::size_t destination = to + kTo.size();
  const std::size_t via = line.find(kVia, to);
  if (via < control) {
    header.Destination = line.substr(destination, via > destination ? via - destination : 0);
    const std::size_t path = via + kVia.size();
    header.Path = line.substr(path, control > path ? control - path : 0);
  } else {
    header.Destination =
        line.substr(destination, control > destination ? control - destination : 0);
  }
  header.Taken = true;
  return header;
}

void AppendNormalFrame(const ScsHeader& header, std::string_view information,
                       std::string& collected) {
  collected += header.Sender;
  // A frame with digipeaters none of which repeated it was heard from its sender. With no
  // digipeaters at all the sender is marked later, with the frames of all modems.
  if (!header.Path.empty() && header.Path.find('*') == kNone) collected += '*';
  collected += '>';
  if (!header.Path.empty()) {
    for (char c : header.Path)
      collected += c == ' ' ? '>' : c;
    collected += '>';
  }
  collected += header.Destination;
  collected += " <UI>:\r\n";
  collected += information;
  collected += kLineEnd;
}

}  // namespace

std::size_t TakeScsFrames(std::string_view text, ScsDialect dialect, std::string& collected) {
  constexpr int kMostFrames = 10;
  std::size_t taken = 0;
  for (int frames = 0; frames < kMostFrames; ++frames) {
    const std::string_view rest = text.substr(taken);
    if (!HoldsCompleteFrame(rest)) break;
    const std::size_t begin = FrameBegin(rest, dialect);
    if (begin == kNone) break;
    const std::size_t line_end = rest.find(kLineEnd, begin);
    if (line_end == kNone) break;
    const std::size_t information = line_end + kLineEnd.size();
    const ScsHeader header = ReadHeader(rest.substr(begin, information - begin));
    if (!header.Taken) return taken + line_end;
    const std::size_t close = rest.find(kLineEnd, information);
    if (close == kNone) break;
    AppendNormalFrame(header, rest.substr(information, close - information), collected);
    // The closing line end opens what comes next.
    taken += close;
  }
  return taken;
}

namespace {

Brought BringScsText(std::string_view raw, ScsDialect dialect, std::string& normal) {
  const std::size_t taken = TakeScsFrames(raw, dialect, normal);
  // The last frame's line end, which opens what comes next, ends that frame for the gate.
  const std::string_view whole = raw.substr(0, taken + kLineEnd.size());
  return {taken, normal.empty() ? std::string_view() : whole};
}

}  // namespace

Brought BringScsTncText(std::string_view raw, std::string& normal) {
  return BringScsText(raw, ScsDialect::Tnc, normal);
}

Brought BringScsPtcText(std::string_view raw, std::string& normal) {
  return BringScsText(raw, ScsDialect::Ptc, normal);
}

}  // namespace zepril
