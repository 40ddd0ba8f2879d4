// What the models of the two SCS modems share: monitor text and the way commands are found.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "tool/modem_model.h"

namespace zepril {

// "fm QX1AB to APRS via QX0DIG* WIDE2-1 ctl UI pid F0" CR LF, the information, CR LF.
std::string ScsMonitorText(const AirPacket& packet);

// The row of `commands` whose name `line` begins with, the longest of several; null without one.
// `behind_blank`: the name must end with the line or at a blank.
const ModemCommand* FindScsCommand(std::span<const ModemCommand> commands, std::string_view line,
                                   bool behind_blank);

}  // namespace zepril
