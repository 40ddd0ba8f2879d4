// Leaves out what is known of a station, and stores the rest.
#include "internet/area_decoder.h"

#include <algorithm>

#include "internet/area_reply.h"
#include "internet/inet_line_decoder.h"

namespace zepril {

DecodedArea AreaDecoder::DecodeInetArea(std::string_view reply) {
  const AreaContext context{sections_.Settings.UtcOffsetHours, sections_.View.MapCentralMeridian,
                            sections_.View.MapFalseEasting};
  DecodedArea decoded;
  AreaReply stations(reply);
  calls_.clear();
  for (const StationRecord& record : sections_.Stores.MoniAllRecords.All())
    calls_.emplace(record.Columns(33, 41));
  tools_.Keeper.BeginPage();
  while (const auto station = stations.Next()) {
    if (IsFarAhead(station->Seconds, context.UtcOffsetHours, tools_.LocalClock)) continue;
    const auto record = RecordOfStation(*station, context, tools_.Symbols);
    if (!record) continue;
    ++decoded.Stations;
    if (!IsThere(*record) && tools_.Keeper.StoreStation(*record)) ++decoded.Stored;
  }
  tools_.Keeper.EndPage();
  return decoded;
}

bool AreaDecoder::IsThere(const StationRecord& record) {
  if (calls_.emplace(record.Columns(33, 41)).second) return false;
  const auto& stored = sections_.Stores.MoniAllRecords.All();
  return std::any_of(stored.begin(), stored.end(), [&record](const StationRecord& other) {
    return other.Columns(33, 41) == record.Columns(33, 41) && IsSameReport(other, record);
  });
}

}  // namespace zepril
