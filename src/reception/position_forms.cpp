// Reads each form by its columns: plain, NMEA sentences, base 91.
#include "reception/position_forms.h"

#include <algorithm>
#include <array>

#include "core/text_fields.h"

namespace zepril {
namespace {

void AssignUpper(std::string& target, std::string_view text) {
  target.assign(text);
  std::transform(target.begin(), target.end(), target.begin(), UpperChar);
}

// Character at a column that may lie outside the text; 0 there.
char CharAt(std::string_view text, std::ptrdiff_t column) {
  return column >= 1 && column <= static_cast<std::ptrdiff_t>(text.size())
             ? text[static_cast<std::size_t>(column - 1)]
             : '\0';
}

void MarkMessageCapable(DecodedPacket& packet) {
  if (packet.PacketType == '@' || packet.PacketType == '=') packet.PacketMessageCapable = '\'';
}

// Offset of `first` in `text`, or else of `second`.
std::size_t FindEither(std::string_view text, std::string_view first, std::string_view second) {
  const std::size_t found = text.find(first);
  return found != std::string_view::npos ? found : text.find(second);
}

// The field that ends before the comma at `comma`, with the hemisphere letter behind that comma.
std::string NmeaField(std::string_view text, std::size_t comma) {
  const std::string_view before = text.substr(0, comma);
  const std::size_t previous = before.rfind(',');
  std::string field(previous == std::string_view::npos ? before : before.substr(previous + 1));
  field += text[comma + 1];
  return field;
}

std::string_view SymbolOfSsid(std::string_view call) {
  constexpr std::array<std::string_view, 16> kSymbols{
      "", "/a", "/U", "/f", "/b", "/Y", "/X", "/'", "/s", "/>", "/<", "/O", "/j", "/R", "/k", "/v"};
  const std::size_t hyphen = call.find('-');
  if (hyphen == std::string_view::npos) return {};
  const std::int64_t ssid = ToWhole(Val(call.substr(hyphen + 1)));
  return ssid >= 0 && ssid < static_cast<std::int64_t>(kSymbols.size())
             ? kSymbols[static_cast<std::size_t>(ssid)]
             : std::string_view{};
}

// Four characters of base 91 from column `first` on.
double Base91(std::string_view text, std::ptrdiff_t first) {
  double sum = 0.0;
  for (std::ptrdiff_t column = first; column < first + 4; ++column) {
    sum = sum * 91.0 + (Asc(CharAt(text, column)) - 33);
  }
  return sum;
}

}  // namespace

bool IsPositionType(char type) {
  return type == '/' || type == '=' || type == '!' || type == '@';
}

double LatitudeOfText(std::string_view text) {
  const double degrees = Val(Mid(text, 1, 2)) + Val(Mid(text, 3, 5)) / 60.0;
  return CharAt(text, 8) == 'S' ? -degrees : degrees;
}

double LongitudeOfText(std::string_view text) {
  const double degrees = Val(Mid(text, 1, 3)) + Val(Mid(text, 4, 5)) / 60.0;
  return CharAt(text, 9) == 'W' ? -degrees : degrees;
}

void ReadPlainPosition(DecodedPacket& packet) {
  constexpr std::ptrdiff_t kFirstPointColumn = 5;
  const std::string_view info = packet.PacketInfo;
  MarkMessageCapable(packet);

  // The latitude stands around the first point, its hemisphere letter three behind.
  const std::ptrdiff_t a = InStr(info, ".");
  if (a < kFirstPointColumn) return;
  const char north_south = UpperChar(CharAt(info, a + 3));
  if (north_south != 'N' && north_south != 'S') return;
  AssignUpper(packet.PacketLatText, Mid(info, a - 4, 8));
  if (!IsNumericField(Left(packet.PacketLatText, 7))) packet.PacketLatText.clear();
  packet.PacketLat = LatitudeOfText(packet.PacketLatText);

  // The longitude stands around the next point.
  const std::ptrdiff_t b = InStr(a + 1, info, ".");
  if (b <= a + 1) return;
  const char east_west = UpperChar(CharAt(info, b + 3));
  if (east_west != 'E' && east_west != 'W') return;
  AssignUpper(packet.PacketLonText, Mid(info, b - 5, 9));
  if (!IsNumericField(Left(packet.PacketLonText, 8))) packet.PacketLonText.clear();
  packet.PacketLon = LongitudeOfText(packet.PacketLonText);

  // Symbol and comment follow.
  packet.PacketInfoText = Trim(Mid(info, b + 5));
  const char code = CharAt(info, b + 4);
  if (code == '\0' || code == ' ') {
    packet.PacketSymbol = "\\~";
  } else {
    packet.PacketSymbol = {CharAt(info, a + 4), code};
  }
}

void ReadNmeaPosition(DecodedPacket& packet) {
  const std::string info = Upper(packet.PacketInfo);
  const std::size_t latitude = FindEither(info, ",N,", ",S,");
  const std::size_t longitude = FindEither(info, ",E,", ",W,");
  if (latitude == std::string::npos || longitude == std::string::npos) return;
  packet.PacketLatText = NmeaField(info, latitude);
  packet.PacketLonText = NmeaField(info, longitude);
  packet.PacketSymbol = SymbolOfSsid(packet.PacketCall);
}

bool ReadCompressedPosition(DecodedPacket& packet) {
  MarkMessageCapable(packet);
  const bool stamped = packet.PacketType == '@' || packet.PacketType == '/';
  const std::ptrdiff_t table = stamped ? 9 : 2;
  const std::ptrdiff_t latitude = table + 1;
  const std::ptrdiff_t longitude = latitude + 4;
  const std::ptrdiff_t code = longitude + 4;
  const std::string_view info = packet.PacketInfo;
  if (static_cast<std::ptrdiff_t>(info.size()) < code) return false;

  packet.PacketLat = 90.0 - Base91(info, latitude) / 380926.0;
  packet.PacketLon = Base91(info, longitude) / 190463.0 - 180.0;
  packet.PacketLatText = kDirectLat;
  packet.PacketLonText = kDirectLon;
  packet.PacketSymbol = {CharAt(info, table), CharAt(info, code)};
  // Kept: course, speed, range and altitude stay at the front of the comment as they came.
  packet.PacketInfoText = Mid(info, code + 1);
  return true;
}

}  // namespace zepril
