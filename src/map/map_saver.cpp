// Finds the first free number, asks, paints once more and saves.
#include "map/map_saver.h"

#include <set>

#include "core/text_fields.h"
#include "core/texts/boxes.h"

namespace zepril {
namespace {

std::string NumberedName(std::int64_t number) {
  return "MAP_" + ZeroPadded(number, 4) + ".BMP";
}

}  // namespace

void MapSaver::SaveMapWindow() {
  // The folder; that it is there already is no error.
  const std::string folder = identity_.ProgramFolder + "\\MY_MAPS";
  tools_.Disk.MakeFolder(folder);
  // The first number that is free, by one listing however many there are.
  const std::string path = folder + "\\" + FirstFreeMapName(tools_.Disk.List(folder, "MAP_*.BMP"));
  if (tools_.Boxes.Ask(boxes::kTitle, boxes::kSaveMap.With({path}), DialogButtons::OkCancel,
                       DialogAnswer::Cancel) != DialogAnswer::Ok) {
    return;
  }
  // Kept: missing tiles are white from now on, to the end of the run, on the screen too.
  view_.MapSavedThisRun = true;
  // The map is what is saved, not a picture in front of it.
  view_.PictureMode = MapShows::Map;
  tools_.MapSurface.Clear(kBlack);
  tools_.Map.MapRedraw();
  tools_.Disk.Write(path, tools_.MapSurface.BmpFile());
  tools_.Map.MapRedraw();
}

std::string FirstFreeMapName(const std::vector<FolderEntry>& entries) {
  std::set<std::string> taken;
  for (const FolderEntry& entry : entries)
    taken.insert(Upper(entry.Name));
  std::int64_t number = 1;
  while (taken.contains(NumberedName(number)))
    ++number;
  return NumberedName(number);
}

}  // namespace zepril
