// Which modem is in converse is kept beyond the end of the run, which may come by a crash.
#pragma once

#include "core/state/identity.h"
#include "core/state/radio.h"
#include "links/serial_modem.h"
#include "platform/files.h"
#include "platform/serial_port.h"

namespace zepril {

// The memory of a modem in `MODEM.RUN`; what is given must outlive it.
ConverseMemory MemoryInFile(Files& files, const IdentityState& identity, const RadioState& radio,
                            const SerialPort& port);

}  // namespace zepril
