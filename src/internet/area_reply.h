// The stations of an area reply, read off its text, which is JSON but is not parsed: keys stand at
// known distances of each other, and a station whose keys stand elsewhere is none.
//
//   [{"callsign":"QX7GW","type":"S","posreceived":"2024-05-14
//   12:30:00","lat":52.5041,"lon":13.4052,
//     "symbolcode":">","symboltable":"/",...},...]
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/station_record.h"
#include "core/symbol_table.h"

namespace zepril {

struct AreaStation {
  std::string Call;          // upper case
  std::int64_t Seconds = 0;  // UTC, since 1970
  double Lat = 0.0;          // degrees
  double Lon = 0.0;
  std::string Symbol;  // table and code, and the overlay behind them
};

class AreaReply {
 public:
  // The text must outlive the object.
  explicit AreaReply(std::string_view text);

  // The next station; nothing when all are read. Objects, and what is no station, are passed over.
  std::optional<AreaStation> Next();

 private:
  std::string_view rest_;
};

// What the record of a station asks of its surroundings.
struct AreaContext {
  int UtcOffsetHours = 0;
  double MapCentralMeridian = 15.0;
  double MapFalseEasting = 500000.0;
};

// The record of a station in the map's grid; nothing off the grid. Kept: the shift by 0.00005
// degree goes away from zero here, other than in the decoder of packets.
std::optional<StationRecord> RecordOfStation(const AreaStation& station, const AreaContext& context,
                                             const SymbolTable& symbols);

// One of the two tells nothing new of the station: less than 2 minutes apart, or less than 0.05 km
// in both axes.
bool IsSameReport(const StationRecord& stored, const StationRecord& record);

}  // namespace zepril
