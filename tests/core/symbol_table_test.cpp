// Rows, names and classes of symbols, and characters outside the table.
#include "core/symbol_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace zepril {
namespace {

constexpr std::string_view kNoSymbol = R"(\~ Q4  No Symbol  1)";

TEST(SymbolTable, RowsStandAtTheIndexOfTheirSymbol) {
  const SymbolTable table;
  EXPECT_EQ(table.Row(14), "/. BO  X          1");
  EXPECT_EQ(table.Row(37), "/E PE  Eyeball    1");
  EXPECT_EQ(table.Row(101), "\\! OB  Emergency  0");
  EXPECT_EQ(table.Row(194), "\\~ Q4  res.(StSw) 1");
  int listed = 0;
  for (int index = 0; index < SymbolTable::kRows; ++index) {
    ASSERT_EQ(table.Row(index).size(), 19u) << index;
    if (table.Row(index) == kNoSymbol) continue;
    ++listed;
    EXPECT_EQ(RawSymbolIndex(table.Row(index)[0], table.Row(index)[1]), index);
  }
  EXPECT_EQ(listed, 186);
}

TEST(SymbolTable, RowsWithoutASymbolOfTheirOwnKeepTheDefault) {
  const SymbolTable table;
  for (int index : {0, 2, 95, 100, 102, 195, 200})
    EXPECT_EQ(table.Row(index), kNoSymbol) << index;
  EXPECT_EQ(table.Row(-1), table.Row(194));
  EXPECT_EQ(table.Row(201), table.Row(194));
}

TEST(SymbolTable, OverlaysAreToldByTheNameAndMostlyByTheMark) {
  const SymbolTable table;
  std::set<int> by_name;
  std::set<int> without_mark;
  for (int index = 1; index <= SymbolTable::kLastIndex; ++index) {
    if (table.Row(index).substr(7, 3) != "No.") continue;
    by_name.insert(index);
    if (table.Row(index)[5] != '#') without_mark.insert(index);
  }
  EXPECT_EQ(by_name, (std::set<int>{103, 106, 116, 130, 133, 155, 162, 163, 165, 167, 173, 178, 183,
                                    185, 186, 190}));
  EXPECT_EQ(without_mark, (std::set<int>{155, 163, 165, 167, 173, 190}));
}

TEST(SymbolTable, ClassesAreZeroToFour) {
  const SymbolTable table;
  EXPECT_EQ(table.ClassDigit(30), 0);  // car
  EXPECT_EQ(table.ClassDigit(13), 1);  // home
  EXPECT_EQ(table.ClassDigit(3), 2);   // digipeater
  EXPECT_EQ(table.ClassDigit(63), 4);  // weather station
  EXPECT_EQ(table.ClassDigit(2), 1);   // no symbol
  for (int index = 0; index < SymbolTable::kRows; ++index) {
    EXPECT_NE(table.ClassDigit(index), 3);
    EXPECT_LE(table.ClassDigit(index), 4);
  }
}

TEST(ClampedSymbol, WhatLiesOutsideTheTableBecomesTheLastSymbol) {
  EXPECT_EQ(ClampedSymbol("/!").Index, 1);
  EXPECT_EQ(ClampedSymbol("/\"").Index, 2);
  EXPECT_EQ(ClampedSymbol("/\x7F").Index, 95);
  EXPECT_EQ(ClampedSymbol("/\x7F").Symbol, "/\x7F");
  EXPECT_EQ(ClampedSymbol("\\\x7F").Symbol, "\\~");
  EXPECT_EQ(ClampedSymbol("/ ").Index, 194);
  EXPECT_EQ(ClampedSymbol("/ ").Symbol, "\\~");
  EXPECT_EQ(ClampedSymbol("").Index, 194);
  EXPECT_EQ(ClampedSymbol("\\nX").Symbol, "\\nX");
}

}  // namespace
}  // namespace zepril
