// Copies the values of the newest record.
#include "reception/newest_values.h"

namespace zepril {

void TakeNewestValues(const StationStore& history, FollowedStationState& followed) {
  const StationRecord record = history.Count() > 0 ? history.At(history.Count()) : StationRecord();
  followed.MonitorDate = record.Date();
  followed.MonitorTime = record.Time();
  followed.MonitorNorthKm = record.NorthKm();
  followed.MonitorEastKm = record.EastKm();
  followed.MonitorHeardVia = record.HeardViaKey();
  followed.MonitorInfo = record.Info();
  followed.MonitorSymbol = record.Symbol();
  followed.MonitorSymbolText = record.SymbolText();
  if (followed.MonitorDate == "      ") followed.MonitorDate.clear();
  if (followed.MonitorTime == "    ") followed.MonitorTime.clear();
}

}  // namespace zepril
