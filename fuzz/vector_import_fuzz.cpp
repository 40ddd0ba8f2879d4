// A file of vectors and a track and way of any content: no line of theirs is lost but a point whose
// minute the vectors have too, no point of the vectors is lost, and a second import changes
// nothing.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "core/text_fields.h"
#include "gps/line_files.h"
#include "gps/vector_import.h"
#include "tests/doubles/memory_files.h"
#include "tests/doubles/recorded_progress.h"
#include "tests/doubles/virtual_clock.h"

namespace {

using Lines = std::vector<std::string>;

constexpr const char* kVectors = "P\\U33\\VEC\\XX20240514.VEC";
constexpr const char* kTrack = "P\\U33\\TRK\\20240514.TRK";

void Require(bool holds) {
  if (!holds) std::abort();
}

Lines LinesIn(const zepril::MemoryFiles& disk, const std::string& path) {
  zepril::LineStream stream(disk, path);
  Lines lines;
  std::string line;
  while (disk.Exists(path) && stream.Next(line))
    lines.push_back(line);
  return lines;
}

std::string Minute(const std::string& line) {
  return std::string(zepril::Mid(line, 21, 13));
}

bool Holds(const Lines& lines, const std::string& line) {
  return std::find(lines.begin(), lines.end(), line) != lines.end();
}

bool HoldsMinute(const Lines& lines, const std::string& minute) {
  return minute.size() == 13 && std::any_of(lines.begin(), lines.end(), [&](const auto& line) {
           return Minute(line) == minute;
         });
}

zepril::NextLine From(const Lines& lines, std::size_t& at) {
  return [&lines, &at](std::string& line) {
    if (at == lines.size()) return false;
    line = lines[at++];
    return true;
  };
}

// The way with a line: that, once, and every other one in its order.
void RequireWayWhole(const Lines& way, const std::string& line) {
  Lines merged;
  std::size_t at = 0;
  Require(zepril::MergeWay(From(way, at), line, [&merged](std::string_view put) {
    merged.emplace_back(put);
    return true;
  }));
  const std::size_t more = Holds(way, line) ? merged.size() - way.size() : 1;
  Require(more <= 1 && merged.size() == way.size() + more);
  const auto put = std::find(merged.begin(), merged.end(), line);
  Require(put != merged.end());
  if (more == 1) merged.erase(put);
  Require(merged == way);
}

}  // namespace

// The first byte says where the vectors end and the track begins.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input(reinterpret_cast<const char*>(data), size);
  const std::size_t cut = input.empty() ? 0 : static_cast<std::size_t>(data[0]) * size / 256;
  zepril::MemoryFiles disk;
  disk.Contents[kVectors] = input.substr(std::min<std::size_t>(1, size), cut);
  disk.Contents[kTrack] = input.substr(std::min(size, cut + 1));
  const Lines vectors = LinesIn(disk, kVectors);
  const Lines track = LinesIn(disk, kTrack);
  const zepril::MemoryFiles before = disk;
  const zepril::VirtualClock clock;
  zepril::RecordedProgress progress;
  zepril::ImportVectorFiles(disk, "P", clock, progress);
  if (disk.Exists(kVectors)) {
    Require(disk.Contents == before.Contents);
  } else {
    const Lines merged = LinesIn(disk, kTrack);
    for (const std::string& line : track)
      Require(Holds(merged, line) || HoldsMinute(vectors, Minute(line)));
    for (const std::string& line : vectors)
      Require(zepril::Trim(line).empty() || Holds(merged, line));
    Require(merged.size() <= track.size() + vectors.size());
  }
  for (const std::string& line : vectors)
    RequireWayWhole(track, line);
  return 0;
}
