// The scales that are drawn, and the tiles of each in their order.
#include "sample_maps/sample_maps.h"

#include <exception>

#include "sample_maps/labels.h"
#include "sample_maps/map_data.h"
#include "sample_maps/tile_file.h"
#include "sample_maps/tile_raster.h"

namespace zepril {
namespace {

// One scale folder and the south-west corners of its first and last tile.
struct ScaleFolder {
  const char* Name;
  int SideKm;
  int South, North, West, East;
  int LastTown, LastWater;  // ranks shown
  TileStyle Style;

  int Count() const { return ((North - South) / SideKm + 1) * ((East - West) / SideKm + 1); }
};

constexpr ScaleFolder kFolders[] = {
    {"M1000", 1000, 3000, 8000, -3000, 4000, 3, 3, {false, 4, 9, true}},
    {"M5000", 5000, 0, 5000, -5000, 0, 1, 1, {false, 2, 4, false}},
    {"M0200", 200, 5600, 7400, -1000, 1800, 3, 4, {false, 6, 14, true}},
    {"M1000RELIEF", 1000, 4000, 7000, -2000, 2000, 3, 3, {true, 0, 0, true}},
};

std::string Named(const std::string& target, const ScaleFolder& folder) {
  return target + "/" + folder.Name;
}

std::string BeingDrawn(const std::string& target, const ScaleFolder& folder) {
  return target + "/" + kFolderBeingDrawn + folder.Name;
}

class Drawing {
 public:
  Drawing(Files& files, const MapData& data, const SampleMapsProgress& progress)
      : files_(files), data_(data), progress_(progress) {
    for (const ScaleFolder& folder : kFolders)
      total_ += folder.Count();
  }

  bool DrawFolder(const ScaleFolder& folder, const std::string& path) {
    if (!files_.MakeFolder(path)) {
      result_.Fault = path;
      return false;
    }
    const Labels labels = PlaceLabels(data_, folder.SideKm / static_cast<double>(kSampleTilePixels),
                                      folder.LastTown, folder.LastWater);
    const Palette palette = folder.Style.Relief ? ReliefPalette() : FlatPalette();
    for (int north = folder.South; north <= folder.North; north += folder.SideKm) {
      for (int east = folder.West; east <= folder.East; east += folder.SideKm) {
        if (!DrawTile(folder, {north, east, folder.SideKm}, labels, palette, path)) return false;
      }
    }
    return true;
  }

  SampleMapsResult Result() const { return result_; }

 private:
  bool DrawTile(const ScaleFolder& folder, const SampleTile& place, const Labels& labels,
                const Palette& palette, const std::string& path) {
    const std::string file = path + "/" + TileName(place.NorthKm, place.EastKm);
    const std::int64_t size = folder.Style.Relief ? kTileBytes8 : kTileBytes4;
    const auto stamp = files_.Stamp(file);
    if (stamp && stamp->IsRegular && stamp->Size == size) {
      ++result_.Kept;
    } else if (WriteTile(files_, file, PaintTile(data_, labels, place, folder.Style), palette)) {
      ++result_.Drawn;
    } else {
      result_.Fault = file;
      return false;
    }
    return !progress_ || progress_(result_.Drawn + result_.Kept, total_);
  }

  Files& files_;
  const MapData& data_;
  const SampleMapsProgress& progress_;
  int total_ = 0;
  SampleMapsResult result_;
};

}  // namespace

SampleMapsResult DrawSampleMaps(Files& files, const std::string& source, const std::string& target,
                                const SampleMapsProgress& progress) try {
  SampleMapsResult result;
  const auto data = ReadMapData(files, source, result.Fault);
  if (!data) return result;
  Drawing drawing(files, *data, progress);
  for (const ScaleFolder& folder : kFolders) {
    const bool stands = files.Exists(Named(target, folder));
    const std::string path = stands ? Named(target, folder) : BeingDrawn(target, folder);
    if (!drawing.DrawFolder(folder, path)) return drawing.Result();
  }
  result = drawing.Result();
  for (const ScaleFolder& folder : kFolders) {
    if (!files.Exists(BeingDrawn(target, folder))) continue;
    if (!files.Rename(BeingDrawn(target, folder), Named(target, folder))) {
      result.Fault = Named(target, folder);
      return result;
    }
  }
  result.Complete = true;
  return result;
} catch (const std::exception& error) {  // out of memory
  SampleMapsResult result;
  result.Fault = error.what();
  return result;
}

}  // namespace zepril
