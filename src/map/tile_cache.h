// Keeps tiles between redraws: decoded, and as last drawn (screen size, brightness, ink).
//
// A redraw shows the disk as it is: the stamp of every tile in view is asked for at each redraw,
// and a tile whose length or time of change differs is read anew. Which names a folder holds is
// listed once and kept while the folder's own stamp stays the same; a list made within a second of
// a change is made again, as a change right behind it might carry the same time. Everything lies
// within a memory budget, least recently used first out; decoded tiles go before drawn pictures,
// which are what the next redraw asks for (many small ones at a zoom factor of 8).
#pragma once

#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "map/bmp_reader.h"
#include "map/tile_palette.h"
#include "platform/clock.h"
#include "platform/drawing_surface.h"
#include "platform/files.h"

namespace zepril {

// A picture ready for the surface; keeps its pixels alive as long as it is held.
struct DrawnTile {
  int Width = 0;
  int Height = 0;
  std::shared_ptr<const std::vector<std::uint32_t>> Pixels;

  PixelImage Image() const { return {Width, Height, *Pixels}; }
};

class TileCache {
 public:
  static constexpr std::size_t kDefaultBudget = 64u << 20;  // bytes

  TileCache(const Files& files, const Clock& clock, std::size_t budget = kDefaultBudget);

  // To be called at the start of every redraw: what was found missing is looked for again.
  void BeginRedraw();

  // A tile file that is there: its path as spelled on the disk and its stamp.
  struct Found {
    std::string Path;
    FileStamp Stamp;
  };
  std::optional<Found> Find(const std::string& folder, const std::string& name);

  // The decoded tile; null when the file is no bitmap that can be drawn. Held by the caller as long
  // as needed.
  std::shared_ptr<const Bitmap> Decoded(const Found& tile);

  // The tile with its palette worked on, for a screen size of `side` pixels: shrunk to it, or in
  // native size when the screen size is larger. Nothing when it can't be drawn.
  std::optional<DrawnTile> Drawn(const Found& tile, int side, const PaletteWork& work);

  std::size_t BytesHeld() const { return bytes_; }
  // How often a file was read and decoded so far.
  int FilesRead() const { return files_read_; }

 private:
  struct Entry {
    std::string Key;
    std::int64_t ModifiedNs = 0;
    std::int64_t Size = 0;
    std::shared_ptr<const Bitmap> Decoded;  // one of the two
    DrawnTile Drawn;
    std::size_t Bytes = 0;
  };
  struct KnownFolder {
    std::optional<FileStamp> Stamp;
    double SeenSince = 0.0;  // monotonic seconds
    bool Listed = false;
    bool Settled = false;  // the list will hold while the stamp does
    std::uint64_t CheckedIn = 0;
    std::unordered_map<std::string, std::string> Names;  // in capitals -> as spelled
  };

  const KnownFolder& Known(const std::string& folder);
  Entry* Lookup(const std::string& key, const FileStamp& stamp);
  void Keep(Entry entry);
  void Drop(std::list<Entry>::iterator entry);
  std::list<Entry>& ListOf(const Entry& entry) { return entry.Decoded ? decoded_ : drawn_; }

  const Files& files_;
  const Clock& clock_;
  std::size_t budget_;
  std::size_t bytes_ = 0;
  int files_read_ = 0;
  std::uint64_t redraw_ = 1;
  // Most recently used first.
  std::list<Entry> decoded_;
  std::list<Entry> drawn_;
  std::unordered_map<std::string, std::list<Entry>::iterator> by_key_;
  std::map<std::string, KnownFolder> folders_;
  std::unordered_set<std::string> bad_;  // files of this redraw that are no bitmap
};

}  // namespace zepril
