#include "reception/emergency_report.h"

#include <cmath>

#include "core/text_fields.h"
#include "geodesy/conversions.h"
#include "reception/distance_alarm.h"

namespace zepril {
namespace {

// " 52:30.24": degrees, minutes and hundredths, all cut; a sign only where a blank stands.
std::string DegreeMinuteText(double degrees) {
  const double whole = std::fabs(Fix(degrees));
  const double minutes = (std::fabs(degrees) - whole) * 60.0;
  const double whole_minutes = Fix(minutes);
  std::string text = PadLeft(WholeNumber(ToWhole(whole)), 3) + ":" +
                     ZeroPadded(ToWhole(whole_minutes), 2) + "." +
                     ZeroPadded(ToWhole(Fix((minutes - whole_minutes) * 100.0)), 2);
  if (text.front() == ' ' && degrees < 0.0) text.front() = '-';
  return text;
}

}  // namespace

void FillEmergency(const StationRecord& record, const MapViewState& map, const std::string& path,
                   AlarmState& alarm) {
  constexpr double kMetresPerKm = 1000.0;
  alarm.AlarmCall = record.Call();
  alarm.AlarmTime = RecordTimeText(record);
  alarm.AlarmNorth = record.NorthText();
  alarm.AlarmEast = record.EastText();
  const Geodetic place =
      UtmToGeodetic(map.MapCentralMeridian, record.EastKm() * kMetresPerKm,
                    record.NorthKm() * kMetresPerKm, map.MapFalseEasting);
  alarm.AlarmLat = DegreeMinuteText(place.Lat);
  alarm.AlarmLon = DegreeMinuteText(place.Lon);
  alarm.AlarmInfo = record.Info();
  alarm.AlarmFile = path;
}

}  // namespace zepril
