// The forms in which radio interfaces write a heard frame, taken apart for the gate to the
// internet.
//
//   AGW      1:Fm QX7AB To ZEPR Via WIDE1-1*,WIDE2-1 <UI pid=F0 Len=4 >[12:30:15]<CR>!tst<CR><CR>
//   PK-232   QX7AB>WIDE1-1*>WIDE2-1>ZEPR <UI>:<CR><LF>!tst<CR><LF>
//   SCS TNC  fm QX7AB to ZEPR via WIDE1-1* WIDE2-1 ctl UI pid F0<CR><LF>!tst<CR><LF>
//   SCS PTC  1:fm QX7AB to ZEPR via WIDE1-1* WIDE2-1 ctl UI pid F0<CR><LF>!tst<CR><LF>
//
// Markers are looked for without regard to case, and within the one line of the header: what stands
// in the data disturbs nothing, and no frame is put together of two.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace zepril {

// Heard text, and the same in capitals, in which markers are looked for.
struct GateText {
  std::string_view AsHeard;
  std::string_view Capitals;
};

struct GateFrame {
  std::string Header;       // "QX7AB>ZEPR,WIDE1-1,WIDE2-1,"
  std::string Watched;      // where words that forbid the gate are looked for, in capitals
  std::string_view Data;    // the bytes as they were heard
  std::size_t DataEnd = 0;  // offset behind the data
};

// The first frame of the text; nothing when a part of it is missing.
//   refused: no end of the data, a header without destination, a frame that is not UI
using GateForm = std::optional<GateFrame> (*)(GateText text);

// The form that text of this dialect (`reception/dialects`) has; null for one without a gate.
GateForm GateFormOf(std::string_view dialect);

}  // namespace zepril
