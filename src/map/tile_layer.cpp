// Finds the file of each tile in view, draws it, and fills the place of a missing one.
#include "map/tile_layer.h"

#include "core/text_fields.h"
#include "map/map_view.h"
#include "map/scales.h"
#include "map/tile_names.h"

namespace zepril {
namespace {

PixelRect TileTarget(const MapViewState& view, double south_km, double west_km) {
  const double tile = view.MapTileKm;
  const double p = view.MetresPerPixel;
  const double north_edge = south_km + tile - tile / 1000.0;
  const double x =
      Int(view.ViewWidthPx / 2.0 - Int((view.CentreEastKm + kPixelGraceKm - west_km) / p * 1000.0));
  const double y = Int((view.ViewHeightPx / 2.0 - 1.0) +
                       Int((view.CentreNorthKm + kPixelGraceKm - north_edge) / p * 1000.0));
  const auto side = static_cast<int>(ToWhole(kTilePixels / view.ZoomFactor));
  return {static_cast<int>(ToWhole(x)), static_cast<int>(ToWhole(y)), side, side};
}

void ForgetInk(MapViewState& view, PaletteControls& palette) {
  palette.PalettePanel.Visible = false;
  view.SelectedInk.clear();
  for (OptionButton& ink : palette.Optionink)
    ink.Value = false;
}

void ShowInks(MapViewState& view, PaletteControls& palette) {
  for (std::size_t i = 0; i < palette.Optionink.size(); ++i) {
    palette.Optionink[i].BackColour = view.InkColours[i];
  }
}

// 0xFFRRGGBB of a bitmap to the 0xBBGGRR of the controls.
unsigned ControlColour(std::uint32_t pixel) {
  return (pixel & 0xFFu) << 16 | (pixel & 0xFF00u) | (pixel >> 16 & 0xFFu);
}

void KeepInkColours(const Bitmap& bitmap, const PaletteWork& work, MapViewState& view) {
  const std::vector<std::uint32_t> worked = WorkedPalette(bitmap.Palette, work);
  for (std::size_t i = 0; i < view.InkColours.size() && i < worked.size(); ++i) {
    view.InkColours[i] = ControlColour(worked[i]);
  }
}

void DrawTile(DrawingSurface& surface, const PixelRect& target, const DrawnTile& tile) {
  surface.Image(target, tile.Image(), {0, 0, tile.Width, tile.Height});
}

void FillMissing(DrawingSurface& surface, const PixelRect& target, const MapViewState& view) {
  surface.FilledBox(target.X, target.Y, target.X + target.Width - 1, target.Y + target.Height - 1,
                    view.MapSavedThisRun ? kMissingTileAfterSave : kMissingTileColour);
}

// Without a folder there is nothing to find: the name of the scale's folder is empty.
std::optional<TileCache::Found> FindTile(TileCache& cache, const std::string& folder_name,
                                         const std::string& folder, const TilePlace& place) {
  if (folder_name.empty()) return std::nullopt;
  return cache.Find(folder, TileFileName(place.SouthKm, place.WestKm));
}

bool DrawActiveTile(DrawingSurface& surface, TileCache& cache, MapViewState& view,
                    PaletteControls& palette, const TilePlace& place) {
  const auto found = FindTile(cache, view.ActiveFolderName, view.ActiveFolderPath, place);
  if (!found) return false;
  // What the length of the file tells about inks.
  if (found->Stamp.Size > kLongestInkTile) view.InkStateOn = false;
  if (found->Stamp.Size == kSixteenInkTile) view.InkStateOn = true;
  if (!view.InkStateOn) ForgetInk(view, palette);
  // Brightness and ink, then the tile into its rectangle.
  const PaletteWork work = WorkForTile(found->Stamp.Size, view.BrightnessStep, view.SelectedInk);
  const auto drawn = cache.Drawn(*found, place.Target.Width, work);
  if (!drawn) return false;
  DrawTile(surface, place.Target, *drawn);
  // The ink buttons show the palette as it was last worked on.
  if (palette.PalettePanel.Visible) {
    if (found->Stamp.Size == kSixteenInkTile) {
      if (const auto bitmap = cache.Decoded(*found)) KeepInkColours(*bitmap, work, view);
    }
    ShowInks(view, palette);
  }
  return true;
}

}  // namespace

void ForEachTileInView(const MapViewState& view,
                       const std::function<void(const TilePlace&)>& visit) {
  const double side = view.MapTileKm;
  const double last_north = TileCorner(view.ViewNorthKm, side);
  const double last_east = TileCorner(view.ViewEastKm, side);
  for (double south = TileCorner(view.ViewSouthKm, side); south <= last_north; south += side) {
    for (double west = TileCorner(view.ViewWestKm, side); west <= last_east; west += side) {
      visit({south, west, TileTarget(view, south, west)});
    }
  }
}

PixelPoint DrawActiveTiles(DrawingSurface& surface, TileCache& cache, MapViewState& view,
                           PaletteControls& palette) {
  PixelPoint last;
  ForEachTileInView(view, [&](const TilePlace& place) {
    last = {place.Target.X, place.Target.Y};
    if (!DrawActiveTile(surface, cache, view, palette, place)) {
      FillMissing(surface, place.Target, view);
    }
  });
  return last;
}

void DrawBaseTiles(DrawingSurface& surface, TileCache& cache, const MapViewState& view) {
  const std::string base_name(Left(view.ActiveFolderName, kScalePrefixLength));
  ForEachTileInView(view, [&](const TilePlace& place) {
    const auto found = FindTile(cache, base_name, view.BaseFolderPath, place);
    const auto drawn =
        found ? cache.Drawn(*found, place.Target.Width, PaletteWork{}) : std::nullopt;
    if (drawn) {
      DrawTile(surface, place.Target, *drawn);
    } else {
      FillMissing(surface, place.Target, view);
    }
  });
}

}  // namespace zepril
