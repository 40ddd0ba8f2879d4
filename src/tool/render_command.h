// `zepril-tool render`: a map window to a picture, without a window.
//
//   zepril-tool render --folder PROGRAMFOLDER --records FILE --centre N,E --tile 1000 --zoom 1
//                      --level 3 --size 1200x800 -o map.png
//
// PROGRAMFOLDER is a program folder; its ZEPRIL.INI is read when there is one, else the maps lie in
// its U33. FILE holds records of 120 columns, one a line. N,E is the centre in kilometres.
#pragma once

#include <string>
#include <vector>

namespace zepril {

// Exit code 0, 1 when the picture could not be written, 2 for arguments that can't be used (they are
// then explained on standard error). Needs a QGuiApplication.
int RenderCommand(const std::vector<std::string>& arguments);

}  // namespace zepril
