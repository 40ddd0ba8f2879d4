// Reads and prints numbers digit by digit; rounding, columns, search, case and padding of texts.
#include "core/text_fields.h"

#include "platform/folded_name.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace zepril {
namespace {

constexpr int kSignificantDigits = 15;

// Length of the number at the front of `text` (no leading blanks): sign, digits, point, exponent.
std::size_t NumberLength(std::string_view text) {
  std::size_t at = 0;
  if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
  std::size_t digits = 0;
  bool point = false;
  while (at < text.size() && (IsDigit(text[at]) || (text[at] == '.' && !point))) {
    if (text[at] == '.') {
      point = true;
    } else {
      ++digits;
    }
    ++at;
  }
  if (digits == 0) return 0;
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    std::size_t end = at + 1;
    if (end < text.size() && (text[end] == '+' || text[end] == '-')) ++end;
    std::size_t exponent_digits = 0;
    while (end < text.size() && IsDigit(text[end])) {
      ++end;
      ++exponent_digits;
    }
    if (exponent_digits > 0) at = end;
  }
  return at;
}

// Digits and decimal exponent of |value| > 0: 0.d1d2d3... x 10^exponent, trailing zeros removed.
struct DecimalForm {
  std::string Digits;
  int Exponent = 0;
};

DecimalForm ToDecimal(double magnitude) {
  std::array<char, 64> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                    std::chars_format::scientific, kSignificantDigits - 1);
  const std::string_view printed(buffer.data(),
                                 static_cast<std::size_t>(result.ptr - buffer.data()));
  const std::size_t e = printed.find('e');
  DecimalForm form;
  for (char c : printed.substr(0, e)) {
    if (c != '.') form.Digits += c;
  }
  int exponent = 0;
  std::string_view exponent_text = printed.substr(e + 1);
  if (!exponent_text.empty() && exponent_text.front() == '+') exponent_text.remove_prefix(1);
  std::from_chars(exponent_text.data(), exponent_text.data() + exponent_text.size(), exponent);
  form.Exponent = exponent + 1;
  while (form.Digits.size() > 1 && form.Digits.back() == '0')
    form.Digits.pop_back();
  return form;
}

std::string MagnitudeText(double magnitude) {
  if (magnitude == 0.0) return "0";
  const DecimalForm form = ToDecimal(magnitude);
  const int count = static_cast<int>(form.Digits.size());
  if (form.Exponent > kSignificantDigits || form.Exponent < -kSignificantDigits) {
    std::string text = form.Digits.substr(0, 1);
    if (count > 1) text += "." + form.Digits.substr(1);
    const int exponent = form.Exponent - 1;
    text += exponent < 0 ? "E-" : "E+";
    return text + ZeroPadded(std::abs(exponent), 2);
  }
  if (form.Exponent <= 0)
    return "." + std::string(static_cast<std::size_t>(-form.Exponent), '0') + form.Digits;
  if (form.Exponent >= count) {
    return form.Digits + std::string(static_cast<std::size_t>(form.Exponent - count), '0');
  }
  const auto whole = static_cast<std::size_t>(form.Exponent);
  return form.Digits.substr(0, whole) + "." + form.Digits.substr(whole);
}

}  // namespace

double Val(std::string_view text) {
  while (!text.empty() && text.front() == ' ')
    text.remove_prefix(1);
  std::size_t length = NumberLength(text);
  if (length == 0) return 0.0;
  bool negative = text.front() == '-';
  if (text.front() == '+' || negative) {
    text.remove_prefix(1);
    --length;
  }
  double value = 0.0;
  const auto result = std::from_chars(text.data(), text.data() + length, value);
  if (result.ec == std::errc::result_out_of_range) {
    // Too large or too small to hold: the text tells which by the sign of its exponent.
    const std::size_t e = text.substr(0, length).find_first_of("eE");
    const bool tiny = e != std::string_view::npos && e + 1 < length && text[e + 1] == '-';
    const bool no_whole_part = text[text.find_first_not_of('0')] == '.';
    value = tiny || (e == std::string_view::npos && no_whole_part)
                ? 0.0
                : std::numeric_limits<double>::max();
  }
  return negative ? -value : value;
}

std::optional<std::int32_t> WholeVal(std::string_view text, std::int32_t lowest,
                                     std::int32_t highest) {
  const double rounded = RoundHalfEven(Val(text));
  if (rounded < lowest || rounded > highest) return std::nullopt;
  return static_cast<std::int32_t>(rounded);
}

bool IsNumericField(std::string_view text) {
  const std::string_view trimmed = Trim(text);
  return std::all_of(trimmed.begin(), trimmed.end(), [](char c) { return IsDigit(c) || c == '.'; });
}

std::string Str(double value) {
  std::string text = ShortNumber(value);
  return text.front() == '-' ? text : " " + text;
}

std::string ShortNumber(double value) {
  if (std::isnan(value)) return "0";
  if (std::isinf(value)) value = std::copysign(std::numeric_limits<double>::max(), value);
  const std::string magnitude = MagnitudeText(std::fabs(value));
  return value < 0.0 ? "-" + magnitude : magnitude;
}

std::string WholeNumber(std::int64_t value) {
  std::array<char, 24> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return {buffer.data(), result.ptr};
}

std::string FixedNumber(double value, int decimals) {
  if (!std::isfinite(value)) return "0";
  std::array<char, 400> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                    std::chars_format::fixed, std::clamp(decimals, 0, 9));
  std::string text(buffer.data(), result.ptr);
  if (text.front() == '-' && text.find_first_not_of("-0.") == std::string::npos) text.erase(0, 1);
  return text;
}

std::string ZeroPadded(std::int64_t value, std::size_t width) {
  std::string text = WholeNumber(value);
  if (text.size() < width) text.insert(0, width - text.size(), '0');
  return text;
}

double Int(double value) {
  return std::floor(value);
}

double Fix(double value) {
  return std::trunc(value);
}

double RoundHalfEven(double value) {
  const double down = std::floor(value);
  const double rest = value - down;
  if (rest < 0.5) return down;
  if (rest > 0.5) return down + 1.0;
  return std::fmod(down, 2.0) == 0.0 ? down : down + 1.0;
}

double Sgn(double value) {
  if (value > 0.0) return 1.0;
  return value < 0.0 ? -1.0 : 0.0;
}

std::int64_t ToWhole(double value) {
  constexpr double kLimit = 9.2e18;
  if (std::isnan(value)) return 0;
  return static_cast<std::int64_t>(RoundHalfEven(std::clamp(value, -kLimit, kLimit)));
}

std::int64_t IntegerQuotient(double dividend, double divisor) {
  const std::int64_t whole = ToWhole(divisor);
  return whole == 0 ? 0 : ToWhole(dividend) / whole;
}

std::int64_t IntegerRemainder(double dividend, double divisor) {
  const std::int64_t whole = ToWhole(divisor);
  return whole == 0 ? 0 : ToWhole(dividend) % whole;
}

std::string_view Mid(std::string_view text, std::ptrdiff_t start, std::ptrdiff_t length) {
  if (start < 1) {
    length += start - 1;
    start = 1;
  }
  if (length <= 0 || start > static_cast<std::ptrdiff_t>(text.size())) return {};
  return text.substr(static_cast<std::size_t>(start - 1), static_cast<std::size_t>(length));
}

std::string_view Mid(std::string_view text, std::ptrdiff_t start) {
  return Mid(text, std::max<std::ptrdiff_t>(start, 1), static_cast<std::ptrdiff_t>(text.size()));
}

std::string_view Left(std::string_view text, std::ptrdiff_t length) {
  return length <= 0 ? std::string_view{} : text.substr(0, static_cast<std::size_t>(length));
}

std::string_view Right(std::string_view text, std::ptrdiff_t length) {
  if (length <= 0) return {};
  const auto wanted = static_cast<std::size_t>(length);
  return wanted >= text.size() ? text : text.substr(text.size() - wanted);
}

std::ptrdiff_t InStr(std::ptrdiff_t start, std::string_view text, std::string_view wanted) {
  const std::size_t from = start < 1 ? 0 : static_cast<std::size_t>(start - 1);
  const std::size_t found = text.find(wanted, from);
  return found == std::string_view::npos ? 0 : static_cast<std::ptrdiff_t>(found) + 1;
}

std::ptrdiff_t InStr(std::string_view text, std::string_view wanted) {
  return InStr(1, text, wanted);
}

std::string_view TrimLeft(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string_view{} : text.substr(first);
}

std::string_view TrimRight(std::string_view text) {
  const std::size_t last = text.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string_view{} : text.substr(0, last + 1);
}

std::string_view Trim(std::string_view text) {
  return TrimLeft(TrimRight(text));
}

char UpperChar(char c) {
  return FoldedChar(c);
}

char LowerChar(char c) {
  const int code = Asc(c);
  if (code >= 'A' && code <= 'Z') return Chr(code + 32);
  if (code >= 0xC0 && code <= 0xDE && code != 0xD7) return Chr(code + 32);
  if (code == 0x8A || code == 0x8C || code == 0x8E) return Chr(code + 16);
  if (code == 0x9F) return Chr(0xFF);
  return c;
}

std::string Upper(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), UpperChar);
  return result;
}

std::string Lower(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), LowerChar);
  return result;
}

bool EqualFolded(std::string_view a, std::string_view b) {
  return SameName(a, b);
}

std::string PadLeft(std::string_view text, std::size_t width) {
  std::string result(text);
  if (result.size() < width) result.insert(0, width - result.size(), ' ');
  return result;
}

std::string PadRight(std::string_view text, std::size_t width) {
  std::string result(text);
  if (result.size() < width) result.append(width - result.size(), ' ');
  return result;
}

std::string Field(std::string_view text, std::size_t width) {
  return PadRight(text.substr(0, width), width);
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
  std::vector<std::string_view> pieces;
  std::size_t from = 0;
  for (;;) {
    const std::size_t at = text.find(separator, from);
    if (at == std::string_view::npos) {
      pieces.push_back(text.substr(from));
      return pieces;
    }
    pieces.push_back(text.substr(from, at - from));
    from = at + 1;
  }
}

std::string DoubledAmpersands(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (char c : text) {
    result += c;
    if (c == '&') result += c;
  }
  return result;
}

}  // namespace zepril
