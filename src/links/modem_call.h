// Which call a serial modem has: how it is asked, and what of its text is the answer. One that has
// lost its power has the call with which it came from the shop, and would send under that.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "links/modem_kind.h"
#include "platform/clock.h"
#include "platform/serial_port.h"

namespace zepril {

enum class CallHeld { Own, Another, NotTold };

// What of a modem's answer the blanks part.
std::vector<std::string_view> WordsOf(std::string_view text);
// The call of "MYCALL   QX7KB-10" and of "*** MYCALL: QX7KB-10".
std::optional<std::string> CallOfMyCall(std::string_view line);

// Takes the answer out of `text`, which the modem has printed since it was asked, with the echo of
// the question and the prompts; what it heard on the air stays. Only a line that has its end (CR,
// LF or both) counts. Empty: no answer yet, and `text` is as it was.
std::optional<std::string> TakeCallAnswer(const ModemKind& kind, std::string& text);

// Asks the modem on `port`, which is open, for its call, at most `kLongestAnswerSeconds`, in plain
// waits. `own`: the call it should have; what stands behind "-" is not compared. What it printed
// besides is added to `heard`. A PK-232 is in converse behind it.
inline constexpr double kLongestAnswerSeconds = 2.0;
CallHeld AskForCall(const ModemKind& kind, std::string_view own, SerialPort& port, Clock& clock,
                    std::string& heard);

}  // namespace zepril
