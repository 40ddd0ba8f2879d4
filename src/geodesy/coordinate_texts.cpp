// Prints kilometres, degrees and locators with the columns of their signs.
#include "geodesy/coordinate_texts.h"

#include <algorithm>
#include <cmath>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr double kHighestKm = 9999.999;
constexpr double kLongFormMetres = 10000000.0;
constexpr std::size_t kTextColumns = 9;

enum class LongForm { Never, FromTenThousandKm };

// `metres` is not negative; `km` only tells zero and sign.
std::string TextOfMetres(double metres, double km, LongForm long_form) {
  // A number is printed with the blank of its sign place; an exact zero has none and four digits.
  std::string base = km == 0.0 ? "0000" : Str(metres);
  base = PadLeft(base, 8);
  std::string text = std::string(Left(base, 5)) + "." + std::string(Right(base, 3));
  if (long_form == LongForm::FromTenThousandKm && metres >= kLongFormMetres) {
    // Kept: nine characters cut as six and two; the digit between them is lost, so the last digits
    // shown are not those of the metres.
    text = std::string(Left(base, 6)) + "." + std::string(Right(base, 2));
  }
  if (km < 0.0) text.front() = '-';
  return text;
}

double MetresOf(double km) {
  return std::fabs(Int(km * 1000.0 + 0.01));
}

}  // namespace

std::string KilometreText(double km) {
  return TextOfMetres(MetresOf(km), km, LongForm::Never);
}

std::string GridNorthText(double km) {
  return KilometreText(km >= kHighestKm ? kHighestKm : km);
}

std::string GridEastText(double km) {
  return TextOfMetres(MetresOf(km), km, LongForm::FromTenThousandKm);
}

double RoundedToMetre(double km) {
  return Int((km + 0.0001) * 1000.0) / 1000.0;
}

std::string PointKilometreText(double km) {
  if (!(std::fabs(km) < kHighestKm)) return {};
  return TextOfMetres(std::fabs(km * 1000.0), km, LongForm::Never);
}

PositionTexts FormatGpsPositionTexts(double north_km, double east_km) {
  const auto text_of = [](double km) {
    return std::fabs(km) <= kHighestKm ? KilometreText(km) : std::string();
  };
  return {text_of(north_km), text_of(east_km)};
}

PositionTexts FormatPoiPositionTexts(double north_km, double east_km) {
  const PositionTexts texts = FormatGpsPositionTexts(north_km, east_km);
  return {PadRight(texts.North, kTextColumns), PadRight(texts.East, kTextColumns)};
}

std::string DegreeMinuteText(double degrees) {
  if (!std::isfinite(degrees)) degrees = 0.0;
  double deg = std::fabs(Fix(degrees));
  const double minutes = (std::fabs(degrees) - deg) * 60.0;
  double min = Fix(minutes);
  double hundredths = Fix((minutes - min) * 100.0);
  // Kept: cutting never lets these carries happen.
  if (hundredths > 99.0) {
    min += 1.0;
    hundredths -= 100.0;
  }
  if (min > 59.0) {
    deg += 1.0;
    min -= 60.0;
  }
  std::string text = PadLeft(WholeNumber(ToWhole(deg)), 3) + ":" + ZeroPadded(ToWhole(min), 2) +
                     "." + ZeroPadded(ToWhole(hundredths), 2);
  if (text.front() == ' ' && degrees < 0.0) text.front() = '-';
  return text;
}

std::string LocatorOf(double lat, double lon) {
  std::string text(6, ' ');
  if (!std::isfinite(lat) || !std::isfinite(lon)) return text;
  const double la = lat + 90.0;
  const double lo = lon + 180.0;
  const auto letter = [](double value) { return Chr(static_cast<int>(ToWhole(Int(value))) + 65); };
  const auto digit = [](double value) { return Chr(static_cast<int>(ToWhole(Int(value))) + '0'); };
  text[0] = letter(lo / 20.0);
  text[1] = letter(la / 10.0);
  text[2] = digit(std::fmod(Int(lo), 20.0) / 2.0);
  text[3] = digit(std::fmod(Int(la), 10.0));
  text[4] = letter((lo - 2.0 * Int(lo / 2.0)) * 60.0 / 5.0);
  text[5] = letter((la - Int(la)) * 60.0 / 2.5);
  return text;
}

}  // namespace zepril
