// The map library: raster tiles in folders of six scales, and the small index files by which the
// program knows what is there without listing folders of tens of thousands of tiles.
//
// Index files lie in `TempFolder`, plain text, one entry a line: "ALLMDIRS.DIR" with the names of
// all scale folders in capitals, and "<folder>.DIR" with the tile names of each. They exist only
// for the run. A missing folder leaves its list empty and is no error.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/controls/scale_controls.h"
#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "platform/files.h"

namespace zepril {

class MapLibrary {
 public:
  static constexpr std::size_t kMostPictures = 5000;
  static constexpr std::ptrdiff_t kPictureNameColumns = 12;  // a longer name is cut
  // An index file longer than this is not read: 24 MB hold over a million tiles.
  static constexpr std::size_t kLongestIndex = 24u << 20;

  MapLibrary(Files& files, const IdentityState& identity, MapViewState& view,
             ScaleControls& scales);

  // Finds folders and tiles anew, writes the index files, fills the six selection fields and the
  // list of picture names. Tiles with another spelling of the extension are renamed to ".BMP"
  // (never onto an existing file). Selected is the stored variant of each scale, else the first
  // entry; an entry that the operator has chosen before stays chosen while it exists.
  void MapLibraryScan();

  // The index file of a scale folder as text, one tile name a line; nothing when it can't be read.
  std::optional<std::string> ReadIndex(const std::string& folder) const;

  // False when the last scan could not write its index files: another scan would not help.
  bool IndexesWritten() const { return indexes_written_; }

  // Deletes the index files that this run made, and nothing else.
  void DeleteIndexFiles();

 private:
  std::vector<std::string> FillSelectionFields();
  void SelectVariants(const std::array<std::string, 6>& chosen_before);
  void IndexFolder(const std::string& folder);
  void ScanPictures();
  void WriteIndex(const std::string& name, const std::string& text);

  Files& files_;
  const IdentityState& identity_;
  MapViewState& view_;
  ScaleControls& scales_;
  bool indexes_written_ = true;
  std::vector<std::string> made_;  // full paths of the index files of this run
};

}  // namespace zepril
