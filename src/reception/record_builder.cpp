// Writes each value into its columns, with the marks between.
#include "reception/record_builder.h"

#include <algorithm>
#include <string>

#include "core/position_text.h"

namespace zepril {
namespace {

// A torn header may have a return inside a call. It would break the line of a log or history in
// two.
std::string WithoutReturns(std::string text) {
  std::replace(text.begin(), text.end(), '\r', ' ');
  return text;
}

}  // namespace

StationRecord BuildRecord(const DecodedPacket& packet) {
  StationRecord record;
  record.Put(1, 6, packet.PacketDate);
  record.Put(8, 11, packet.PacketTime);
  if (packet.TimestampStale) record.Put(12, 12, "T");
  record.Put(13, 13, {&StationRecord::kKeyMark, 1});
  record.Put(14, 22, RecordNorthText(packet.NorthMetres));
  record.Put(23, 31, RecordEastText(packet.EastMetres));
  record.Put(32, 32, {&packet.PacketMessageCapable, 1});
  record.Put(33, 41, WithoutReturns(packet.PacketCall));
  if (packet.PacketIsEmergency) record.Put(42, 42, "!");
  record.Put(43, 89, packet.PacketInfoText);
  if (packet.PacketIsObject) record.Put(90, 90, "_");
  record.Put(91, 100, WithoutReturns(packet.PacketHeardVia));
  record.Put(101, 103, packet.PacketSymbol);
  record.Put(105, 120, packet.PacketSymbolText);
  return record;
}

StationRecord HistoryRecord(const StationRecord& record) {
  StationRecord history = record;
  history.Put(42, 42, " ");
  history.Put(90, 90, " ");
  return history;
}

}  // namespace zepril
