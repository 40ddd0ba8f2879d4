// What the program knows of one kind of serial modem: a file a kind (`links/pk232`,
// `links/scs_tnc`, `links/scs_ptc`), a row a kind in `links/radio_links`.
#pragma once

#include <optional>
#include <string>
#include <string_view>

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

// How a modem is asked for its call.
struct CallQuestion {
  std::string_view Leave;  // what leads out of converse, awaited by the prompt; may be empty
  std::string_view Ask;
  std::string_view Return;  // what leads back; may be empty
};

struct ModemKind {
  // How it prints what it hears: a row of `reception/dialects`.
  std::string_view Dialect;
  // Its frames are no lines: it is read until it falls silent for a moment.
  bool ReadsUntilSilent = false;
  // Device of its port as the settings hold it, and the port's speed as text.
  std::string (*Device)(const RadioState&) = nullptr;
  std::string (*Speed)(const RadioState&) = nullptr;

  // The whole set-up at START: opens the port, and closes it at its end.
  ModemScript (*SetUp)(const ModemSections&) = nullptr;
  // TX SETUP was confirmed, and the end of the program: on the open port.
  ModemScript (*ApplyTxSetup)(const ModemSections&) = nullptr;
  ModemScript (*Leave)() = nullptr;

  std::string_view AtOpening;     // line at the opening of its port for the run; may be empty
  std::string_view IntoConverse;  // line that leads there; empty when it is there always
  ModemScript (*OutOfConverse)() = nullptr;
  std::string_view WipeLine;  // makes it forget the line that it was given half

  CallQuestion Call;
  // The call that a line of its answer names, without prompts.
  std::optional<std::string> (*CallIn)(std::string_view line) = nullptr;
  bool AnswersWithEmptyLines = false;

  // Of the terminal: keys behind which it holds no half line any more, and that it takes for the
  // beginning of a command wherever they come.
  std::string_view KeysThatEndALine;
  std::string_view KeysThatBeginACommand;

  // "%AU1" and "%AU0": its second mode listens, or is off while a frame goes out.
  ModemScript (*SecondMode)(bool on) = nullptr;  // empty when it has none
};

// None for an interface that is no serial modem.
const ModemKind* ModemKindOf(RadioMode mode);

}  // namespace zepril
