// The scales that are drawn, and the tiles of each in their order.
#include "sample_maps/sample_maps.h"

#include <system_error>

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

std::filesystem::path BeingDrawn(const std::filesystem::path& target, const ScaleFolder& folder) {
  return target / (std::string(kFolderBeingDrawn) + folder.Name);
}

class Drawing {
 public:
  Drawing(const MapData& data, const SampleMapsProgress& progress)
      : data_(data), progress_(progress) {
    for (const ScaleFolder& folder : kFolders)
      total_ += folder.Count();
  }

  bool DrawFolder(const ScaleFolder& folder, const std::filesystem::path& path) {
    std::error_code error;
    std::filesystem::create_directories(path, error);
    if (error) {
      result_.Fault = path.string();
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
                const Palette& palette, const std::filesystem::path& path) {
    const std::filesystem::path file = path / TileName(place.NorthKm, place.EastKm);
    const std::uintmax_t size = folder.Style.Relief ? kTileBytes8 : kTileBytes4;
    std::error_code error;
    if (std::filesystem::file_size(file, error) == size && !error) {
      ++result_.Kept;
    } else if (WriteTile(file, PaintTile(data_, labels, place, folder.Style), palette)) {
      ++result_.Drawn;
    } else {
      result_.Fault = file.string();
      return false;
    }
    return !progress_ || progress_(result_.Drawn + result_.Kept, total_);
  }

  const MapData& data_;
  const SampleMapsProgress& progress_;
  int total_ = 0;
  SampleMapsResult result_;
};

}  // namespace

SampleMapsResult DrawSampleMaps(const std::filesystem::path& source,
                                const std::filesystem::path& target,
                                const SampleMapsProgress& progress) try {
  SampleMapsResult result;
  const auto data = ReadMapData(source, result.Fault);
  if (!data) return result;
  Drawing drawing(*data, progress);
  std::error_code error;
  for (const ScaleFolder& folder : kFolders) {
    const bool stands = std::filesystem::exists(target / folder.Name, error);
    const std::filesystem::path path = stands ? target / folder.Name : BeingDrawn(target, folder);
    if (!drawing.DrawFolder(folder, path)) return drawing.Result();
  }
  result = drawing.Result();
  for (const ScaleFolder& folder : kFolders) {
    if (!std::filesystem::exists(BeingDrawn(target, folder), error)) continue;
    std::filesystem::rename(BeingDrawn(target, folder), target / folder.Name, error);
    if (error) {
      result.Fault = (target / folder.Name).string();
      return result;
    }
  }
  result.Complete = true;
  return result;
} catch (const std::exception& error) {  // out of memory, or a path the system refuses
  SampleMapsResult result;
  result.Fault = error.what();
  return result;
}

}  // namespace zepril
