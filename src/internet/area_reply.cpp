// Scans for keys and values, and makes records of what it finds.
#include "internet/area_reply.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "core/position_text.h"
#include "core/text_fields.h"
#include "geodesy/conversions.h"
#include "internet/inet_requests.h"
#include "platform/clock.h"

namespace zepril {
namespace {

constexpr auto kNone = std::string_view::npos;
constexpr std::string_view kCallKey = "callsign";
constexpr int kNoSymbolRow = 2;

bool IsWithin(std::ptrdiff_t column, std::ptrdiff_t first, std::ptrdiff_t last) {
  return column >= first && column <= last;
}

bool IsPlain(char c) {
  return Asc(c) > ' ' && c != '"';
}

// "2024-05-14 12:30:00"; the seconds are left out.
std::optional<std::int64_t> TimeOfValue(std::string_view value) {
  const auto number = [value](int start, int length) {
    const std::string_view digits = Mid(value, start, length);
    const bool all = static_cast<int>(digits.size()) == length &&
                     std::all_of(digits.begin(), digits.end(), IsDigit);
    return all ? static_cast<int>(ToWhole(Val(digits))) : -1;
  };
  const LocalTime time{number(1, 4), number(6, 2), number(9, 2), number(12, 2), number(15, 2), 0};
  if (std::min({time.Year, time.Month, time.Day, time.Hour, time.Minute}) < 0) return std::nullopt;
  return SecondsOf(time);
}

// A number that runs to the next comma.
std::optional<double> NumberOf(std::string_view value) {
  constexpr std::ptrdiff_t kFirstComma = 2;
  constexpr std::ptrdiff_t kLastComma = 29;
  const std::ptrdiff_t comma = InStr(value, ",");
  if (!IsWithin(comma, kFirstComma, kLastComma)) return std::nullopt;
  return Val(Left(value, comma - 1));
}

// The one character of a value that begins at `column`. A quote there is passed over; "\/" and "\""
// are how some servers write "/" and the quote.
char CharacterAt(std::string_view text, std::ptrdiff_t column) {
  if (Mid(text, column, 3) == R"(\"")") return '"';
  if (Mid(text, column, 2) == R"(\/)") return '/';
  if (Mid(text, column, 1) == "\"") ++column;
  const std::string_view found = Mid(text, column, 1);
  return found.empty() ? '\0' : found.front();
}

// `text` begins with the latitude, from which both keys are counted. Empty when they are not there.
std::string SymbolBehind(std::string_view text) {
  const std::ptrdiff_t code_key = InStr(text, "symbolcode");
  const std::ptrdiff_t table_key = InStr(text, "symboltable");
  if (!IsWithin(code_key, 21, 59) || !IsWithin(table_key, 36, 89)) return {};
  const char code = CharacterAt(text, code_key + 13);
  const char table = CharacterAt(text, table_key + 14);
  if (table == '/' || table == '\\') return {table, code};
  return {'\\', code, table};
}

// The row whose first two characters are those of the symbol; row 2 without one.
int RowOf(std::string_view symbol, const SymbolTable& symbols) {
  const std::string_view wanted = symbol.substr(0, 2);
  const int index = wanted.size() == 2 ? RawSymbolIndex(wanted[0], wanted[1]) : 0;
  if (index < 1 || index > SymbolTable::kLastIndex) return kNoSymbolRow;
  return Left(symbols.Row(index), 2) == wanted ? index : kNoSymbolRow;
}

void PutSymbol(std::string_view symbol, const SymbolTable& symbols, StationRecord& record) {
  const int row = RowOf(symbol, symbols);
  const bool has_overlay = row != kNoSymbolRow && symbol.size() > 2 && Asc(symbol[2]) > ' ';
  const char overlay = has_overlay ? symbol[2] : ' ';
  record.Put(101, 103, std::string(Left(symbols.Row(row), 2)) + overlay);
  record.Put(105, 120, std::string{overlay, ' '} + symbols.NameAndClass(row));
}

std::string DateAndTime(const LocalTime& time) {
  return ZeroPadded(time.Year % 100, 2) + ZeroPadded(time.Month, 2) + ZeroPadded(time.Day, 2) +
         " " + ZeroPadded(time.Hour, 2) + ZeroPadded(time.Minute, 2);
}

// The call runs to the first quote with a comma behind it. Empty for what is none, and for an
// object, which is no station. `text` begins with the key.
std::string_view CallOf(std::string_view text) {
  const std::string_view value = Mid(text, 12);
  const std::size_t end = value.find("\",");
  if (end == kNone || IsWithin(InStr(text, R"("type":"O")"), 16, 39)) return {};
  const std::string_view call = value.substr(0, end);
  return std::all_of(call.begin(), call.end(), IsPlain) ? call : std::string_view();
}

// `text`: from the key of the call to that of the next one.
std::optional<AreaStation> ReadStation(std::string_view text) {
  constexpr std::string_view kTimeKey = "posreceived";
  constexpr double kNoPosition = 0.01;  // degrees
  const std::string_view call = CallOf(text);
  const std::size_t time_key = text.find(kTimeKey);
  if (call.empty() || time_key == kNone) return std::nullopt;
  const std::string_view time_text = Mid(text.substr(time_key), 15);
  const std::optional<std::int64_t> seconds = TimeOfValue(time_text);
  const std::ptrdiff_t lat_key = InStr(time_text, R"("lat":)");
  if (!seconds || !IsWithin(lat_key, 16, 29)) return std::nullopt;
  const std::string_view lat_text = Mid(time_text, lat_key + 6);
  const std::ptrdiff_t lon_key = InStr(lat_text, R"("lon":)");
  if (!IsWithin(lon_key, 6, 29)) return std::nullopt;
  const std::optional<double> lat = NumberOf(lat_text);
  const std::optional<double> lon = NumberOf(Mid(lat_text, lon_key + 6));
  const std::string symbol = SymbolBehind(lat_text);
  if (!lat || !lon || symbol.empty()) return std::nullopt;
  if (std::fabs(*lat) <= kNoPosition || std::fabs(*lon) <= kNoPosition) return std::nullopt;
  return AreaStation{Upper(call), *seconds, *lat, *lon, symbol};
}

}  // namespace

AreaReply::AreaReply(std::string_view text)
    : rest_(text.find('[') != kNone ? text : std::string_view()) {}

std::optional<AreaStation> AreaReply::Next() {
  constexpr std::size_t kShortestStation = 100;
  for (;;) {
    const std::size_t key = rest_.find(kCallKey);
    if (key == kNone || rest_.size() - key <= kShortestStation) return std::nullopt;
    // What belongs to the next station is none of this one's.
    const std::size_t next = rest_.find(kCallKey, key + kCallKey.size());
    const std::string_view text = rest_.substr(key, next == kNone ? kNone : next - key);
    rest_.remove_prefix(next == kNone ? rest_.size() : next);
    if (auto station = ReadStation(text)) return station;
  }
}

std::optional<StationRecord> RecordOfStation(const AreaStation& station, const AreaContext& context,
                                             const SymbolTable& symbols) {
  constexpr double kShift = 0.00005;
  constexpr double kFarthestMetres = 9999000.0;
  constexpr std::int64_t kSecondsPerHour = 3600;
  if (!(std::fabs(station.Lat) <= 90.0 && std::fabs(station.Lon) <= 180.0)) return std::nullopt;
  const auto shifted = [](double value) { return Sgn(value) * (std::fabs(value) + kShift); };
  const GridMetres grid = GeodeticToUtm(shifted(station.Lon), shifted(station.Lat),
                                        context.MapCentralMeridian, context.MapFalseEasting);
  // Written so that no number at all counts as off the grid.
  if (!(std::fabs(grid.North) <= kFarthestMetres && std::fabs(grid.East) <= kFarthestMetres))
    return std::nullopt;
  StationRecord record;
  const LocalTime time = TimeOfSeconds(station.Seconds + context.UtcOffsetHours * kSecondsPerHour);
  record.Put(1, 11, DateAndTime(time));
  record.Put(13, 13, {&StationRecord::kKeyMark, 1});
  record.Put(14, 22, RecordNorthText(Fix(grid.North)));
  record.Put(23, 31, RecordEastText(Int(grid.East)));
  record.Put(33, 41, station.Call);
  record.Put(91, 100, "inet");
  PutSymbol(station.Symbol, symbols, record);
  return record;
}

bool IsSameReport(const StationRecord& stored, const StationRecord& record) {
  constexpr std::int64_t kMinutes = 2;
  constexpr double kKilometres = 0.05;
  const std::int64_t apart =
      MinutesOf(TimeOfRecord(stored.DateAndTime())) - MinutesOf(TimeOfRecord(record.DateAndTime()));
  if (std::abs(apart) < kMinutes) return true;
  // Whole metres, so that 50 of them are not a little less.
  const auto metres = [](double km) { return RoundHalfEven(km * 1000.0); };
  const double limit = kKilometres * 1000.0;
  return std::fabs(metres(stored.NorthKm()) - metres(record.NorthKm())) < limit &&
         std::fabs(metres(stored.EastKm()) - metres(record.EastKm())) < limit;
}

}  // namespace zepril
