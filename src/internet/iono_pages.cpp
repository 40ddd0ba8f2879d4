// Finds the marks of the pages, and the numbers at their places.
#include "internet/iono_pages.h"

#include <cstdint>
#include <string>

#include "core/iono_numbers.h"
#include "core/text_fields.h"

namespace zepril {
namespace {

// Columns from the beginning of a mark of page A to its value.
constexpr std::ptrdiff_t kValueOfMark = 14;
constexpr std::size_t kShortestPageB = 301;  // characters

// The number at the front of `text`, from 0 to `highest`; nothing where there is none.
std::optional<double> NumberIn(std::string_view text, double highest) {
  const std::string_view rest = TrimLeft(text);
  const std::size_t point = rest.starts_with('.') ? 1 : 0;
  if (rest.size() <= point || !IsDigit(rest[point])) return std::nullopt;
  const double value = Val(rest);
  if (!(value <= highest)) return std::nullopt;
  return value;
}

// The number of page A behind `mark`.
std::optional<double> Behind(std::string_view text, std::string_view mark, double highest) {
  const std::ptrdiff_t at = InStr(text, mark);
  if (at == 0) return std::nullopt;
  return NumberIn(Mid(text, at + kValueOfMark), highest);
}

// The line in which column `from` lies, from there on, without the blanks at its end; nothing where
// it does not end.
std::string_view RestOfLine(std::string_view text, std::ptrdiff_t from) {
  const std::string_view rest = Mid(text, from);
  const std::size_t end = rest.find_first_of("\r\n");
  return end == std::string_view::npos ? std::string_view() : TrimRight(rest.substr(0, end));
}

}  // namespace

IonoPageAValues ParseIonoPageA(std::string_view text) {
  const std::string page = Upper(text);
  IonoPageAValues values;
  const auto of_three_hours = Behind(page, "KIEL 3-HOUR K", kHighestK);
  const auto current = Behind(page, "KIEL CURRENT K", kHighestK);
  if (of_three_hours && current) {
    const std::int64_t tenths = IntegerQuotient(10.0 * (*of_three_hours + *current), 2.0);
    values.KpIndex = static_cast<double>(tenths) / 10.0;
  }
  values.SunspotNumber = Behind(page, "SUNSPOT NUMBER", kHighestSunspotNumber);
  return values;
}

IonoPageBValues ParseIonoPageB(std::string_view text) {
  IonoPageBValues values;
  const std::string page = Upper(text);
  const std::ptrdiff_t sunspots = InStr(page, " SSN ");
  values.IsPage = page.size() >= kShortestPageB && sunspots != 0;
  if (!values.IsPage) return values;
  values.SunspotNumber = NumberIn(Mid(page, sunspots + 4, 4), kHighestSunspotNumber);
  const std::ptrdiff_t planetary = InStr(page, " PLANETARY ");
  if (planetary != 0) values.KpIndex = NumberIn(Right(RestOfLine(page, planetary), 2), kHighestK);
  return values;
}

}  // namespace zepril
