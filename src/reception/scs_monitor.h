// Monitor text of the SCS TNC and the SCS PTC, brought to the normal form of a frame.
//
//   fm N0CALL to APRS via WIDE1-1* WIDE2-1 ctl UI pid F0<CR><LF>!tst<CR><LF>
// becomes
//   N0CALL>WIDE1-1*>WIDE2-1>APRS <UI>:<CR><LF>!tst<CR><LF>
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "reception/dialects.h"

namespace zepril {

enum class ScsDialect {
  Tnc,  // frames begin with "fm " at the beginning of a line
  Ptc,  // "1:fm " begins a frame too
};

// Appends the complete frames at the front of `text` to `collected` and returns how many characters
// of `text` they took; what lies behind is kept by the caller until more has come. At most 10
// frames are taken. A header that is no unnumbered frame of pid F0 ends the taking; it is passed
// over, so that the frames behind it come next time.
std::size_t TakeScsFrames(std::string_view text, ScsDialect dialect, std::string& collected);

// What the modem has written since it was last silent.
Brought BringScsTncText(std::string_view raw, std::string& normal);
Brought BringScsPtcText(std::string_view raw, std::string& normal);

}  // namespace zepril
