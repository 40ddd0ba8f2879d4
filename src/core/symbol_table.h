// The table of APRS symbols: what a symbol is called and which class of station it stands for.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace zepril {

// Class digit of a symbol; the mark of a station on the map and the class switches follow it.
enum class StationClass { Moving = 0, Fixed = 1, Network = 2, Special = 3, Weather = 4 };

// 201 rows of 19 characters, index 0 to 200: columns 1-2 table and code character, 4-5 two-letter
// form, 6 "#" where an overlay is taken, 8-17 name, 19 class digit. Index 1 to 94 is the primary
// table "/", 101 to 194 the alternate table "\"; rows with no symbol of their own read
// "\~ Q4  No Symbol  1".
class SymbolTable {
 public:
  static constexpr int kRows = 201;
  static constexpr int kLastIndex = 194;
  static constexpr int kEmergencyIndex = 101;

  SymbolTable();

  // The row of `index`; an index outside 0 to 200 gives row 194.
  const std::string& Row(int index) const;
  // Name of the symbol, columns 8-17, trimmed.
  std::string Name(int index) const;
  // Columns 8-19, right end trimmed: the name padded to 10, a blank, the class digit.
  std::string NameAndClass(int index) const;
  // Class digit 0 to 4.
  int ClassDigit(int index) const;

 private:
  std::array<std::string, kRows> rows_;
};

// Index of a symbol by its table and code characters, as it comes: 100 x ((table - 47) \ 45) +
// code - 32. May lie outside the table for characters that are none.
int RawSymbolIndex(char table, char code);

// A symbol brought into the table: an index below 1 or above 194 becomes 194 and the symbol "\~".
struct TableSymbol {
  int Index = 0;
  std::string Symbol;  // two characters, or three with an overlay behind
};
TableSymbol ClampedSymbol(std::string_view symbol);

}  // namespace zepril
