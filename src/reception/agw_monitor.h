// The packet engine's monitor text, brought to the normal form of a frame.
//
// The normal form is two lines: sender ("*" behind it when nobody repeated the frame), the path
// with
// ">" before each element and the destination as the last, a blank and the marker; then the
// information as it came. Both end with CR LF.
//
//   1:Fm DL1TOM To APRS Via WIDE1-1*,WIDE2-1 <UI R pid=F0 Len=4 >[12:00:00]<CR>!tst<CR><CR>
// becomes
//   DL1TOM>WIDE1-1*>WIDE2-1>APRS <UI>:<CR><LF>!tst<CR><LF>
#pragma once

#include <string>
#include <string_view>

#include "reception/dialects.h"

namespace zepril {

// True when `text` has exactly three CR: behind the header, and two behind the information. A text
// with a CR inside its information has more, a connected-mode frame fewer; neither is taken.
bool HasAgwForm(std::string_view text);

// Appends the normal form of the monitor text (beginning with a port digit and ":Fm ") to
// `collected`. Words are looked for in the first line only and as they are written, so that neither
// a call like "DL1TOM" nor a comment disturbs. False, and nothing appended, when the line has no
// "To " or no " <".
bool AppendAgwFrame(std::string_view text, std::string& collected);

// A text of the engine. Kept: one of another form ends the collecting; later frames wait for the
// next pass.
Brought BringAgwText(std::string_view raw, std::string& normal);

}  // namespace zepril
