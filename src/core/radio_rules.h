// What follows from the radio interface for the rest of the program, by name: who asks need not
// know the interfaces.
#pragma once

#include "core/state/radio.h"

namespace zepril {

// The internet alone: nothing is received nor sent by radio.
bool HasNoRadio(const RadioState& radio);

// The modes whose modem is on a serial line.
bool IsSerialModem(RadioMode mode);

// A gate to the internet and a digipeater are possible: the link hands on what it hears as it came.
// Not with an engine on another computer, which may have its own.
bool GateIsPossible(RadioMode mode);
bool GateIsPossible(const RadioState& radio);

// A digipeater of its own may run beside the engine on this computer.
bool MayHaveCompanion(const RadioState& radio);

// The modem knows more speeds than 300 and 1200 Bd, and takes the level of its audio.
bool HasFastSpeeds(RadioMode mode);

// A second mode can be set, and the modem listen on both.
bool HasSecondMode(const RadioState& radio);
bool ListensOnTwoModes(const RadioState& radio);
// Its second mode is set and reads other than its speed. Kept: "R300" reads other than "300R" and
// so counts as another mode.
bool RelaysToAnotherMode(const RadioState& radio);

// A new call reaches the modem with the next START only.
bool LearnsItsCallAtStartOnly(const RadioState& radio);

}  // namespace zepril
