// zepril-tool render: a map window to a picture, without a window.
//
//   zepril-tool render --folder PROGRAMFOLDER --records FILE --centre N,E --tile 1000 --zoom 1
//                      --level 3 --size 1200x800 -o map.png
//
// PROGRAMFOLDER is a program folder; its ZEPRIL.INI is read when there is one, else the maps lie in
// its U33. FILE holds records of 120 columns, one a line. N,E is the centre in kilometres.
//
// Layers: --grid utm,geo,gk,utmpos,rt90 (or all) draws the coordinate grids, Gauss-Krueger and UTM
// by position in the strip of the centre; --circles the distance circles, whose frequencies come
// from --sunspot, --kp, the time (--at 2026-06-21T12:00, else now) and its --utc-offset; --pictures
// the marks of UTMPICS; --poi and --track a place and a track file.
#pragma once

#include <span>
#include <string_view>

namespace zepril {

inline constexpr std::string_view kRenderHelp =
    "a map window to a picture: --folder PROGRAMFOLDER -o PICTURE [--records FILE] [--centre N,E] "
    "[--tile 5000|1000|200|50|10|2] [--zoom 0.25-8] [--level 0-5|WX] [--size 1200x800] "
    "[--moni1 CALL] [--own N,E] [--style 0-6] [--brightness 0-2] [--ink 0-15] [--frames] "
    "[--fonts FOLDER] [--grid utm,geo,gk,utmpos,rt90|all] [--circles] [--fopt-detailed] "
    "[--sunspot N] [--kp 0-9] [--utc-offset HOURS] [--at YYYY-MM-DDTHH:MM] [--pictures] "
    "[--poi FILE] [--poi-level 0-2] [--track FILE]";

// Exit status 0, 1 when a file can't be read or the picture not be written, 2 for arguments that
// can't be used. A tool built without the toolkit says that it can't do it, and returns 1.
int RunRender(std::span<const std::string_view> args);

}  // namespace zepril
