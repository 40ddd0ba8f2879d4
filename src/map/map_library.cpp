// Scans the folders of the scales, and writes, reads and deletes their index files.
#include "map/map_library.h"

#include <algorithm>

#include "core/text_fields.h"
#include "map/scales.h"

namespace zepril {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kAllFolders = "ALLMDIRS.DIR";
constexpr std::string_view kIndexExtension = ".DIR";

}  // namespace

MapLibrary::MapLibrary(Files& files, const IdentityState& identity, MapViewState& view,
                       ScaleControls& scales)
    : files_(files), identity_(identity), view_(view), scales_(scales) {}

void MapLibrary::MapLibraryScan() {
  // Away with the index files of the last scan.
  DeleteIndexFiles();
  indexes_written_ = true;
  // Empty the selection fields, but remember what was chosen in them.
  std::array<std::string, 6> chosen_before;
  for (std::size_t row = 0; row < chosen_before.size(); ++row) {
    chosen_before[row] = scales_.Folder[row].Selected();
    scales_.Folder[row].Items.clear();
    scales_.Folder[row].Select(-1);
  }
  // Scale folders into the fields and the list of all folders.
  const std::vector<std::string> folders = FillSelectionFields();
  SelectVariants(chosen_before);
  // Tile names of every folder.
  for (const std::string& folder : folders)
    IndexFolder(folder);
  ScanPictures();
}

std::vector<std::string> MapLibrary::FillSelectionFields() {
  std::vector<std::string> folders;
  std::string all;
  // Plain files with a fitting name pass as folders; their index stays empty.
  for (const FolderEntry& entry : files_.List(identity_.MapsPath, "M*.*")) {
    const std::string name = Upper(Trim(entry.Name));
    bool of_a_scale = false;
    for (std::size_t row = 0; row < kMapScaleTable.size(); ++row) {
      if (InStr(name, kMapScaleTable[row].FolderPrefix) == 0) continue;
      scales_.Folder[row].Items.push_back(name);
      of_a_scale = true;
    }
    if (!of_a_scale || std::find(folders.begin(), folders.end(), name) != folders.end()) continue;
    folders.push_back(name);
    all.append(name).append(kLineEnd);
  }
  WriteIndex(std::string(kAllFolders), all);
  return folders;
}

void MapLibrary::SelectVariants(const std::array<std::string, 6>& chosen_before) {
  for (std::size_t row = 0; row < kMapScaleTable.size(); ++row) {
    ComboBox& field = scales_.Folder[row];
    if (field.Items.empty()) continue;
    field.Select(0);
    const std::string& variant = view_.StoredVariants[row];
    for (std::size_t i = 0; i < field.Items.size(); ++i) {
      const std::string& name = field.Items[i];
      // The names are in capitals and the stored text is compared as it stands.
      if (!Trim(variant).empty() && name.size() > kScalePrefixLength &&
          Mid(name, kScalePrefixLength + 1) == variant) {
        field.Select(static_cast<int>(i));
      }
    }
    const auto before = std::find(field.Items.begin(), field.Items.end(), chosen_before[row]);
    if (before != field.Items.end()) {
      field.Select(static_cast<int>(before - field.Items.begin()));
    }
  }
}

void MapLibrary::IndexFolder(const std::string& folder) {
  const std::string path = identity_.MapsPath + "\\" + folder;
  // Kept: a file of eight characters with any extension of three becomes a tile by its name.
  for (const FolderEntry& entry : files_.List(path, "????????.???")) {
    if (entry.IsFolder || Mid(entry.Name, 9, 4) == ".BMP") continue;
    files_.Rename(path + "\\" + entry.Name,
                  path + "\\" + std::string(Left(entry.Name, 8)) + ".BMP");
  }
  std::string index;
  for (const FolderEntry& entry : files_.List(path, "????????.BMP")) {
    index.append(entry.Name).append(kLineEnd);
  }
  WriteIndex(folder + std::string(kIndexExtension), index);
}

void MapLibrary::ScanPictures() {
  std::vector<std::string> names;
  for (const FolderEntry& entry : files_.List(identity_.MapsPath + "\\UTMPICS", "*.*")) {
    if (entry.IsFolder || InStr(Upper(entry.Name), "THUMB") > 0) continue;
    if (names.size() == kMostPictures) break;
    names.push_back(std::string(Left(entry.Name, kPictureNameColumns)));
  }
  std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
    const std::string folded_a = Upper(a);
    const std::string folded_b = Upper(b);
    return folded_a != folded_b ? folded_a < folded_b : a < b;
  });
  view_.PictureNames = std::move(names);
}

void MapLibrary::WriteIndex(const std::string& name, const std::string& text) {
  const std::string path = identity_.TempFolder + "\\" + name;
  if (files_.Write(path, text)) {
    made_.push_back(path);
  } else {
    indexes_written_ = false;
  }
}

std::optional<std::string> MapLibrary::ReadIndex(const std::string& folder) const {
  return files_.ReadAll(identity_.TempFolder + "\\" + folder + std::string(kIndexExtension),
                        kLongestIndex);
}

void MapLibrary::DeleteIndexFiles() {
  for (const std::string& path : made_)
    files_.Remove(path);
  made_.clear();
}

}  // namespace zepril
