// What the operator is told of the gate: where it stands, how much it has handed over, and why the
// last of what was heard stayed behind.
#pragma once

#include "core/texts/text.h"

namespace zepril::gate_texts {

// %1: the server, or a number of lines; %2: since when.
inline constexpr Text kOff{"IGATE off"};
inline constexpr Text kNoPasscode{"no gate: no passcode for this call"};
inline constexpr Text kNotHere{"no gate with this radio interface"};
inline constexpr Text kNoServer{"no gate: no server is set"};
inline constexpr Text kConnecting{"connecting to %1 since %2"};
inline constexpr Text kLoggingIn{"%1 has not answered the login since %2"};
inline constexpr Text kRefused{"%1 does not accept the login since %2"};
inline constexpr Text kConnected{"connected since %1, nothing gated yet"};
inline constexpr Text kGated{"connected since %1, %2 gated since %3"};
inline constexpr Text kOneLine{"1 line"};
inline constexpr Text kLines{"%1 lines"};

// %1: when, %2: why.
inline constexpr Text kLastNotGated{"last not gated %1: %2"};
inline constexpr Text kNoFrame{"no whole frame"};
inline constexpr Text kForbiddenPath{"NOGATE, RFONLY, TCPIP or TCPXX in its header"};
inline constexpr Text kForwardedOrQuery{"forwarded, or a query"};
inline constexpr Text kSeveralLines{"more than one line"};
inline constexpr Text kRepeat{"like one of the last half minute"};
inline constexpr Text kNotTaken{"the connection was lost or takes nothing"};

}  // namespace zepril::gate_texts
