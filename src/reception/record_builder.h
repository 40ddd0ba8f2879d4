// The 120-column record of a decoded packet.
#pragma once

#include "core/station_record.h"
#include "reception/decoded_packet.h"

namespace zepril {

// Record for the list of all stations: with the marks of stale time stamp, object and emergency.
StationRecord BuildRecord(const DecodedPacket& packet);

// The same record as the history of the followed station holds it: without the marks of object and
// emergency (columns 90 and 42 blank).
StationRecord HistoryRecord(const StationRecord& record);

}  // namespace zepril
