#include "map/map_saver.h"

#include <set>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::string_view kNameFront = "MAP_";
constexpr std::string_view kExtension = ".BMP";

std::string NumberedName(std::int64_t number) {
  return std::string(kNameFront) + ZeroPadded(number, 4) + std::string(kExtension);
}

}  // namespace

void MapSaver::SaveMapWindow() {
  // The folder; that it is there already is no error.
  tools_.Disk.MakeFolder(identity_.ProgramFolder + "\\MY_MAPS");
  // The first number that is free.
  const std::string path = FirstFreePath();
  if (tools_.Boxes.Ask("ZEP RIL", "SAVE MAP WINDOW TO FILE...  " + path, DialogButtons::OkCancel,
                       DialogAnswer::Cancel) != DialogAnswer::Ok) {
    return;
  }
  // Kept: missing tiles are white from now on, to the end of the run, on the screen too.
  view_.MapSavedThisRun = true;
  // The map is what is saved, not a picture in front of it.
  view_.PictureMode = 0;
  tools_.MapSurface.Clear(kBlack);
  tools_.Map.MapRedraw();
  tools_.Disk.Write(path, tools_.MapSurface.BmpFile());
  tools_.Map.MapRedraw();
}

// One listing, so that thousands of saved maps cost no more than one.
std::string MapSaver::FirstFreePath() const {
  const std::string folder = identity_.ProgramFolder + "\\MY_MAPS";
  std::set<std::string> taken;
  const std::string pattern = std::string(kNameFront) + "*" + std::string(kExtension);
  for (const FolderEntry& entry : tools_.Disk.List(folder, pattern)) {
    taken.insert(Upper(entry.Name));
  }
  std::int64_t number = 1;
  while (taken.contains(NumberedName(number)))
    ++number;
  return folder + "\\" + NumberedName(number);
}

}  // namespace zepril
