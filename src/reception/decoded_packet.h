// A decoded packet: the values of one frame.
#pragma once

#include <string>
#include <string_view>

#include "platform/clock.h"

namespace zepril {

// Texts in place of a latitude and a longitude whose degrees were computed directly.
inline constexpr std::string_view kDirectLat = "YYYY";
inline constexpr std::string_view kDirectLon = "XXXX";

struct DecodedPacket {
  std::string PacketCall;           // source or object name, upper case
  std::string PacketDestination;    // as it came
  std::string PacketHeardVia;       // the source call for objects
  char PacketType = 0;              // data type; rewritten for objects; 0: no information
  std::string PacketInfo;           // information, trimmed
  std::string PacketLatText;        // "4903.50N", "YYYY", or empty
  std::string PacketLonText;        // "07201.75W", "XXXX", or empty
  double PacketLat = 0.0;           // degrees, south negative
  double PacketLon = 0.0;           // degrees, west negative
  std::string PacketSymbol;         // 2 characters, or 3 with an overlay
  std::string PacketSymbolText;     // record columns 105-120
  std::string PacketDate;           // YYMMDD
  std::string PacketTime;           // HHMM
  char PacketMessageCapable = ' ';  // "'" or blank
  bool PacketIsObject = false;
  bool PacketIsEmergency = false;

  std::string PacketInfoText;  // the comment
  bool TimestampStale = false;
  int SymbolIndex = 0;
  double NorthMetres = 0.0;  // map grid, cut towards zero
  double EastMetres = 0.0;   // map grid, rounded down
  bool IsMessage = false;    // ":" in columns 1 and 11: a message frame
};

// What decoding asks of its surroundings.
struct DecodeContext {
  LocalTime Now;
  int UtcOffsetHours = 0;
  double MapCentralMeridian = 15.0;
  double MapFalseEasting = 500000.0;
};

}  // namespace zepril
