// Splits text into lines, drops what is not kept, and shows the lines.
#include "reception/raw_list.h"

#include <algorithm>
#include <string>

#include "core/state/radio.h"
#include "core/text_fields.h"

namespace zepril {
namespace {

void BeginLine(ReceptionState& reception) {
  if (reception.RawLineCount < ReceptionState::kRawLines) {
    reception.RawLines[++reception.RawLineCount].clear();
  } else {
    reception.RawLines.MoveForward();
  }
}

// Characters that are not stored in a line; the line feed among them ends it.
bool IsDropped(char c) {
  constexpr int kHighestDropped = 27;
  return Asc(c) <= kHighestDropped;
}

void AppendHeld(std::string& line, std::string_view run) {
  line += run.substr(0, kLongestReceiveBuffer - std::min(line.size(), kLongestReceiveBuffer));
}

}  // namespace

void AddRawText(std::string_view collected, ReceptionState& reception) {
  while (!collected.empty()) {
    const auto dropped = std::find_if(collected.begin(), collected.end(), IsDropped);
    const auto run = static_cast<std::size_t>(dropped - collected.begin());
    AppendHeld(reception.RawLines[reception.RawLineCount], collected.substr(0, run));
    if (run == collected.size()) return;
    if (collected[run] == '\n') BeginLine(reception);
    collected.remove_prefix(run + 1);
  }
}

void ShowRawLines(const ReceptionState& reception, ListBox& list) {
  list.Items.resize(static_cast<std::size_t>(reception.RawLineCount) + 1);
  for (int index = 0; index <= reception.RawLineCount; ++index) {
    list.Items[static_cast<std::size_t>(index)] = reception.RawLines[index];
  }
  ++list.Revision;
}

}  // namespace zepril
