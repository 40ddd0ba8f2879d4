// Cuts one frame after the other out of the text that awaits decoding.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zepril {

enum class CutOutcome {
  NoHeader,    // no complete header waits: the pass is over
  Incomplete,  // a header whose information has not come whole: wait for more
  Stuck,       // the same, and much text behind it: the pass is given up with a redraw
  Dropped,     // a header with no line feed before it: dropped up to its end
  Frame,       // a frame was cut out
};

// Looks for the first header in `rx_buffer` and, when its frame is complete, puts the frame
// (header, CR LF, information without its line end) into `frame` and takes it out of the buffer;
// the line feed that closes a frame opens the next one.
CutOutcome CutFrame(std::string& rx_buffer, std::string& frame);

// Offset of the first complete header end in `text`: one of the three markers " <UI>:", " [UI]:",
// " (UI):" with CR LF behind. npos when there is none.
std::size_t FindHeaderEnd(std::string_view text);
// Characters of a marker with its CR LF.
inline constexpr std::size_t kHeaderEndLength = 8;

}  // namespace zepril
