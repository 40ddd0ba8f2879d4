// The receive pass: text awaiting decoding, the raw list, the packet being decoded.
#pragma once

#include <string>

#include "core/raw_lines.h"

namespace zepril {

struct ReceptionState {
  std::string OwnHeaderPattern;  // beginning of the own transmitted header; empty before it is set
  std::string RxBuffer = "\n";   // monitor text in normal form awaiting decoding
  std::string ModemText;         // of a serial modem, not yet handed on: lines that are not whole,
                                 // or more than is taken in one go
  int ModemTextPasses = 0;       // receive passes for which its first line has waited
  std::string ScsRxBuffer;       // unfinished frames of a serial TNC

  // Half a line or frame must not run into what the modem writes after a conversation with it.
  void ForgetModemText() {
    ModemText.clear();
    ScsRxBuffer.clear();
  }

  static constexpr int kRawLines = 400;
  RawLineRing RawLines;  // index 0 to 400
  int RawLineCount = 0;

  std::string PacketInfoText;  // comment of the packet now being decoded
  int TimestampStale = 0;      // its time stamp differs from the clock
  int SymbolIndex = 37;        // its symbol
};

}  // namespace zepril
