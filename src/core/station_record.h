// The text record of one heard position: exactly 120 characters, cut by columns, the same in memory
// and in the logs.
//
//   Columns  Content (1-based)
//   1-6      date, digits YYMMDD
//   8-11     time, digits HHMM
//   12       "T" when the packet's time stamp differs from the clock by more than 2 minutes
//   13       the character of code 254, which begins the position key
//   14-22    grid north in km, text with three decimals (map zone)
//   23-31    grid east in km, same form
//   32       "'" when the station takes messages
//   33-41    call sign or object name, upper case
//   42       "!" for an emergency report
//   43-89    information text
//   90       "_" for an object
//   91-100   heard via: last digipeater, "ALIAS", "TCPIP", blank for direct, sender of an object
//   101-103  symbol: table, code, overlay
//   105-120  symbol text: overlay, blank, name of ten, blank, class digit
//
// A position is only meaningful in the map zone in which the record was written.
#pragma once

#include <array>
#include <compare>
#include <string>
#include <string_view>

namespace zepril {

class StationRecord {
 public:
  static constexpr std::size_t kLength = 120;
  static constexpr char kKeyMark = static_cast<char>(0xFE);
  // Shortest and longest line of a log that holds a record.
  static constexpr std::size_t kShortestLine = 103;
  static constexpr std::size_t kLongestLine = 120;

  StationRecord() { text_.fill(' '); }  // a deleted record: 120 blanks
  // The first 120 characters of `line`, filled with blanks.
  explicit StationRecord(std::string_view line);

  std::string_view Text() const { return {text_.data(), text_.size()}; }
  // Columns `first` to `last`, 1-based, both within 1 to 120.
  std::string_view Columns(std::size_t first, std::size_t last) const;
  // Writes `text` from column `first` on, filled with blanks and cut to `last`.
  void Put(std::size_t first, std::size_t last, std::string_view text);

  bool IsBlank() const;
  std::string_view Trimmed() const;       // the whole record without outer blanks
  std::string_view RightTrimmed() const;  // as a line of a history file

  std::string_view Date() const { return Columns(1, 6); }
  std::string_view Time() const { return Columns(8, 11); }
  std::string_view DateAndTime() const { return Columns(1, 11); }
  char StaleMark() const { return text_[11]; }
  std::string_view PositionKey() const { return Columns(13, 31); }
  std::string_view NorthText() const { return Columns(14, 22); }
  std::string_view EastText() const { return Columns(23, 31); }
  double NorthKm() const;
  double EastKm() const;
  char MessageMark() const { return text_[31]; }
  std::string_view Call() const;  // columns 33-41, trimmed
  char EmergencyMark() const { return text_[41]; }
  std::string_view Info() const;  // columns 43-89, trimmed
  char ObjectMark() const { return text_[89]; }
  std::string_view HeardViaKey() const;    // columns 91-99, trimmed: what repeats are told by
  std::string_view HeardViaField() const;  // columns 91-100, trimmed
  std::string_view Symbol() const;         // columns 101-103, trimmed
  std::string_view SymbolText() const;     // columns 105-120, trimmed
  // Class digit: the last character of the symbol text, read as a number.
  int ClassDigit() const;
  // Minutes of the day of columns 8-11.
  int MinuteOfDay() const;

  friend bool operator==(const StationRecord&, const StationRecord&) = default;

 private:
  std::array<char, kLength> text_;
};

}  // namespace zepril
