// The PK-232's monitor text. This modem writes the normal form of a frame by itself
// ("N0CALL*>WIDE1-1>APRS <UI>:", CR LF, information, CR LF), so only echoes and torn first lines
// have to go.
#pragma once

#include <string>
#include <string_view>

#include "reception/dialects.h"

namespace zepril {

// What of one read of the modem's input is to be collected; empty when there is nothing.
//
// The echo "K" CR LF and anything shorter than 10 characters is nothing. A first line with neither
// "<UI>" nor "[UI]" is skipped, with its CR LF as long as 10 characters remain behind.
std::string_view Pk232Text(std::string_view input);

// Whole lines of the modem.
Brought BringPk232Text(std::string_view raw, std::string& normal);

}  // namespace zepril
