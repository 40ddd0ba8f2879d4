// Marks senders that were heard directly.
#pragma once

#include <string>

namespace zepril {

// Every header line of the collected text without any "*" gets one before its first ">": nobody
// repeated the frame, so it was heard from its sender.
//   "N0CALL>APRS <UI>:" becomes "N0CALL*>APRS <UI>:"
void MarkDirectSenders(std::string& collected);

}  // namespace zepril
