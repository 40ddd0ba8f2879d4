// Both parts of what a modem is told when its port is opened for the run, as one script.
#pragma once

#include "links/setup_sequences.h"

namespace zepril {

inline ModemScript OpenModemScript(const ModemSections& sections) {
  ModemScript script = PrepareModemScript(sections);
  return script.Append(ConverseScript(sections.Radio));
}

}  // namespace zepril
