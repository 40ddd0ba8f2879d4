// The steps of decoding: time stamp, object, position, grid, comment, symbol, and what is refused.
#include "reception/packet_decoder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "core/text_fields.h"
#include "geodesy/conversions.h"
#include "reception/mic_e.h"
#include "reception/position_forms.h"

namespace zepril {
namespace {

constexpr std::size_t kLongestComment = 47;

// Puts two digits of a whole number behind `text`.
void AppendTwoDigits(std::string& text, int value) {
  const int held = ((value % 100) + 100) % 100;
  text += static_cast<char>('0' + held / 10);
  text += static_cast<char>('0' + held % 10);
}

int Number(std::string_view text) {
  return static_cast<int>(ToWhole(Val(text)));
}

// Takes over what the header told and clears the rest.
void Begin(AnalysedFrame& frame, DecodedPacket& packet) {
  std::swap(packet.PacketCall, frame.PacketCall);
  std::swap(packet.PacketDestination, frame.PacketDestination);
  std::swap(packet.PacketHeardVia, frame.PacketHeardVia);
  std::swap(packet.PacketInfo, frame.PacketInfo);
  packet.PacketType = frame.PacketType;
  for (std::string* text :
       {&packet.PacketLatText, &packet.PacketLonText, &packet.PacketSymbol,
        &packet.PacketSymbolText, &packet.PacketDate, &packet.PacketTime, &packet.PacketInfoText}) {
    text->clear();
  }
  packet.PacketLat = packet.PacketLon = 0.0;
  packet.PacketMessageCapable = ' ';
  packet.PacketIsObject = packet.PacketIsEmergency = false;
  packet.TimestampStale = packet.IsMessage = false;
}

// A time stamp behind "@" or "/". Of a third party it is taken as the record's time, unchecked; of
// others it only tells whether the sender's clock is right.
void ReadTimeStamp(bool third_party, const DecodeContext& context, DecodedPacket& packet) {
  constexpr std::int64_t kToleratedMinutes = 2;
  const std::string_view info = packet.PacketInfo;
  if (info.front() != '@' && info.front() != '/') return;
  const std::string_view kind = Mid(info, 8, 1);
  if (third_party) {
    if (kind != "z") return;
    AppendTwoDigits(packet.PacketDate, context.Now.Year);
    AppendTwoDigits(packet.PacketDate, context.Now.Month);
    packet.PacketDate += Mid(info, 2, 2);
    packet.PacketTime = Mid(info, 4, 4);
    return;
  }
  LocalTime stamp = context.Now;
  if (kind == "z") {
    stamp.Day = Number(Mid(info, 2, 2));
    stamp.Hour = Number(Mid(info, 4, 2));
    stamp.Minute = Number(Mid(info, 6, 2));
  } else if (kind == "h") {
    stamp.Hour = Number(Mid(info, 2, 2));
    stamp.Minute = Number(Mid(info, 4, 2));
  } else {
    return;
  }
  stamp.Hour += context.UtcOffsetHours;
  packet.TimestampStale = std::abs(MinutesOf(stamp) - MinutesOf(context.Now)) > kToleratedMinutes;
}

bool HoldsInColumns3To11(std::string_view info, char mark) {
  return Mid(info, 3, 9).find(mark) != std::string_view::npos;
}

// ";NAME     *stamp position" and ")NAME!position". False for the item whose name can't be cut.
// Live and killed objects are not told apart: "_" in place of "*" is no object here.
bool ReadObject(DecodedPacket& packet) {
  std::string& info = packet.PacketInfo;
  const bool is_object = info.front() == ';' && HoldsInColumns3To11(info, '*');
  const bool is_item = info.front() == ')' && HoldsInColumns3To11(info, '!');
  if (!is_object && !is_item) return true;
  // Kept: the name's end is looked for as "*" even in an item, which marks it with "!". So an item
  // has no end of name, and its decoding fails.
  const std::ptrdiff_t p = InStr(Left(info, 11), "*");
  const bool complete =
      static_cast<std::ptrdiff_t>(info.size()) > p + 10 && InStr(info, ".") > p + 3;
  if (!complete) return true;
  if (p < 2) return false;

  packet.PacketHeardVia = packet.PacketCall;
  packet.PacketCall = Upper(Trim(Mid(info, 2, p - 2)));
  info.erase(0, static_cast<std::size_t>(p - 1));
  constexpr std::ptrdiff_t kLastColumnWithoutStamp = 7;
  packet.PacketType = InStr(info, ".") > kLastColumnWithoutStamp ? '@' : '=';
  info.front() = packet.PacketType;
  if (Mid(info, 2, 1) == "/") {
    info.erase(0, 1);
    packet.PacketType = '/';
  }
  packet.PacketIsObject = true;
  return true;
}

bool HasNoPosition(const DecodedPacket& packet) {
  return packet.PacketLatText.empty() || packet.PacketLonText.empty();
}

// The forms in which a position may stand, one after the other. False when the information ends
// before its columns do.
bool ReadPosition(DecodedPacket& packet) {
  const char type = packet.PacketType;
  if (IsPositionType(type)) ReadPlainPosition(packet);
  if (type == '$') ReadNmeaPosition(packet);
  if (HasNoPosition(packet) && IsPositionType(type) && !ReadCompressedPosition(packet))
    return false;
  if (HasNoPosition(packet) && (type == '`' || type == '\'') && !ReadMicE(packet)) return false;
  return true;
}

// Degrees from the texts, also where the form had computed them already. Kept: the hemisphere is
// read from a fixed column, so NMEA texts with other than two decimals lose their sign.
void ComputeDegrees(DecodedPacket& packet) {
  if (packet.PacketLatText == kDirectLat && packet.PacketLonText == kDirectLon) return;
  packet.PacketLat = LatitudeOfText(packet.PacketLatText);
  packet.PacketLon = LongitudeOfText(packet.PacketLonText);
}

// Metres in the grid of the map zone. Kept: the shift by 0.00005 degree is added before the sign is
// put aside, so south and west it goes towards zero. False off the grid.
bool ComputeGrid(const DecodeContext& context, DecodedPacket& packet) {
  constexpr double kShift = 0.00005;
  constexpr double kFarthestMetres = 9999000.0;
  const auto shifted = [](double value) { return Sgn(value) * std::fabs(value + kShift); };
  const GridMetres grid = GeodeticToUtm(shifted(packet.PacketLon), shifted(packet.PacketLat),
                                        context.MapCentralMeridian, context.MapFalseEasting);
  // Written so that no number at all counts as off the grid.
  if (!(std::fabs(grid.North) <= kFarthestMetres && std::fabs(grid.East) <= kFarthestMetres)) {
    return false;
  }
  packet.NorthMetres = Fix(grid.North);
  packet.EastMetres = Int(grid.East);
  return true;
}

// The local time of reception, unless a third party has stamped the packet.
void SetDateAndTime(const LocalTime& now, DecodedPacket& packet) {
  if (!packet.PacketDate.empty()) return;
  AppendTwoDigits(packet.PacketDate, now.Year);
  AppendTwoDigits(packet.PacketDate, now.Month);
  AppendTwoDigits(packet.PacketDate, now.Day);
  AppendTwoDigits(packet.PacketTime, now.Hour);
  AppendTwoDigits(packet.PacketTime, now.Minute);
}

DecodeResult Dropped(DropReason reason) {
  return {DecodeOutcome::Dropped, reason};
}

}  // namespace

std::string_view DropText(DropReason reason) {
  constexpr std::array<std::string_view, kDropReasons> kTexts{"own packet gated back",
                                                              "header too short",
                                                              "not marked as heard",
                                                              "own echo",
                                                              "message",
                                                              "information too short",
                                                              "no position",
                                                              "near the equator",
                                                              "off the grid",
                                                              "no line feed before it"};
  return kTexts[static_cast<std::size_t>(reason)];
}

std::string CleanComment(std::string_view text) {
  constexpr std::size_t kPrefixColumns = 6;
  const std::size_t brace = text.substr(0, kPrefixColumns).find('}');
  if (brace != std::string_view::npos) text.remove_prefix(brace + 1);
  // Kept: the text before an altitude is lost with it, and the altitude is not stored.
  constexpr std::string_view kAltitude = "/A=";
  const std::size_t altitude = text.find(kAltitude);
  if (altitude != std::string_view::npos) {
    text.remove_prefix(altitude + kAltitude.size());
    while (!text.empty() && IsDigit(text.front()))
      text.remove_prefix(1);
  }
  return std::string(Trim(text));
}

std::string HeldComment(std::string_view text) {
  if (text.size() <= kLongestComment) return std::string(text);
  return std::string(text.substr(0, kLongestComment - 1)) + "~";
}

void ResolveSymbol(const SymbolTable& symbols, DecodedPacket& packet) {
  std::string& symbol = packet.PacketSymbol;
  if (symbol.empty()) symbol = "/\"";
  if (symbol.front() != '/' && symbol.front() != '\\') {
    symbol = {'\\', symbol.size() > 1 ? symbol[1] : ' ', symbol.front()};
  }
  TableSymbol resolved = ClampedSymbol(symbol);
  packet.SymbolIndex = resolved.Index;
  symbol = std::move(resolved.Symbol);
  if (packet.SymbolIndex == SymbolTable::kEmergencyIndex) packet.PacketIsEmergency = true;
  packet.PacketSymbolText.assign(1, symbol.size() > 2 ? symbol[2] : ' ');
  packet.PacketSymbolText += ' ';
  packet.PacketSymbolText += symbols.NameAndClass(packet.SymbolIndex);
}

DecodeResult DecodePacket(AnalysedFrame& frame, const DecodeContext& context,
                          const SymbolTable& symbols, DecodedPacket& packet) {
  Begin(frame, packet);
  if (!packet.PacketInfo.empty()) {
    // Time stamp, object, message.
    ReadTimeStamp(frame.ThirdParty, context, packet);
    if (!ReadObject(packet)) return {DecodeOutcome::Recovery, DropReason::NoPosition};
    packet.IsMessage = packet.PacketInfo.front() == ':' && Mid(packet.PacketInfo, 11, 1) == ":";
    // Position in one of its forms.
    if (!ReadPosition(packet)) return Dropped(DropReason::TooShort);
    // Prefixes and altitude go out of the comment.
    if (!packet.PacketInfoText.empty()) packet.PacketInfoText = CleanComment(packet.PacketInfoText);
  }

  // Acceptance: without call, destination and position there is nothing to keep.
  if (packet.IsMessage) return Dropped(DropReason::Message);
  if (packet.PacketCall.empty() || packet.PacketDestination.empty() || HasNoPosition(packet)) {
    return Dropped(DropReason::NoPosition);
  }

  ComputeDegrees(packet);

  // A position at the equator is that of a receiver without a fix. Longitude is not tested.
  constexpr double kNearEquator = 0.02;
  if (std::fabs(packet.PacketLat) <= kNearEquator) return Dropped(DropReason::NearEquator);

  if (!ComputeGrid(context, packet)) return Dropped(DropReason::OffTheGrid);
  SetDateAndTime(context.Now, packet);
  ResolveSymbol(symbols, packet);
  if (packet.PacketInfoText.size() > kLongestComment) {
    packet.PacketInfoText = HeldComment(packet.PacketInfoText);
  }
  return {DecodeOutcome::Packet, DropReason::NoPosition};
}

}  // namespace zepril
