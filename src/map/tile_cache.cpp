// Finds, decodes, works and drops tiles within the budget of memory.
#include "map/tile_cache.h"

#include <algorithm>
#include <utility>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr double kSettleSeconds = 1.0;
constexpr std::size_t kMostFolders = 64;

}  // namespace

TileCache::TileCache(const Files& files, const Clock& clock, std::size_t budget)
    : files_(files), clock_(clock), budget_(budget) {}

void TileCache::BeginRedraw() {
  ++redraw_;
  bad_.clear();
  if (folders_.size() > kMostFolders) folders_.clear();
}

const TileCache::KnownFolder& TileCache::Known(const std::string& folder) {
  KnownFolder& known = folders_[folder];
  if (known.CheckedIn == redraw_) return known;
  known.CheckedIn = redraw_;
  const auto stamp = files_.Stamp(folder);
  const double now = clock_.MonotonicSeconds();
  if (!known.Listed || stamp != known.Stamp) {
    known.Stamp = stamp;
    known.SeenSince = now;
    known.Settled = false;
  }
  if (known.Settled) return known;
  known.Names.clear();
  if (stamp && stamp->IsFolder) {
    for (const FolderEntry& entry : files_.List(folder, "????????.BMP")) {
      known.Names.emplace(Upper(entry.Name), entry.Name);
    }
  }
  known.Listed = true;
  known.Settled = now - known.SeenSince >= kSettleSeconds;
  return known;
}

std::optional<TileCache::Found> TileCache::Find(const std::string& folder,
                                                const std::string& name) {
  const KnownFolder& known = Known(folder);
  const auto spelled = known.Names.find(name);
  if (spelled == known.Names.end()) return std::nullopt;
  Found found{folder + "\\" + spelled->second, {}};
  const auto stamp = files_.Stamp(found.Path);
  if (!stamp || !stamp->IsRegular) return std::nullopt;
  found.Stamp = *stamp;
  return found;
}

std::shared_ptr<const Bitmap> TileCache::Decoded(const Found& tile) {
  if (const Entry* kept = Lookup(tile.Path, tile.Stamp)) return kept->Decoded;
  if (bad_.contains(tile.Path)) return nullptr;
  const auto bytes = files_.ReadAll(tile.Path, kLongestBitmapFile);
  ++files_read_;
  auto bitmap = bytes ? ReadBmp(*bytes) : std::nullopt;
  if (!bitmap) {
    bad_.insert(tile.Path);
    return nullptr;
  }
  Entry entry{tile.Path, tile.Stamp.ModifiedNs, tile.Stamp.Size, nullptr, {}, bitmap->Bytes()};
  entry.Decoded = std::make_shared<const Bitmap>(std::move(*bitmap));
  auto decoded = entry.Decoded;
  Keep(std::move(entry));
  return decoded;
}

std::optional<DrawnTile> TileCache::Drawn(const Found& tile, int side, const PaletteWork& work) {
  const std::string key = tile.Path + "|" + WholeNumber(side) + "|" +
                          WholeNumber(work.BrightnessStep) + "|" +
                          (work.Ink ? WholeNumber(*work.Ink) : "-");
  if (const Entry* kept = Lookup(key, tile.Stamp)) return kept->Drawn;
  const auto bitmap = Decoded(tile);
  if (!bitmap) return std::nullopt;
  DrawnTile drawn{std::min(side, bitmap->Width), std::min(side, bitmap->Height), nullptr};
  if (drawn.Width < 1 || drawn.Height < 1) return std::nullopt;
  drawn.Pixels = std::make_shared<const std::vector<std::uint32_t>>(
      StretchedPixels(*bitmap, WorkedPalette(bitmap->Palette, work), drawn.Width, drawn.Height));
  Keep({key, tile.Stamp.ModifiedNs, tile.Stamp.Size, nullptr, drawn,
        drawn.Pixels->size() * sizeof(std::uint32_t)});
  return drawn;
}

TileCache::Entry* TileCache::Lookup(const std::string& key, const FileStamp& stamp) {
  const auto at = by_key_.find(key);
  if (at == by_key_.end()) return nullptr;
  if (at->second->ModifiedNs != stamp.ModifiedNs || at->second->Size != stamp.Size) {
    Drop(at->second);
    return nullptr;
  }
  std::list<Entry>& list = ListOf(*at->second);
  list.splice(list.begin(), list, at->second);
  return &list.front();
}

void TileCache::Keep(Entry entry) {
  if (entry.Bytes > budget_) return;
  const auto before = by_key_.find(entry.Key);
  if (before != by_key_.end()) Drop(before->second);
  bytes_ += entry.Bytes;
  std::list<Entry>& list = ListOf(entry);
  list.push_front(std::move(entry));
  by_key_[list.front().Key] = list.begin();
  while (bytes_ > budget_) {
    std::list<Entry>& oldest = decoded_.empty() ? drawn_ : decoded_;
    Drop(std::prev(oldest.end()));
  }
}

void TileCache::Drop(std::list<Entry>::iterator entry) {
  bytes_ -= entry->Bytes;
  by_key_.erase(entry->Key);
  ListOf(*entry).erase(entry);
}

}  // namespace zepril
