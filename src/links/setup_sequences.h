// What the three serial modems are sent: at START, when the main window opens the port, when TX
// SETUP is confirmed, and at the end. The bytes and waits are the modems' contract; nothing that
// they answer is parsed.
//
// PK-232: plain commands, CR. SCS TNC: ESC, command, CR. SCS PTC: ESC, command, CR LF at START and
// CR alone later.
#pragma once

#include <string>

#include "core/state/identity.h"
#include "core/state/radio.h"
#include "core/state/transmission.h"
#include "links/modem_script.h"

namespace zepril {

// What the sequences are made of.
struct ModemSections {
  const IdentityState& Identity;
  const RadioState& Radio;
  const TransmissionState& Transmission;
};

// `call`, with "-" and the SSID behind it when it holds no "-" and an SSID is set. Any SSID: "16"
// is appended too.
std::string CallText(const std::string& call, const std::string& ssid);

// Device and speed of the modem's port by mode: PK-232 its own, the two SCS devices theirs.
std::string ModemDevice(const RadioState& radio);
int ModemBaud(const RadioState& radio);

// The whole set-up at START: opens the port, and closes it at its end. Empty for modes without a
// serial modem.
ModemScript TncSetupScript(const ModemSections& sections);

// The port opened for the run: the modem's rest is read away and it is brought to converse.
ModemScript OpenModemScript(const ModemSections& sections);

// On a port that was lost and found again: out of converse, in which the modem may have stayed and
// would put every command on the air. Harmless for a modem that was switched off meanwhile.
ModemScript LeaveConverseScript(const RadioState& radio);

// TX SETUP was confirmed: on the open port.
ModemScript ApplyTxSetupScript(const ModemSections& sections);

// The end of the program, on the open port.
ModemScript LeaveModemScript(const RadioState& radio);

// "%AU1" and "%AU0" of the SCS TNC: its second mode listens, or is off while a frame goes out.
ModemScript SecondModeScript(bool on);

}  // namespace zepril
