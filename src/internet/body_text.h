// The text of a web page: what a browser would show of it, without its markup.
#pragma once

#include <string>

#include "platform/page_fetcher.h"

namespace zepril {

// The body of a page as text in code page 1252. HTML loses its tags, comments, scripts and styles;
// its entities become characters, runs of blanks and line ends one blank (not within <pre>), cells
// of a table are a blank apart, and lines end with CR LF. Any other body stays as it came, byte by
// byte, nul characters too; so does one that is called HTML and holds no markup.
//   "<p>K&nbsp;3<br>SSN &#57;9</p>" gives "K 3", CR LF, "SSN 99"
std::string BodyText(const Page& page);

}  // namespace zepril
