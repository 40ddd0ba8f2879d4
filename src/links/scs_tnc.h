// The SCS TNC: ESC, command, CR; whatever else it is given is a packet.
#pragma once

#include "links/modem_kind.h"

namespace zepril {

extern const ModemKind kScsTnc;

}  // namespace zepril
