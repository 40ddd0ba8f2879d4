// What the three serial modems are sent: at START, when the main window opens the port, when TX
// SETUP is confirmed, and at the end. The bytes and waits are the modems' contract; nothing that
// they answer is parsed. Each modem's own lines stand in its file (`links/modem_kind.h`).
#pragma once

#include <string>

#include "core/state/radio.h"
#include "links/modem_kind.h"
#include "links/modem_script.h"

namespace zepril {

// Device and speed of the modem's port by mode: PK-232 its own, the two SCS devices theirs. Empty
// and 0 for modes without a serial modem.
std::string ModemDevice(const RadioState& radio);
int ModemBaud(const RadioState& radio);

// The whole set-up at START: opens the port, and closes it at its end. Empty for modes without a
// serial modem.
ModemScript TncSetupScript(const ModemSections& sections);

// The port opened for the run, in two parts: the modem's rest is read away, and it is brought to
// converse, where each line is a packet. From the second part on it has to be left in order.
ModemScript PrepareModemScript(const ModemSections& sections);
ModemScript ConverseScript(const RadioState& radio);

// Out of converse, in which a modem may have stayed whose port was lost or whose program was
// killed: it would put every command on the air. Half a line that it holds does not leave either.
// Harmless for a modem that was switched off meanwhile.
ModemScript LeaveConverseScript(const RadioState& radio);
// What makes the modem forget the line that it was given half.
std::string WipeLineBytes(const RadioState& radio);

// TX SETUP was confirmed: on the open port.
ModemScript ApplyTxSetupScript(const ModemSections& sections);

// The end of the program, on the open port.
ModemScript LeaveModemScript(const RadioState& radio);

// The second mode listens, or is off while a frame goes out. Empty for a modem that has none.
ModemScript SecondModeScript(const RadioState& radio, bool on);

}  // namespace zepril
