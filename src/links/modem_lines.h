// Lines of which several modems' sequences are made.
#pragma once

#include <string>

#include "core/state/radio.h"
#include "links/modem_script.h"

namespace zepril {

// `call`, with "-" and the SSID behind it when it holds no "-" and an SSID is set. Any SSID: "16"
// is appended too.
std::string CallText(const std::string& call, const std::string& ssid);

// A line speed or a speed on the air as a number; 0 for no number.
int BaudOf(const std::string& text);

// A line without the control bytes of the settings, which would be commands of their own.
void AddLine(ModemScript& script, const std::string& line, double wait_seconds,
             const char* end = "\r");

// A command of the SCS modems: ESC, command, end. Nothing for an empty one.
void AddEsc(ModemScript& script, const std::string& command, double wait_seconds,
            const char* end = "\r");
// "%B300" or "B 300" of the five speeds; empty for any other text.
std::string ScsSpeedCommand(const std::string& before, const std::string& baud_mode);
// The port that the SCS modems share.
std::string ScsDevice(const RadioState& radio);
std::string ScsSpeed(const RadioState& radio);

}  // namespace zepril
