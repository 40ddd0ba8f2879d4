// Takes sentences apart by tables of their fields.
#include "gps/nmea_sentences.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/text_fields.h"
#include "core/texts/gps_texts.h"
#include "platform/code_page.h"

namespace zepril {
namespace {

// By preference: the first tells the time too.
constexpr std::array<NmeaFields, 3> kKinds{
    {{"RMC,", 1, 3, 4, 5, 6, 9}, {"GGA,", 0, 2, 3, 4, 5, 0}, {"GLL,", 0, 1, 2, 3, 4, 0}}};
constexpr int kOftenEnough = 4;  // so many of a kind end the search
constexpr double kLongestStep = 10.0;
constexpr double kFarthestStep = 1.0;  // of ddmm.mmmm: a minute of arc

bool SameText(const NmeaPair& pair, int field) {
  return field == 0 || GetNmeaField(pair.Older, field) == GetNmeaField(pair.Newer, field);
}

// An empty field reads as 0, which is no place.
bool AngleAgrees(const NmeaPair& pair, int field) {
  const double newer = Val(GetNmeaField(pair.Newer, field));
  const double older = Val(GetNmeaField(pair.Older, field));
  return newer != 0.0 && std::fabs(newer - older) <= kFarthestStep;
}

// ---- Position -------------------------------------------------------------------------------

// The fraction of a degree as plain text: ".50250000", however small it is.
std::string FractionText(double minutes) {
  constexpr double kParts = 100000000.0;
  constexpr int kPlaces = 8;
  const double fraction = Fix(minutes * kParts / 60.0) / kParts;
  if (!(fraction > 0.0)) return ".0";
  const std::string text = FixedNumber(fraction, kPlaces);
  return text.starts_with("0.") ? text.substr(1) : text;
}

// Degrees of "ddmm.mmmm" without a sign, of exactly `width` characters.
std::string DegreesText(std::string_view field, int degree_digits, std::size_t width) {
  std::string text(Left(field, degree_digits));
  text += FractionText(Val(Mid(field, degree_digits + 1)));
  text.resize(width, '0');
  return text;
}

std::string LatitudeText(std::string_view field, std::string_view letter) {
  std::string text = (letter == "S" ? "-" : " ") + DegreesText(field, 2, 8);
  if (text[1] == '0') text.erase(1, 1);
  return text;
}

// Up to two leading zeros of the degrees go, but not the last one before the point.
std::string LongitudeText(std::string_view field, std::string_view letter) {
  std::string text = (letter == "W" ? "-" : " ") + DegreesText(field, 3, 9);
  for (int zeros = 0; zeros < 2 && text[1] == '0' && IsDigit(text[2]); ++zeros)
    text.erase(1, 1);
  return text;
}

// ---- The line over the map --------------------------------------------------------------------

// What can't be a value of a sentence is none: it may be torn.
std::string_view ValueOf(std::string_view finished, std::string_view word, int field) {
  constexpr std::size_t kLongestValue = 20;
  const std::size_t found = finished.find(word);
  if (found == std::string_view::npos) return {};
  const std::string_view value = Trim(GetNmeaField(finished.substr(found), field));
  const bool torn = std::any_of(value.begin(), value.end(), IsControlCharacter);
  return torn || value.size() > kLongestValue ? std::string_view() : value;
}

std::string Piece(Text piece, std::string_view value) {
  constexpr std::size_t kWidth = 10;
  if (value.empty()) return {};
  std::string filled(kWidth - std::min(kWidth, value.size()), gps_texts::kFill);
  filled += value;
  std::replace_if(filled.begin(), filled.end(), IsControlCharacter, gps_texts::kFill);
  return piece.With({filled});
}

// In metres, whole ones of feet.
std::string Metres(std::string_view value, std::string_view unit) {
  constexpr double kMetresPerFoot = 0.3048;
  if (value.empty() || !EqualFolded(unit, "F")) return std::string(value);
  return ShortNumber(Int(Val(value) * kMetresPerFoot));
}

std::string LengthOf(std::string_view finished, std::string_view word, int field) {
  return Metres(ValueOf(finished, word, field), ValueOf(finished, word, field + 1));
}

std::string HeightPiece(std::string_view finished) {
  std::string height;
  for (const auto& [word, field] :
       {std::pair{"RMA,", 1}, std::pair{"RMZ,", 1}, std::pair{"GGA,", 9}}) {
    const std::string value = LengthOf(finished, word, field);
    if (!value.empty()) height = value;
  }
  return Piece(gps_texts::kHeight, height);
}

std::string SpeedPieces(std::string_view finished) {
  constexpr double kKmPerNauticalMile = 1.852;
  const std::string_view told = ValueOf(finished, "RMC,", 7);
  std::string kilometres;
  if (!told.empty()) kilometres = ShortNumber(Fix(Val(told) * kKmPerNauticalMile));
  std::string knots(told);
  // Kept: by the standard it is the other way round, field 5 the knots and 7 the kilometres.
  if (const auto value = ValueOf(finished, "VTG,", 5); !value.empty()) kilometres = value;
  if (const auto value = ValueOf(finished, "VTG,", 7); !value.empty()) knots = value;
  return Piece(gps_texts::kKilometresPerHour, kilometres) + Piece(gps_texts::kKnots, knots);
}

std::string SatellitesPiece(std::string_view finished) {
  const std::string used(ValueOf(finished, "GGA,", 7));
  const std::string in_view(ValueOf(finished, "GSV,", 3));
  if (used.empty() && in_view.empty()) return {};
  return Piece(gps_texts::kSatellites, used + "/" + in_view);
}

// ---- Time -------------------------------------------------------------------------------------

bool AllDigits(std::string_view text) {
  return std::all_of(text.begin(), text.end(), IsDigit);
}

int TwoDigits(std::string_view text, int column) {
  return WholeVal(Mid(text, column, 2), 0, 99).value_or(0);
}

// Of DDMMYY and HHMMSS; nothing for what the calendar does not know.
std::optional<LocalTime> UtcOf(std::string_view date, std::string_view time) {
  if (date.size() != 6 || time.size() != 6 || !AllDigits(date) || !AllDigits(time)) {
    return std::nullopt;
  }
  const LocalTime utc{2000 + TwoDigits(date, 5), TwoDigits(date, 3), TwoDigits(date, 1),
                      TwoDigits(time, 1),        TwoDigits(time, 3), TwoDigits(time, 5)};
  // A day that the month does not have lies in another one.
  const bool real = TimeOfSeconds(SecondsOf({utc.Year, utc.Month, utc.Day})).Month == utc.Month &&
                    utc.Hour < 24 && utc.Minute < 60 && utc.Second < 60;
  return real ? std::optional(utc) : std::nullopt;
}

}  // namespace

std::string_view GetNmeaField(std::string_view sentence, int n) {
  constexpr std::string_view kSeparators = ",*";
  for (int field = 0; field < n; ++field) {
    const std::size_t end = sentence.find_first_of(kSeparators);
    if (end == std::string_view::npos) return {};
    sentence.remove_prefix(end + 1);
  }
  return sentence.substr(0, sentence.find_first_of(kSeparators));
}

std::string_view FinishedNmea(std::string_view buffer) {
  const std::size_t end = buffer.find_last_of("\r\n");
  return end == std::string_view::npos ? std::string_view() : buffer.substr(0, end + 1);
}

std::optional<NmeaPair> LastNmeaPair(std::string_view finished) {
  std::array<NmeaPair, kKinds.size()> pairs{};
  std::array<int, kKinds.size()> seen{};
  bool enough = false;
  for (std::size_t at = finished.size(); at-- > 0 && !enough;) {
    for (std::size_t kind = 0; kind < kKinds.size(); ++kind) {
      if (!finished.substr(at).starts_with(kKinds[kind].Word)) continue;
      if (seen[kind] == 0) pairs[kind].Newer = finished.substr(at);
      if (seen[kind] == 1) pairs[kind].Older = finished.substr(at);
      enough = ++seen[kind] == kOftenEnough;
    }
  }
  for (std::size_t kind = 0; kind < kKinds.size(); ++kind) {
    if (seen[kind] < 2) continue;
    pairs[kind].Kind = &kKinds[kind];
    return pairs[kind];
  }
  return std::nullopt;
}

bool IsOnEarth(const NmeaPosition& position) {
  return std::fabs(Val(position.Latitude)) <= 90.0 && std::fabs(Val(position.Longitude)) <= 180.0;
}

bool PairAgrees(const NmeaPair& pair) {
  const NmeaFields& at = *pair.Kind;
  const auto time = [&](std::string_view sentence) { return Val(GetNmeaField(sentence, at.Time)); };
  const bool in_time =
      at.Time == 0 || std::fabs(time(pair.Newer) - time(pair.Older)) <= kLongestStep;
  return in_time && AngleAgrees(pair, at.Latitude) && SameText(pair, at.NorthSouth) &&
         AngleAgrees(pair, at.Longitude) && SameText(pair, at.EastWest) && SameText(pair, at.Date);
}

NmeaPosition PositionOf(const NmeaPair& pair) {
  const NmeaFields& at = *pair.Kind;
  const std::string_view north_south = GetNmeaField(pair.Newer, at.NorthSouth);
  const std::string_view east_west = GetNmeaField(pair.Newer, at.EastWest);
  NmeaPosition position;
  position.Latitude = LatitudeText(GetNmeaField(pair.Newer, at.Latitude), north_south);
  position.Longitude = LongitudeText(GetNmeaField(pair.Newer, at.Longitude), east_west);
  position.LatitudeShown =
      std::string(Left(position.Latitude, 6)) + std::string(Left(north_south, 1));
  position.LongitudeShown =
      std::string(Left(position.Longitude, 7)) + std::string(Left(east_west, 1));
  return position;
}

std::optional<LocalTime> ClockTimeOf(const NmeaPair& pair, int utc_offset_hours) {
  constexpr int kTooLate = 55;  // with five seconds more the minute would be another
  constexpr int kWayHere = 5;
  constexpr std::int64_t kHourSeconds = 3600;
  const std::string_view time = GetNmeaField(pair.Newer, pair.Kind->Time);
  // Where there is no date its field is the word.
  const auto utc = UtcOf(GetNmeaField(pair.Newer, pair.Kind->Date), Left(time, 6));
  if (!utc || utc->Second >= kTooLate) return std::nullopt;
  return TimeOfSeconds(SecondsOf(*utc) + kWayHere + utc_offset_hours * kHourSeconds);
}

std::string GpsInfoLine(std::string_view finished, const NmeaPosition& position) {
  return std::string(gps_texts::kInfo) + Piece(gps_texts::kNorth, position.LatitudeShown) +
         Piece(gps_texts::kEast, position.LongitudeShown) + HeightPiece(finished) +
         SpeedPieces(finished) + Piece(gps_texts::kHorizontalError, LengthOf(finished, "RME,", 1)) +
         Piece(gps_texts::kVerticalError, LengthOf(finished, "RME,", 3)) +
         SatellitesPiece(finished);
}

}  // namespace zepril
