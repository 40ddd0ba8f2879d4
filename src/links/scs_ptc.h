// The SCS PTC: ESC, command, CR LF at START and CR alone later.
#pragma once

#include "links/modem_kind.h"

namespace zepril {

extern const ModemKind kScsPtc;

}  // namespace zepril
