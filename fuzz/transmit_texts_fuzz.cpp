// An info file of any content, and a heard record of any bytes that is sent again: what goes out is
// the file's longest line, never more than 63 characters and none below 32; a frame of the record
// has the length and the fixed parts that a frame has.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "core/station_record.h"
#include "tests/doubles/memory_files.h"
#include "transmit/position_report.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

// The same by another way: every line taken apart first.
std::string LongestOf(const std::string& text) {
  std::vector<std::string> lines(1);
  for (const char c : text) {
    if (c == '\r' || c == '\n') {
      lines.emplace_back();
    } else {
      lines.back() += c;
    }
  }
  std::string longest;
  for (std::string& line : lines) {
    while (!line.empty() && line.front() == ' ')
      line.erase(0, 1);
    while (!line.empty() && line.back() == ' ')
      line.pop_back();
    if (line.size() > longest.size()) longest = line;
  }
  std::string shown;
  for (const char c : longest) {
    if (static_cast<unsigned char>(c) >= 32) shown += c;
  }
  return shown.substr(0, 63);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  zepril::MemoryFiles disk;
  disk.Contents["WX.TXT"] = text;
  Require(zepril::CommentField("{WX.TXT}", disk) == LongestOf(text));
  Require(zepril::CommentField(text, disk).size() <= 64);

  const zepril::StationRecord record(text);
  const zepril::DegreeTexts place =
      zepril::DegreeTextsOf(record.NorthKm(), record.EastKm(), 15.0, 500000.0);
  const std::string report = zepril::RetransmittedReport(record, "QX7KB-10", 15, place);
  Require(report.starts_with("}"));
  Require(report.find(">ZEPRRE,QX7KB-10*:") != std::string::npos);
  // Call of up to 9, time of up to 8, position 19, a blank and 47 of text.
  Require(report.size() <= 1 + 9 + 18 + 8 + 19 + 1 + 47);
  return 0;
}
