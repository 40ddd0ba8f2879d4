// `SERVICES.TXT` in the program folder: the hosts of the web services, a line KEY=value each, read
// once at the start and never written.
//
//   # where messages are handed over
//   APRSCGISERVICE=https://aprs.example
//
// A service that is missing, or has no value, is off.
#pragma once

#include <string>

#include "core/state/services.h"
#include "platform/files.h"

namespace zepril {

std::string ServicesPath(const std::string& program_folder);

// Keys match without regard to case; of several lines the last counts. A host without a scheme is
// asked by http. Values that are no host, like one with blanks, are passed over.
ServicesState ReadServicesFile(const Files& files, const std::string& program_folder);

}  // namespace zepril
