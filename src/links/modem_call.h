// Which call a serial modem has: how it is asked, and what of its text is the answer. One that has
// lost its power has the call with which it came from the shop, and would send under that.
//
//            asked                      answers
//   PK-232   break, MYCALL CR, K CR     "MYCALL   QX7KB-10"
//   SCS TNC  ESC I CR                   "* I QX7KB-10 *" or "* QX7KB-10 *"
//   SCS PTC  ESC MYCALL CR LF           "*** MYCALL: QX7KB-10"
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/state/radio.h"
#include "platform/clock.h"
#include "platform/serial_port.h"

namespace zepril {

enum class CallHeld { Own, Another, NotTold };

// Takes the answer out of `text`, which the modem has printed since it was asked, with the echo of
// the question and the prompts; what it heard on the air stays. Only a line that has its end
// counts. Empty: no answer yet, and `text` is as it was.
std::optional<std::string> TakeCallAnswer(RadioMode mode, std::string& text);

// Asks the modem on `port`, which is open, for its call, at most `kLongestAnswerSeconds`, in plain
// waits. `own`: the call it should have; what stands behind "-" is not compared. What it printed
// besides is added to `heard`. A PK-232 is in converse behind it.
inline constexpr double kLongestAnswerSeconds = 2.0;
CallHeld AskForCall(RadioMode mode, std::string_view own, SerialPort& port, Clock& clock,
                    std::string& heard);

}  // namespace zepril
