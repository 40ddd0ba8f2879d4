// Draws a small map library of Europe, so that the program shows a map from its first start.
#pragma once

#include <functional>
#include <string>

#include "platform/files.h"

namespace zepril {

// Called after each tile with the number done and the number in all; false ends the work early.
using SampleMapsProgress = std::function<bool(int done, int total)>;

struct SampleMapsResult {
  int Drawn = 0;  // tiles written now
  int Kept = 0;   // tiles that stood already, with the right size
  bool Complete = false;
  std::string Fault;  // what could not be read or written; empty otherwise
};

// What a scale folder's name begins with until the whole library is drawn.
inline constexpr const char* kFolderBeingDrawn = "NEW~";

// Draws the tiles of zone 33 into scale folders under `target` (which is made where missing), from
// europe.txt, lakes.txt, towns.txt, waters.txt and letters.txt in `source`. A folder that is not
// there yet gets its name only when all are whole. Tiles that exist with the right size are left
// alone, so work that was ended early goes on where it stopped. A tile appears under its name only
// when it is whole. Takes a few seconds; throws nothing.
SampleMapsResult DrawSampleMaps(Files& files, const std::string& source, const std::string& target,
                                const SampleMapsProgress& progress);

}  // namespace zepril
