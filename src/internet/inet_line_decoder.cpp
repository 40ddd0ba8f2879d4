// Line after line: header, packet, record, stores; messages are handed on by whoever asked.
#include "internet/inet_line_decoder.h"

#include <algorithm>
#include <functional>

#include "reception/packet_decoder.h"
#include "reception/record_builder.h"

namespace zepril {
namespace {

constexpr std::int64_t kSecondsPerHour = 3600;

}  // namespace

bool IsFarAhead(std::int64_t seconds_utc, int utc_offset_hours, const Clock& clock) {
  constexpr std::int64_t kDay = 24 * kSecondsPerHour;
  return seconds_utc + utc_offset_hours * kSecondsPerHour > SecondsOf(clock.Now()) + kDay;
}

DecodedLines InetLineDecoder::DecodeInetLines(std::string_view text) {
  DecodedLines decoded;
  tools_.Keeper.BeginPage();
  for (const InetLine& line : CutInetLines(text)) {
    ++decoded.Lines;
    DecodeLine(line, decoded);
  }
  tools_.Keeper.EndPage();
  if (decoded.Messages.size() > kMostMessages) {
    decoded.Messages.erase(decoded.Messages.begin(), decoded.Messages.end() - kMostMessages);
  }
  return decoded;
}

void InetLineDecoder::DecodeLine(const InetLine& line, DecodedLines& decoded) {
  const int utc_offset = sections_.Settings.UtcOffsetHours;
  if (IsFarAhead(line.Seconds, utc_offset, tools_.LocalClock)) return;
  if (!ReadInetLine(line.Text, frame_)) return;
  if (IsOwnRetransmission(line.Text, frame_, sections_.Identity.MyCallFull)) return;
  // A time stamp is compared with the line's own time, or all of the past would count as stale.
  const DecodeContext context{TimeOfSeconds(line.Seconds + utc_offset * kSecondsPerHour),
                              utc_offset, sections_.View.MapCentralMeridian,
                              sections_.View.MapFalseEasting};
  const DecodeResult result = DecodePacket(frame_, context, tools_.Symbols, packet_);
  if (packet_.IsMessage) return NoteMessage(line, decoded);
  if (result.Outcome == DecodeOutcome::Packet) Keep(line, decoded);
}

void InetLineDecoder::Keep(const InetLine& line, DecodedLines& decoded) {
  const StationRecord record = BuildRecord(packet_);
  // Before it is in the list itself.
  const bool is_held = packet_.PacketIsEmergency && tools_.Keeper.HoldsEmergency(record);
  FrameLevel level = tools_.Keeper.StoreLine(record).value_or(FrameLevel::Nothing);
  if (level != FrameLevel::Nothing) ++decoded.Stored;
  if (packet_.PacketIsEmergency) level = TellEmergency(line, record, is_held, level);
  decoded.Level = std::max(decoded.Level, level);
}

// Ahead of the local clock it is negative.
std::int64_t InetLineDecoder::AgeOf(const InetLine& line) const {
  const std::int64_t offset = sections_.Settings.UtcOffsetHours * kSecondsPerHour;
  return SecondsOf(tools_.LocalClock.Now()) - (line.Seconds + offset);
}

// Replies overlap: a line is told of once. One that repeats what is in the list by its place is
// told of too, and shown unless the list has it as an emergency.
FrameLevel InetLineDecoder::TellEmergency(const InetLine& line, const StationRecord& record,
                                          bool is_held, FrameLevel stored) {
  const bool is_told = emergencies_.IsKnown(line.Text);
  if (is_told || is_held || AgeOf(line) > kShownSeconds) {
    if (!is_told) tools_.Keeper.LogEmergency(record, StationLogs::kInternetPosition);
    return std::min(stored, FrameLevel::MoniAll);
  }
  tools_.Keeper.RaiseEmergency(record, StationLogs::kInternetPosition);
  return FrameLevel::Emergency;
}

void InetLineDecoder::NoteMessage(const InetLine& line, DecodedLines& decoded) {
  if (messages_.IsKnown(line.Text)) return;
  decoded.Messages.push_back({packet_.PacketCall, packet_.PacketInfo, frame_.Header,
                              packet_.PacketDestination, AgeOf(line)});
}

bool KnownLines::IsKnown(std::string_view line) {
  const std::size_t hash = std::hash<std::string_view>{}(line);
  if (!hashes_.insert(hash).second) return true;
  in_order_.push_back(hash);
  if (in_order_.size() > kMostRemembered) {
    hashes_.erase(in_order_.front());
    in_order_.pop_front();
  }
  return false;
}

}  // namespace zepril
