// Mic-E positions: latitude in the destination, longitude in the information.
#pragma once

#include "reception/decoded_packet.h"

namespace zepril {

// Destination "S32U6T", information "`(_fn\"Oj/" and comment. Fills degrees, symbol, comment; marks
// an emergency when all three message bits are clear. Nothing happens when the destination is
// shorter than 6 characters; false when the information is too short for its symbol. Course and
// speed are not read.
bool ReadMicE(DecodedPacket& packet);

}  // namespace zepril
