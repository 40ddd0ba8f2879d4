// The few rules by which the program reads and writes text and numbers.
//
// Everything that parses or prints a number goes through here, so that a number looks the same on
// every computer: no locale, no streams, no exceptions. Text is 8-bit, Windows code page 1252.
// Positions in a text are 1-based, as in the station records.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zepril {

// ---- Numbers from text ----------------------------------------------------------------------

// The number at the front of `text`: leading blanks are skipped, then sign, digits, point and an
// exponent are taken as far as they make a number. Nothing usable reads as 0. Never fails; a value
// beyond the range of a double reads as the largest one.
//   Val(" 12.5km") == 12.5, Val("-3") == -3, Val("abc") == 0, Val(".5") == .5
double Val(std::string_view text);

// Val, rounded half to even, when the result lies in [lowest, highest]; otherwise nothing.
std::optional<std::int32_t> WholeVal(std::string_view text, std::int32_t lowest,
                                     std::int32_t highest);

// True when the trimmed text consists of digits and points only (blanks inside are refused, an
// empty text passes).
bool IsNumericField(std::string_view text);

// ---- Numbers to text ------------------------------------------------------------------------

// Number text: at most 15 significant digits, "." as point, no zero before it, and one blank in
// the place of the sign of a number that is not negative.
//   Str(5) == " 5", Str(-0.5) == "-.5", Str(0.5) == " .5"
std::string Str(double value);

// Str without the blank of the sign place: ".5", "-10.517", "6600".
std::string ShortNumber(double value);

// Decimal digits of a whole number, with "-" when negative.
std::string WholeNumber(std::int64_t value);

// `value` with exactly `decimals` (0 to 9) places, half away from zero on the decimal value.
std::string FixedNumber(double value, int decimals);

// Whole number padded on the left with zeros to at least `width` characters ("07").
std::string ZeroPadded(std::int64_t value, std::size_t width);

// ---- Rounding -------------------------------------------------------------------------------

double Int(double value);            // rounds down
double Fix(double value);            // cuts towards zero
double RoundHalfEven(double value);  // the conversion to a whole number: 2.5 -> 2, 3.5 -> 4
double Sgn(double value);            // -1, 0 or 1

// RoundHalfEven as a whole number; values beyond the range are held at its ends, a NaN is 0.
std::int64_t ToWhole(double value);

// Whole-number division and remainder of two values that are first rounded half to even; a
// divisor of 0 yields 0. The quotient is cut towards zero, the remainder has the dividend's sign.
std::int64_t IntegerQuotient(double dividend, double divisor);
std::int64_t IntegerRemainder(double dividend, double divisor);

// ---- Cutting and searching ------------------------------------------------------------------

// Up to `length` characters from column `start`; columns outside the text yield nothing.
std::string_view Mid(std::string_view text, std::ptrdiff_t start, std::ptrdiff_t length);
std::string_view Mid(std::string_view text, std::ptrdiff_t start);
std::string_view Left(std::string_view text, std::ptrdiff_t length);
std::string_view Right(std::string_view text, std::ptrdiff_t length);

// Column of the first occurrence of `wanted` at or behind column `start`, 0 when there is none.
std::ptrdiff_t InStr(std::ptrdiff_t start, std::string_view text, std::string_view wanted);
std::ptrdiff_t InStr(std::string_view text, std::string_view wanted);

// Code of a character, 0 to 255.
inline int Asc(char c) {
  return static_cast<unsigned char>(c);
}
inline char Chr(int code) {
  return static_cast<char>(static_cast<unsigned char>(code & 0xFF));
}

// ---- Blanks, case, padding ------------------------------------------------------------------

std::string_view TrimLeft(std::string_view text);   // blanks only
std::string_view TrimRight(std::string_view text);  // blanks only
std::string_view Trim(std::string_view text);       // blanks only

std::string Upper(std::string_view text);  // code page 1252
std::string Lower(std::string_view text);  // code page 1252
char UpperChar(char c);
char LowerChar(char c);
bool EqualFolded(std::string_view a, std::string_view b);  // without regard to case

// Blanks added on one side up to `width`; a longer text is left alone.
std::string PadLeft(std::string_view text, std::size_t width);
std::string PadRight(std::string_view text, std::size_t width);
// Blanks added on the right up to `width`; a longer text is cut.
std::string Field(std::string_view text, std::size_t width);

inline bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// Pieces between separators; "a,,b" has three, an empty text has one.
std::vector<std::string_view> Split(std::string_view text, char separator);

// "&" doubled, for captions that read "&" as the mark of a key.
std::string DoubledAmpersands(std::string_view text);

}  // namespace zepril
