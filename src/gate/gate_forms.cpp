// Finds source, destination, digipeaters and data of a frame, a function a form.
#include "gate/gate_forms.h"

#include <algorithm>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr auto kNone = std::string_view::npos;
constexpr std::string_view kLineEnd = "\r\n";

// "QX7AB>ZEPR,WIDE1-1,"; empty without a sender or a destination.
std::string HeaderOf(std::string_view source, std::string_view destination, std::string_view via) {
  if (source.empty() || destination.empty()) return {};
  std::string header(source);
  header.append(">").append(destination).append(",");
  if (!via.empty()) header.append(via).append(",");
  return header;
}

std::string WithoutFirstAsterisk(std::string_view text) {
  std::string without(text);
  if (const std::size_t star = without.find('*'); star != kNone) without.erase(star, 1);
  return without;
}

// ---- Words between markers ------------------------------------------------------------------

// A header line whose parts stand between words.
struct HeaderWords {
  std::string_view To;       // " TO ": behind the sender
  std::string_view Via;      // " VIA ": behind the destination, when there are digipeaters
  std::string_view Details;  // behind the last of these
};

struct HeaderParts {
  std::string_view Source;
  std::string_view Destination;
  std::string_view Via;
};

// `line` begins with the sender.
std::optional<HeaderParts> PartsOf(GateText line, const HeaderWords& words) {
  const std::size_t to = line.Capitals.find(words.To);
  if (to == kNone) return std::nullopt;
  const std::size_t destination = to + words.To.size();
  const std::size_t details = line.Capitals.find(words.Details, destination);
  if (details == kNone) return std::nullopt;
  HeaderParts parts;
  parts.Source = line.AsHeard.substr(0, to);
  const std::size_t via = line.Capitals.find(words.Via, destination);
  const std::size_t path = via + words.Via.size();
  const bool repeated = via < details && path <= details;
  parts.Destination = line.AsHeard.substr(destination, (repeated ? via : details) - destination);
  if (repeated) parts.Via = line.AsHeard.substr(path, details - path);
  return parts;
}

GateText Part(GateText text, std::size_t from, std::size_t to) {
  return {text.AsHeard.substr(from, to - from), text.Capitals.substr(from, to - from)};
}

// ---- Forms ----------------------------------------------------------------------------------

std::optional<GateFrame> EngineForm(GateText text) {
  constexpr std::string_view kFrom = ":FM ";
  constexpr std::string_view kPair = "\r\r";
  const std::size_t from = text.Capitals.find(kFrom);
  if (from == kNone) return std::nullopt;
  // The header ends with a bracket at its line's end.
  const std::size_t sender = from + kFrom.size();
  const std::size_t line_end = text.AsHeard.find('\r', sender);
  if (line_end == kNone || text.AsHeard[line_end - 1] != ']') return std::nullopt;
  const std::size_t data = line_end + 1;
  const std::size_t data_end = text.AsHeard.find(kPair, data);
  if (data_end == kNone) return std::nullopt;
  const auto parts = PartsOf(Part(text, sender, line_end), {" TO ", " VIA ", " <UI"});
  if (!parts) return std::nullopt;
  // Kept: of several digipeaters that have repeated the frame only the first loses its mark.
  GateFrame frame;
  frame.Header = HeaderOf(parts->Source, parts->Destination, WithoutFirstAsterisk(parts->Via));
  frame.Watched = text.Capitals.substr(0, line_end - 1);
  frame.Data = text.AsHeard.substr(data, data_end - data);
  frame.DataEnd = data_end;
  return frame;
}

// "<UI>:", "[UI]:" or "(UI):" at the end of the line.
bool IsUnnumbered(std::string_view line) {
  constexpr std::size_t kMarker = 4;
  return line.size() >= kMarker && line.substr(line.size() - kMarker, 2) == "UI" &&
         line.back() == ':';
}

std::optional<GateFrame> Pk232Form(GateText text) {
  const std::size_t line_end = text.AsHeard.find(kLineEnd);
  if (line_end == kNone || !IsUnnumbered(text.Capitals.substr(0, line_end))) return std::nullopt;
  const std::size_t data = line_end + kLineEnd.size();
  const std::size_t data_end = text.AsHeard.find(kLineEnd, data);
  if (data_end == kNone) return std::nullopt;
  const std::string line = WithoutFirstAsterisk(text.AsHeard.substr(0, line_end));
  const std::size_t blank = line.find(' ');
  if (blank == kNone) return std::nullopt;
  const std::string_view calls = std::string_view(line).substr(0, blank);
  const std::size_t first = calls.find('>');
  const std::size_t last = calls.rfind('>');
  if (first == kNone) return std::nullopt;
  std::string via(first < last ? calls.substr(first + 1, last - first - 1) : std::string_view());
  std::replace(via.begin(), via.end(), '>', ',');
  GateFrame frame;
  frame.Header = HeaderOf(calls.substr(0, first), calls.substr(last + 1), via);
  // The marker of the line is not looked at.
  frame.Watched = Upper(frame.Header);
  frame.Data = text.AsHeard.substr(data, data_end - data);
  frame.DataEnd = data_end;
  return frame;
}

// `sender`: offset behind the mark that a frame begins with.
std::optional<GateFrame> ScsFrame(GateText text, std::size_t sender) {
  constexpr std::string_view kPid = "PID F0";
  const std::size_t line_end = text.AsHeard.find(kLineEnd, sender);
  if (line_end == kNone || !text.Capitals.substr(sender, line_end - sender).ends_with(kPid)) {
    return std::nullopt;
  }
  const std::size_t data = line_end + kLineEnd.size();
  const std::size_t data_end = text.AsHeard.find(kLineEnd, data);
  if (data_end == kNone) return std::nullopt;
  const auto parts = PartsOf(Part(text, sender, line_end), {" TO ", " VIA ", " CTL UI"});
  if (!parts) return std::nullopt;
  // Marks of digipeaters stay as they are.
  GateFrame frame;
  frame.Header = HeaderOf(parts->Source, parts->Destination, parts->Via);
  std::replace(frame.Header.begin(), frame.Header.end(), ' ', ',');
  frame.Watched = text.Capitals.substr(0, line_end - kPid.size());
  frame.Data = text.AsHeard.substr(data, data_end - data);
  frame.DataEnd = data_end;
  return frame;
}

std::optional<GateFrame> ScsTncForm(GateText text) {
  constexpr std::string_view kFrom = "FM ";
  constexpr std::size_t kFarthest = 4;  // offset of column 5
  const std::size_t from = text.Capitals.find(kFrom);
  if (from == kNone || from > kFarthest) return std::nullopt;
  return ScsFrame(text, from + kFrom.size());
}

std::optional<GateFrame> ScsPtcForm(GateText text) {
  constexpr std::string_view kFrom = ":FM ";
  const std::size_t from = text.Capitals.find(kFrom);
  if (from == kNone) return std::nullopt;
  return ScsFrame(text, from + kFrom.size());
}

// A frame with an empty header is none.
template <std::optional<GateFrame> (*Form)(GateText)>
std::optional<GateFrame> Whole(GateText text) {
  std::optional<GateFrame> frame = Form(text);
  if (frame && frame->Header.empty()) frame.reset();
  return frame;
}

struct FormRow {
  std::string_view Dialect;
  GateForm Form;
};

constexpr FormRow kForms[] = {
    {"AGW", Whole<EngineForm>},
    {"PK-232", Whole<Pk232Form>},
    {"SCS TNC", Whole<ScsTncForm>},
    {"SCS PTC", Whole<ScsPtcForm>},
};

}  // namespace

GateForm GateFormOf(std::string_view dialect) {
  for (const FormRow& row : kForms) {
    if (row.Dialect == dialect) return row.Form;
  }
  return nullptr;
}

}  // namespace zepril
