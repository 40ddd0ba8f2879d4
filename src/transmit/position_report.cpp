// Columns of positions, time stamps and comments, and the lines that stand for files.
#include "transmit/position_report.h"

#include <algorithm>
#include <cstddef>

#include "core/text_fields.h"
#include "geodesy/conversions.h"
#include "geodesy/coordinate_texts.h"

namespace zepril {
namespace {

constexpr std::ptrdiff_t kLongestComment = 63;
constexpr std::ptrdiff_t kOverlayPosition = 10;
constexpr int kInfoLines = 6;
constexpr std::size_t kReadOfFile = 4U << 20;  // bytes; what another program writes may be anything
constexpr double kMetresPerKm = 1000.0;
constexpr std::int64_t kHourSeconds = 3600;

// " 48:30.15" -> "4830.15", two digits of degrees.
std::string Digits(const std::string& text) {
  std::string degrees(Mid(text, 2, 2));
  if (!degrees.empty() && degrees.front() == ' ') degrees.front() = '0';
  return degrees + std::string(Mid(text, 5, 5));
}

char Half(const std::string& text, char positive, char negative) {
  return text.starts_with("-") ? negative : positive;
}

bool IsBraced(std::string_view text) {
  return text.size() >= 2 && text.front() == '{' && text.back() == '}';
}

// The longest line of the file, the first of equals, without control characters.
std::string LongestLine(const std::string& path, const Files& files) {
  const std::string text = files.ReadRange(path, 0, kReadOfFile).value_or(std::string());
  std::string longest;
  std::string_view rest = text;
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find_first_of("\r\n"), rest.size());
    const std::string_view line = Trim(rest.substr(0, end));
    if (line.size() > longest.size()) longest = line;
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  std::erase_if(longest, [](char c) { return static_cast<unsigned char>(c) < 32; });
  return longest;
}

}  // namespace

DegreeTexts DegreeTextsOf(double north_km, double east_km, double central_meridian,
                          double false_easting) {
  const Geodetic place = UtmToGeodetic(central_meridian, east_km * kMetresPerKm,
                                       north_km * kMetresPerKm, false_easting);
  return {DegreeMinuteText(place.Lat), DegreeMinuteText(place.Lon)};
}

std::string PositionField(const DegreeTexts& texts, char table, char symbol) {
  std::string field = Digits(texts.Latitude);
  field += Half(texts.Latitude, 'N', 'S');
  field += table;
  field += '0';
  field += Digits(texts.Longitude);
  field += Half(texts.Longitude, 'E', 'W');
  field += symbol;
  return field;
}

bool TakesOverlay(const SymbolTable& symbols, int row) {
  return InStr(Upper(symbols.Row(row)), "NO.") > 0;
}

std::string PositionFieldOfRow(const DegreeTexts& texts, const SymbolTable& symbols, int row,
                               std::string_view overlay) {
  const std::string& symbol = symbols.Row(row);
  std::string field = PositionField(texts, symbol[0], symbol[1]);
  if (TakesOverlay(symbols, row) && !overlay.empty()) {
    field[static_cast<std::size_t>(kOverlayPosition) - 1] = overlay.front();
  }
  return field;
}

std::string UtcStamp(const LocalTime& now, int utc_offset_hours) {
  const LocalTime utc = TimeOfSeconds(SecondsOf(now) - utc_offset_hours * kHourSeconds);
  return ZeroPadded(utc.Day, 2) + ZeroPadded(utc.Hour, 2) + ZeroPadded(utc.Minute, 2) + "z";
}

std::string CommentField(std::string_view comment, const Files& files) {
  const std::string_view trimmed = Trim(comment);
  if (!IsBraced(trimmed)) {
    const std::string_view cut = Left(trimmed, kLongestComment);
    return cut.empty() ? std::string() : " " + std::string(cut);
  }
  const std::string path(trimmed.substr(1, trimmed.size() - 2));
  return std::string(Left(LongestLine(path, files), kLongestComment));
}

int NextInfoLine(int index, const std::array<int, 6>& active) {
  const auto is_active = [&](int line) { return active[static_cast<std::size_t>(line) - 1] != 0; };
  ++index;
  if (index > kInfoLines || index < 1) index = 1;
  // Inactive lines are passed over, with a wrap from the last to the first ...
  for (int line = 1; line <= kInfoLines; ++line) {
    if (index == line && !is_active(line)) index = line == kInfoLines ? 1 : line + 1;
  }
  // ... and once more. Kept: the last line does not wrap here.
  for (int line = 1; line < kInfoLines; ++line) {
    if (index == line && !is_active(line)) index = line + 1;
  }
  return index;
}

std::string ObjectReport(std::string_view name, std::string_view stamp, std::string_view position,
                         std::string_view text) {
  std::string report = ";";
  report.append(name).append("*").append(stamp).append(position).append(" ").append(text);
  return report;
}

std::string RetransmittedReport(const StationRecord& record, std::string_view own_call, int today,
                                const DegreeTexts& texts) {
  std::string report = "}";
  report.append(Trim(record.Columns(33, 41))).append(">ZEPRRE,").append(Trim(own_call));
  report.append("*:");
  if (today < Val(record.Columns(5, 6))) {
    report.append("!");
  } else {
    report.append("/").append(record.Columns(5, 6)).append(record.Columns(8, 11)).append("z");
  }
  report.append(
      PositionField(texts, record.Columns(101, 101).front(), record.Columns(102, 102).front()));
  report.append(" ").append(record.Columns(43, 89));
  return report;
}

}  // namespace zepril
