// Merges line by line from file to file.
#include "gps/vector_import.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "core/point_list.h"
#include "core/text_fields.h"
#include "core/texts/status_texts.h"
#include "gps/file_age.h"
#include "gps/line_files.h"
#include "gps/way_lines.h"
#include "gps/way_recorder.h"

namespace zepril {
namespace {

constexpr std::size_t kWholePoint = 33;                 // characters
constexpr std::size_t kTrackKey = 13;                   // date and time of a point
constexpr const char* kZone = "U33";                    // Kept: whatever map system is in use.
constexpr std::size_t kBlock = std::size_t{64} * 1024;  // bytes

std::string_view TrackKey(std::string_view line) {
  return Mid(line, 21, static_cast<std::ptrdiff_t>(kTrackKey));
}

std::string_view WayKeyOf(std::string_view line) {
  return Mid(line, 11, 11);
}

bool IsFolder(const Files& disk, const std::string& path) {
  const auto stamp = disk.Stamp(path);
  return stamp && stamp->IsFolder;
}

// `next` without the lines of blanks.
bool NextFilled(const NextLine& next, std::string& line) {
  while (next(line)) {
    if (!Trim(line).empty()) return true;
  }
  return false;
}

// How far the import is, and whether it may go on.
class ImportWork {
 public:
  // `vectors`: bytes of files of vectors that will be read, each pass over them counted.
  ImportWork(const Clock& clock, Progress& progress, std::int64_t vectors)
      : clock_(clock), progress_(progress), vectors_(static_cast<double>(vectors)) {}

  void Begin(const std::string& file) {
    words_ = status_texts::kTakingOver.With({file});
    Tell();
  }
  // So many bytes were read, some of them of the vectors. False when the program is to end.
  bool GoesOn(std::size_t bytes, std::size_t of_vectors) {
    constexpr std::size_t kTellEvery = std::size_t{64} * 1024;
    done_ += static_cast<double>(of_vectors);
    untold_ += bytes;
    if (untold_ >= kTellEvery) Tell();
    return !ended_;
  }
  bool Ended() const { return ended_; }

 private:
  void Tell() {
    untold_ = 0;
    progress_.Report(words_, vectors_ > 0.0 ? std::min(done_ / vectors_, 1.0) : 0.0);
    ended_ = ended_ || clock_.EndAsked();
  }

  const Clock& clock_;
  Progress& progress_;
  double vectors_;  // bytes
  double done_ = 0.0;
  std::size_t untold_ = 0;
  bool ended_ = false;
  std::string words_;
};

// The lines of a track or a way; none any more when the work is to end, which whoever takes them
// has to ask for.
NextLine LinesOf(LineStream& stream, ImportWork& work) {
  return [&](std::string& line) { return stream.Next(line) && work.GoesOn(line.size(), 0); };
}

// Likewise, of a file of vectors.
NextLine VectorLinesOf(LineStream& stream, ImportWork& work) {
  constexpr std::size_t kLineEnd = 2;
  return [&](std::string& line) {
    return stream.Next(line) && work.GoesOn(line.size(), line.size() + kLineEnd);
  };
}

// Takes lines, and gives them on in blocks.
class BlockWriter {
 public:
  explicit BlockWriter(const Files::PieceTaker& take) : take_(take) {}
  bool Put(std::string_view line) {
    block_ += line;
    block_ += "\r\n";
    return block_.size() < kBlock || Flush();
  }
  bool Flush() {
    const bool taken = block_.empty() || take_(block_);
    block_.clear();
    return taken;
  }

 private:
  const Files::PieceTaker& take_;
  std::string block_;
};

// Replaces the file at `path`, which may be missing, by what `merge` makes of its lines. Nothing is
// changed when a file can't be read whole, or was changed meanwhile.
bool Rewrite(Files& disk, const std::string& path, ImportWork& work,
             const std::function<bool(const NextLine& old, const PutLine& put)>& merge) {
  const auto before = disk.Stamp(path);
  if (before && (!before->IsRegular || before->Size > kLargestMerge)) return false;
  return disk.ReplaceInPieces(path, [&](const Files::PieceTaker& take) {
    LineStream stream(disk, path);
    BlockWriter writer(take);
    const NextLine old = before ? LinesOf(stream, work) : [](std::string&) { return false; };
    const PutLine put = [&writer](std::string_view line) { return writer.Put(line); };
    return merge(old, put) && writer.Flush() && !stream.Failed() && !work.Ended() &&
           disk.Stamp(path) == before;
  });
}

bool HaveSameContent(const Files& disk, const std::string& one, const std::string& other,
                     ImportWork& work) {
  LineStream first(disk, one);
  LineStream second(disk, other);
  std::string line;
  std::string same;
  while (work.GoesOn(line.size(), 0)) {
    const bool more = first.Next(line);
    if (second.Next(same) != more || line != same) return false;
    if (!more) return !first.Failed() && !second.Failed();
  }
  return false;
}

// What stands at `path` gets a name of its own, so that the place is free.
bool MoveAside(Files& disk, const std::string& path) {
  if (disk.Rename(path, path + ".BAK")) return true;
  for (int number = 1; number <= 9; ++number) {
    if (disk.Rename(path, path + ".BA" + WholeNumber(number))) return true;
  }
  return false;
}

// The navigation program's own copy. Another file of this name may be of value to it.
bool CopyVectors(Files& disk, const std::string& from, const std::string& to, ImportWork& work) {
  if (const auto there = disk.Stamp(to)) {
    if (!there->IsRegular) return false;
    if (HaveSameContent(disk, from, to, work)) return true;
    if (work.Ended() || !MoveAside(disk, to)) return false;
  }
  return disk.ReplaceInPieces(to, [&](const Files::PieceTaker& take) {
    for (std::int64_t offset = 0;;) {
      const auto block = disk.ReadRange(from, offset, kBlock);
      if (!block || block->empty()) return block.has_value();
      if (!take(*block) || !work.GoesOn(block->size(), block->size())) return false;
      offset += static_cast<std::int64_t>(block->size());
    }
  });
}

// One file of vectors.
struct Vectors {
  std::string Path;
  std::string Name;     // of the file
  std::string Outing;   // its name without the two letters in front
  std::string Turning;  // the line of its turning point; empty: there is no point
  FileStamp Stamp;      // before it was read
};

// Of a file that can be one and is no longer written to.
std::optional<FileStamp> SettledStamp(const Files& disk, const std::string& path,
                                      const Clock& clock) {
  const auto stamp = disk.Stamp(path);
  const bool takes = stamp && stamp->IsRegular && stamp->Size > 0 && stamp->Size <= kLargestMerge;
  return takes && SecondsSinceChange(*stamp, clock) >= kSettledSeconds ? stamp : std::nullopt;
}

// Nothing for a file that is none: another program's may have the same extension.
std::optional<Vectors> ReadVectors(const Files& disk, const std::string& folder,
                                   const std::string& name, const FileStamp& stamp,
                                   ImportWork& work) {
  Vectors vectors{folder + "\\" + name, name, std::string(Mid(name, 3)), {}, stamp};
  LineStream stream(disk, vectors.Path);
  TurningPoint turning;
  std::string line;
  bool first = true;
  while (NextFilled(VectorLinesOf(stream, work), line)) {
    if (first && !IsWholePoint(line)) return std::nullopt;
    first = false;
    turning.Take(line);
  }
  if (stream.Failed() || work.Ended()) return std::nullopt;
  vectors.Turning = turning.Line();
  return vectors;
}

bool AddToWay(Files& disk, const std::string& folder, const Vectors& vectors, ImportWork& work) {
  if (!CopyVectors(disk, vectors.Path, folder + "\\TK" + vectors.Outing, work)) return false;
  if (vectors.Turning.empty()) return true;
  const std::string line = OutingLine(vectors.Turning, vectors.Outing);
  return Rewrite(disk, folder + "\\QTHWAY.TXT", work,
                 [&](const NextLine& old, const PutLine& put) { return MergeWay(old, line, put); });
}

bool AddToTrack(Files& disk, const std::string& folder, const Vectors& vectors, ImportWork& work) {
  if (vectors.Turning.empty()) return true;
  disk.MakeFolder(folder);
  LineStream stream(disk, vectors.Path);
  return Rewrite(disk, folder + "\\" + TrackNameOfVectors(vectors.Name) + ".TRK", work,
                 [&](const NextLine& old, const PutLine& put) {
                   return MergeTrack(old, VectorLinesOf(stream, work), put) && !stream.Failed();
                 });
}

// A file in the folder, and its stamp before anything of it was read.
struct SettledFile {
  std::string Name;
  FileStamp Stamp;
};

std::vector<SettledFile> SettledFiles(const Files& disk, const std::string& folder,
                                      const Clock& clock) {
  std::vector<SettledFile> files;
  for (const FolderEntry& entry : disk.List(folder, "*.VEC")) {
    const auto stamp = SettledStamp(disk, folder + "\\" + entry.Name, clock);
    if (stamp) files.push_back({entry.Name, *stamp});
  }
  return files;
}

std::int64_t BytesOf(const std::vector<SettledFile>& files) {
  std::int64_t bytes = 0;
  for (const SettledFile& file : files)
    bytes += file.Stamp.Size;
  return bytes;
}

}  // namespace

bool IsWholePoint(std::string_view line) {
  return line.starts_with(PointList::kMark) && line.size() >= kWholePoint;
}

void TurningPoint::Take(std::string_view line) {
  if (!IsWholePoint(line)) return;
  const double north_km = Val(Mid(line, 2, 5));
  const double east_km = Val(Mid(line, 11, 5));
  if (line_.empty()) {
    first_north_km_ = north_km;
    first_east_km_ = east_km;
  }
  const double distance_km = std::hypot(north_km - first_north_km_, east_km - first_east_km_);
  if (distance_km < farthest_km_) return;
  farthest_km_ = distance_km;
  line_ = line;
}

bool MergeTrack(const NextLine& track, const NextLine& vectors, const PutLine& put) {
  std::string old;
  std::string fresh;
  bool has_old = track(old);
  bool has_fresh = NextFilled(vectors, fresh);
  while (has_old || has_fresh) {
    const int order = TrackKey(old).compare(TrackKey(fresh));
    // Lines without a whole date and time are of no minute, and one with a text of its own is not
    // told by the vectors': both stay.
    const bool same = has_old && has_fresh && order == 0 && TrackKey(old).size() == kTrackKey &&
                      (TrimRight(old).size() <= kWholePoint || old == fresh);
    const bool old_first = has_old && (!has_fresh || (order <= 0 && !same));
    if (!put(old_first ? old : fresh)) return false;
    if (old_first || same) has_old = track(old);
    if (!old_first) has_fresh = NextFilled(vectors, fresh);
  }
  return true;
}

bool MergeWay(const NextLine& way, std::string_view line, const PutLine& put) {
  std::string old;
  bool there = false;
  while (way(old)) {
    if (!there && WayKeyOf(old) > WayKeyOf(line)) {
      there = true;
      if (!put(line)) return false;
    }
    there = there || old == line;
    if (!put(old)) return false;
  }
  return there || put(line);
}

std::string TrackNameOfVectors(std::string_view file_name) {
  const std::string_view stem = file_name.substr(0, file_name.rfind('.'));
  const std::string_view letters = Left(stem, 2);
  const std::string_view day = Mid(stem, 3);
  const bool of_a_day = day.size() == 8 && std::all_of(day.begin(), day.end(), IsDigit) &&
                        std::all_of(letters.begin(), letters.end(), [](char c) {
                          return UpperChar(c) >= 'A' && UpperChar(c) <= 'Z';
                        });
  return std::string(of_a_day ? day : Left(stem, 8));
}

void ImportVectorFiles(Files& disk, const std::string& program_folder, const Clock& clock,
                       Progress& progress) {
  // Is the navigation program there?
  const std::string navigation = NavigationFolder(kZone);
  const bool has_navigation = IsFolder(disk, navigation);
  const std::string zone_folder = program_folder + "\\" + kZone;
  const std::string folder = zone_folder + "\\VEC";
  // Kept: the folder of the usual installation is made, whatever the program folder is.
  if (!IsFolder(disk, folder)) disk.MakeFolder("C:\\ZEPRIL\\U33\\VEC");
  const std::vector<SettledFile> files = SettledFiles(disk, folder, clock);
  // Each is looked through, copied where the program is there, and merged.
  ImportWork work(clock, progress, BytesOf(files) * (has_navigation ? 3 : 2));
  int taken = 0;
  for (const SettledFile& file : files) {
    if (taken == kMostVectorFiles || work.Ended()) break;
    work.Begin(file.Name);
    const auto vectors = ReadVectors(disk, folder, file.Name, file.Stamp, work);
    if (!vectors) continue;
    ++taken;
    // The outing in the way of the navigation program, and its points in the track of the day.
    const bool on_way = !has_navigation || AddToWay(disk, navigation, *vectors, work);
    const bool in_track = AddToTrack(disk, zone_folder + "\\TRK", *vectors, work);
    // Only now nothing is lost with it.
    if (on_way && in_track && disk.Stamp(vectors->Path) == vectors->Stamp) {
      disk.Remove(vectors->Path);
    }
  }
  progress.Done();
}

}  // namespace zepril
