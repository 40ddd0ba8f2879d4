// The PK-232: plain commands, each with CR; a break leads out of converse.
#pragma once

#include "links/modem_kind.h"

namespace zepril {

extern const ModemKind kPk232;

}  // namespace zepril
