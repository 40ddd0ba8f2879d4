// What is said at the door of an APRS-IS server: the passcode, the login line, the answer to it.
#pragma once

#include <string>
#include <string_view>

namespace zepril {

// "0": there is no passcode, and no link to a server.
inline constexpr std::string_view kNoPasscode = "0";

// The call without its SSID and the blanks around it: "QX7KB" of " QX7KB-10".
std::string_view CallOfLogin(std::string_view call);

// The published passcode hash of APRS-IS: 16 bits, begun with 0x73E2, into which the characters of
// the call in capitals are mixed, those at odd places (from 1) as the high byte. As decimal text.
//   "N0CALL" 13023, "qx7ab-10" 22523; an empty call has none: "0"
std::string PasscodeOf(std::string_view call);

// "user QX7KB pass 22513 vers ZEPRIL 8.08 filter b/ZZ9ZZZ" and CR LF. The filter names a station
// that does not exist: the server has nothing to send.
std::string LoginLine(std::string_view call, std::string_view passcode, std::string_view version);

// True when the server has told that the login of this call holds, in any case of letters.
//   taken: "# LOGRESP qx7kb Verified, server X"   refused: "# logresp QX7KB unverified"
bool TellsVerified(std::string_view received, std::string_view call);
// True when it has told that it does not.
bool TellsUnverified(std::string_view received, std::string_view call);

}  // namespace zepril
