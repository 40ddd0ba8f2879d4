// Fills the emergency values of the state from a station's record.
#include "reception/emergency_report.h"

#include "geodesy/conversions.h"
#include "geodesy/coordinate_texts.h"
#include "reception/distance_alarm.h"

namespace zepril {

void FillEmergency(const StationRecord& record, const MapViewState& map, const std::string& path,
                   AlarmState& alarm) {
  constexpr double kMetresPerKm = 1000.0;
  alarm.AlarmCall = record.Call();
  alarm.AlarmTime = RecordTimeText(record);
  alarm.AlarmNorth = record.NorthText();
  alarm.AlarmEast = record.EastText();
  const Geodetic place = UtmToGeodetic(map.MapCentralMeridian, record.EastKm() * kMetresPerKm,
                                       record.NorthKm() * kMetresPerKm, map.MapFalseEasting);
  alarm.AlarmLat = DegreeMinuteText(place.Lat);
  alarm.AlarmLon = DegreeMinuteText(place.Lon);
  alarm.AlarmInfo = record.Info();
  alarm.AlarmFile = path;
}

}  // namespace zepril
