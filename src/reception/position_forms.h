// The forms in which a position stands in a packet: plain text, NMEA, compressed.
//
// Each reader is deliberately tolerant: coordinates are found by their decimal points or hemisphere
// letters, not by counting from the data type. A reader leaves the packet's texts empty when it
// finds nothing.
#pragma once

#include "reception/decoded_packet.h"

namespace zepril {

// True for the data types "/", "=", "!" and "@", which carry a plain or compressed position.
bool IsPositionType(char type);

// "!4903.50N/07201.75W-Test": the first two decimal points are those of latitude and longitude.
// Fills texts, degrees, symbol, comment, message mark. A position without a symbol code, or with a
// blank as code, is one all the same; its symbol is "\~".
void ReadPlainPosition(DecodedPacket& packet);

// "$GPRMC,...,4903.50,N,07201.75,W,...": the fields before the hemisphere letters, whatever the
// sentence. The symbol follows from the SSID of the call.
void ReadNmeaPosition(DecodedPacket& packet);

// "!/5L!!<*e7>7P[comment": base 91 behind the data type, or behind a time stamp for "@" and "/".
// Any text of these types is read so, a sensible one or not. False when it is too short.
bool ReadCompressedPosition(DecodedPacket& packet);

// Degrees from "DDMM.mm" and a hemisphere letter in column 8, or "DDDMM.mm" and column 9.
double LatitudeOfText(std::string_view text);
double LongitudeOfText(std::string_view text);

}  // namespace zepril
