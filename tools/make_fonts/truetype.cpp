// The tables of the font file, one function each, and their checksums.
#include "make_fonts/truetype.h"

#include <algorithm>
#include <array>
#include <utility>

namespace zepril {
namespace {

// Bytes in the order of the file format: highest first.
class Bytes {
 public:
  void U8(int value) { text_.push_back(static_cast<char>(value & 0xFF)); }
  void U16(int value) {
    U8(value >> 8);
    U8(value);
  }
  void U32(std::uint32_t value) {
    U16(static_cast<int>(value >> 16));
    U16(static_cast<int>(value & 0xFFFF));
  }
  void Text(const std::string& text) { text_ += text; }
  void Align(std::size_t step) {
    while (text_.size() % step != 0)
      text_.push_back('\0');
  }
  std::size_t Size() const { return text_.size(); }
  const std::string& Get() const { return text_; }

 private:
  std::string text_;
};

struct Box {
  int x_min = 0, y_min = 0, x_max = 0, y_max = 0;
  bool empty = true;

  void Add(int x, int y) {
    x_min = empty ? x : std::min(x_min, x);
    y_min = empty ? y : std::min(y_min, y);
    x_max = empty ? x : std::max(x_max, x);
    y_max = empty ? y : std::max(y_max, y);
    empty = false;
  }
};

Box BoxOf(const FontGlyph& glyph) {
  Box box;
  for (const Contour& contour : glyph.contours) {
    for (const OutlinePoint& point : contour)
      box.Add(point.x, point.y);
  }
  return box;
}

Box BoxOf(const FontFace& face) {
  Box box;
  for (const FontGlyph& glyph : face.glyphs) {
    const Box one = BoxOf(glyph);
    if (one.empty) continue;
    box.Add(one.x_min, one.y_min);
    box.Add(one.x_max, one.y_max);
  }
  return box;
}

std::size_t PointCount(const FontGlyph& glyph) {
  std::size_t count = 0;
  for (const Contour& contour : glyph.contours)
    count += contour.size();
  return count;
}

// One glyph of the table "glyf": ends of contours, flags, then x and y as two-byte differences.
std::string GlyphData(const FontGlyph& glyph) {
  Bytes out;
  if (glyph.contours.empty()) return {};
  const Box box = BoxOf(glyph);
  out.U16(static_cast<int>(glyph.contours.size()));
  out.U16(box.x_min);
  out.U16(box.y_min);
  out.U16(box.x_max);
  out.U16(box.y_max);
  int last = -1;
  for (const Contour& contour : glyph.contours)
    out.U16(last += static_cast<int>(contour.size()));
  out.U16(0);  // no instructions
  for (const Contour& contour : glyph.contours) {
    for (const OutlinePoint& point : contour)
      out.U8(point.on_curve ? 1 : 0);
  }
  int before = 0;
  for (const Contour& contour : glyph.contours) {
    for (const OutlinePoint& point : contour)
      out.U16(point.x - std::exchange(before, point.x));
  }
  before = 0;
  for (const Contour& contour : glyph.contours) {
    for (const OutlinePoint& point : contour)
      out.U16(point.y - std::exchange(before, point.y));
  }
  out.Align(4);
  return out.Get();
}

struct Run {
  char32_t first = 0, last = 0;
  int glyph = 0;  // of the first character
};

// Characters that follow one another share a segment.
std::vector<Run> CodeRuns(const FontFace& face) {
  std::vector<Run> runs;
  for (std::size_t i = 0; i < face.glyphs.size(); ++i) {
    const char32_t code = face.glyphs[i].code;
    if (code == 0) continue;
    const int glyph = static_cast<int>(i);
    if (!runs.empty() && runs.back().last + 1 == code) {
      runs.back().last = code;
    } else {
      runs.push_back({code, code, glyph});
    }
  }
  return runs;
}

std::string CharacterMap(const FontFace& face) {
  std::vector<Run> runs = CodeRuns(face);
  runs.push_back({0xFFFF, 0xFFFF, 0});
  const int count = static_cast<int>(runs.size());
  int power = 1, log = 0;
  while (power * 2 <= count)
    power *= 2, ++log;
  Bytes out;
  out.U16(0);
  out.U16(2);  // two encodings share the one subtable
  for (const auto& [platform, encoding] : {std::pair{0, 3}, std::pair{3, 1}}) {
    out.U16(platform);
    out.U16(encoding);
    out.U32(20);
  }
  out.U16(4);
  out.U16(16 + 8 * count);
  out.U16(0);
  out.U16(count * 2);
  out.U16(power * 2);
  out.U16(log);
  out.U16((count - power) * 2);
  for (const Run& run : runs)
    out.U16(static_cast<int>(run.last));
  out.U16(0);
  for (const Run& run : runs)
    out.U16(static_cast<int>(run.first));
  for (const Run& run : runs) {
    out.U16(run.first == 0xFFFF ? 1 : run.glyph - static_cast<int>(run.first));
  }
  for (int i = 0; i < count; ++i)
    out.U16(0);
  return out.Get();
}

std::string Head(const FontFace& face) {
  const Box box = BoxOf(face);
  Bytes out;
  out.U32(0x00010000);
  out.U32(0x00010000);
  out.U32(0);  // checksum adjustment, set when the file stands
  out.U32(0x5F0F3CF5);
  out.U16(0x0003);
  out.U16(face.units_per_em);
  for (int i = 0; i < 2; ++i) {  // made and changed: a fixed day, so that the bytes repeat
    out.U32(0);
    out.U32(3786825600u);
  }
  out.U16(box.x_min);
  out.U16(box.y_min);
  out.U16(box.x_max);
  out.U16(box.y_max);
  out.U16(0);
  out.U16(8);
  out.U16(2);
  out.U16(1);  // long offsets
  out.U16(0);
  return out.Get();
}

int LargestAdvance(const FontFace& face) {
  int largest = 0;
  for (const FontGlyph& glyph : face.glyphs)
    largest = std::max(largest, glyph.advance);
  return largest;
}

std::string HorizontalHead(const FontFace& face) {
  const Box box = BoxOf(face);
  const int advance = LargestAdvance(face);
  Bytes out;
  out.U32(0x00010000);
  out.U16(face.ascent);
  out.U16(-face.descent);
  out.U16(0);
  out.U16(advance);
  out.U16(box.x_min);
  out.U16(advance - box.x_max);
  out.U16(box.x_max);
  out.U16(1);
  for (int i = 0; i < 7; ++i)
    out.U16(0);
  out.U16(static_cast<int>(face.glyphs.size()));
  return out.Get();
}

std::string HorizontalMetrics(const FontFace& face) {
  Bytes out;
  for (const FontGlyph& glyph : face.glyphs) {
    out.U16(glyph.advance);
    out.U16(BoxOf(glyph).x_min);
  }
  return out.Get();
}

std::string Profile(const FontFace& face) {
  std::size_t points = 0, contours = 0;
  for (const FontGlyph& glyph : face.glyphs) {
    points = std::max(points, PointCount(glyph));
    contours = std::max(contours, glyph.contours.size());
  }
  Bytes out;
  out.U32(0x00010000);
  out.U16(static_cast<int>(face.glyphs.size()));
  out.U16(static_cast<int>(points));
  out.U16(static_cast<int>(contours));
  out.U16(0);
  out.U16(0);
  out.U16(2);
  for (int i = 0; i < 8; ++i)
    out.U16(0);
  return out.Get();
}

std::string Names(const FontFace& face) {
  std::string compact = face.family;
  std::erase(compact, ' ');
  const std::array<std::pair<int, std::string>, 6> rows = {{{1, face.family},
                                                            {2, "Regular"},
                                                            {3, "ZEPRIL " + compact + " 1.0"},
                                                            {4, face.family},
                                                            {5, "Version 1.0"},
                                                            {6, compact + "-Regular"}}};
  Bytes head, text;
  head.U16(0);
  head.U16(static_cast<int>(rows.size()));
  head.U16(static_cast<int>(6 + 12 * rows.size()));
  for (const auto& [id, value] : rows) {
    head.U16(3);
    head.U16(1);
    head.U16(0x0409);
    head.U16(id);
    head.U16(static_cast<int>(value.size() * 2));
    head.U16(static_cast<int>(text.Size()));
    for (const char c : value)
      text.U16(static_cast<unsigned char>(c));
  }
  return head.Get() + text.Get();
}

std::string Os2(const FontFace& face) {
  Bytes out;
  out.U16(4);
  out.U16(LargestAdvance(face));
  out.U16(400);
  out.U16(5);
  out.U16(0);
  for (int i = 0; i < 8; ++i)
    out.U16(face.units_per_em / 2);  // sub- and superscripts
  out.U16(face.units_per_em / 12);
  out.U16(face.units_per_em / 4);
  out.U16(0);
  // Latin text of even weight; "9" at the fourth place is fixed width.
  for (const int value : {2, 0, 5, face.fixed_width ? 9 : 3, 0, 0, 0, 0, 0, 0})
    out.U8(value);
  out.U32(0x00000003);
  out.U32(0);
  out.U32(0);
  out.U32(0);
  out.Text("ZEPR");
  out.U16(0x00C0);  // regular, and the typographic metrics are the ones meant
  char32_t last = 0;
  for (const FontGlyph& glyph : face.glyphs)
    last = std::max(last, glyph.code);
  out.U16(static_cast<int>(face.glyphs.size() > 1 ? face.glyphs[1].code : 0));
  out.U16(static_cast<int>(last));
  out.U16(face.ascent);
  out.U16(-face.descent);
  out.U16(0);
  out.U16(face.ascent);
  out.U16(face.descent);
  out.U32(0x00000001);  // code page 1252
  out.U32(0);
  out.U16(face.x_height);
  out.U16(face.capital_height);
  out.U16(0);
  out.U16(32);
  out.U16(1);
  return out.Get();
}

std::string PostScript(const FontFace& face) {
  Bytes out;
  out.U32(0x00030000);
  out.U32(0);
  out.U16(-face.units_per_em / 8);
  out.U16(face.units_per_em / 12);
  out.U32(face.fixed_width ? 1 : 0);
  for (int i = 0; i < 4; ++i)
    out.U32(0);
  return out.Get();
}

// Never move a point to the grid at any size: the outlines stand on it already.
std::string GridFitting() {
  Bytes out;
  out.U16(1);
  out.U16(1);
  out.U16(0xFFFF);
  out.U16(0x000A);
  return out.Get();
}

std::uint32_t Checksum(const std::string& data) {
  std::uint32_t sum = 0;
  for (std::size_t i = 0; i < data.size(); ++i) {
    sum += static_cast<std::uint32_t>(static_cast<unsigned char>(data[i])) << (24 - 8 * (i % 4));
  }
  return sum;
}

using Table = std::pair<std::string, std::string>;  // tag and contents

std::vector<Table> Tables(const FontFace& face) {
  Bytes data, places;
  for (const FontGlyph& glyph : face.glyphs) {
    places.U32(static_cast<std::uint32_t>(data.Size()));
    data.Text(GlyphData(glyph));
  }
  places.U32(static_cast<std::uint32_t>(data.Size()));
  return {{"OS/2", Os2(face)},
          {"cmap", CharacterMap(face)},
          {"gasp", GridFitting()},
          {"glyf", data.Get()},
          {"head", Head(face)},
          {"hhea", HorizontalHead(face)},
          {"hmtx", HorizontalMetrics(face)},
          {"loca", places.Get()},
          {"maxp", Profile(face)},
          {"name", Names(face)},
          {"post", PostScript(face)}};
}

}  // namespace

std::string WriteTrueType(const FontFace& face) {
  const std::vector<Table> tables = Tables(face);
  const int count = static_cast<int>(tables.size());
  Bytes head, body;
  head.U32(0x00010000);
  head.U16(count);
  head.U16(8 * 16);
  head.U16(3);
  head.U16(count * 16 - 8 * 16);
  const std::size_t body_start = 12 + 16 * tables.size();
  std::size_t adjustment_at = 0;
  for (const auto& [tag, data] : tables) {
    if (tag == "head") adjustment_at = body_start + body.Size() + 8;
    head.Text(tag);
    head.U32(Checksum(data));
    head.U32(static_cast<std::uint32_t>(body_start + body.Size()));
    head.U32(static_cast<std::uint32_t>(data.size()));
    body.Text(data);
    body.Align(4);
  }
  std::string file = head.Get() + body.Get();
  Bytes adjustment;
  adjustment.U32(0xB1B0AFBAu - Checksum(file));
  file.replace(adjustment_at, 4, adjustment.Get());
  return file;
}

}  // namespace zepril
