// How much the map shows of the stations heard.
#pragma once

namespace zepril {

enum class LabelLevel {
  NoStations = 0,
  Marks = 1,  // that grow darker with age
  MarksAndCalls = 2,
  MarksAndLines = 3,    // a line: what was last heard of the station
  SymbolsAndCalls = 4,  // symbols as bitmaps in place of marks
  SymbolsAndLines = 5,
};

constexpr bool ShowsStations(LabelLevel level) {
  return level != LabelLevel::NoStations;
}
constexpr bool ShowsSymbols(LabelLevel level) {
  return level == LabelLevel::SymbolsAndCalls || level == LabelLevel::SymbolsAndLines;
}

}  // namespace zepril
