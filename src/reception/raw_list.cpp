#include "reception/raw_list.h"

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

}  // namespace

void AddRawText(std::string_view collected, ReceptionState& reception) {
  constexpr int kHighestDropped = 27;
  std::string* line = &reception.RawLines[reception.RawLineCount];
  for (char c : collected) {
    if (c == '\n') {
      BeginLine(reception);
      line = &reception.RawLines[reception.RawLineCount];
    } else if (Asc(c) > kHighestDropped && line->size() < kLongestReceiveBuffer) {
      *line += c;
    }
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
