// Reads glyphs row by row, and composes letters with their accents.
#include "make_fonts/pixel_glyphs.h"

#include <charconv>
#include <string_view>
#include <vector>

namespace zepril {
namespace {

using Words = std::vector<std::string_view>;

Words SplitWords(std::string_view line) {
  Words words;
  std::size_t at = 0;
  while (at < line.size()) {
    const std::size_t from = line.find_first_not_of(' ', at);
    if (from == std::string_view::npos) break;
    const std::size_t to = std::min(line.find(' ', from), line.size());
    words.push_back(line.substr(from, to - from));
    at = to;
  }
  return words;
}

std::vector<std::string_view> SplitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

std::optional<int> ReadInt(std::string_view word, int base = 10) {
  int value = 0;
  const auto result = std::from_chars(word.data(), word.data() + word.size(), value, base);
  if (result.ec != std::errc() || result.ptr != word.data() + word.size()) return std::nullopt;
  return value;
}

// "A" or "U+00C4".
std::optional<char32_t> ReadCode(std::string_view word) {
  if (word.size() == 1) return static_cast<unsigned char>(word[0]);
  if (word.size() < 3 || word.substr(0, 2) != "U+") return std::nullopt;
  const auto code = ReadInt(word.substr(2), 16);
  if (!code) return std::nullopt;
  return static_cast<char32_t>(*code);
}

std::optional<std::uint8_t> ReadRow(std::string_view word) {
  if (word.size() != kGlyphWidth) return std::nullopt;
  int bits = 0;
  for (const char c : word) {
    if (c != 'X' && c != '.') return std::nullopt;
    bits = bits * 2 + (c == 'X' ? 1 : 0);
  }
  return static_cast<std::uint8_t>(bits);
}

class Reader {
 public:
  explicit Reader(std::string_view text) : lines_(SplitLines(text)) {}

  std::optional<PixelGlyphs> Read() {
    while (next_ < lines_.size()) {
      const std::string_view line = lines_[next_++];
      if (line.empty() || line == "#" || line.substr(0, 2) == "# ") continue;
      if (!ReadBlock(SplitWords(line))) return std::nullopt;
    }
    return glyphs_;
  }

 private:
  bool ReadBlock(const Words& head) {
    if (head.empty()) return true;
    if (head[0] == "glyphs") return ReadPictures(head, false);
    if (head[0] == "accent") return ReadPictures(head, true);
    if (head[0] == "compose") return Compose(head);
    return false;
  }

  bool ReadPictures(const Words& head, bool accents) {
    if (head.size() < 3) return false;
    const auto first_row = ReadInt(head[1]);
    if (!first_row || *first_row < 0) return false;
    std::vector<PixelGlyph> pictures(head.size() - 2, PixelGlyph{});
    int row = *first_row;
    for (; next_ < lines_.size() && !lines_[next_].empty(); ++next_, ++row) {
      const Words cells = SplitWords(lines_[next_]);
      if (cells.size() != pictures.size() || row >= kGlyphHeight) return false;
      for (std::size_t i = 0; i < cells.size(); ++i) {
        const auto bits = ReadRow(cells[i]);
        if (!bits) return false;
        pictures[i][static_cast<std::size_t>(row)] = *bits;
      }
    }
    return Keep(head, pictures, accents);
  }

  bool Keep(const Words& head, const std::vector<PixelGlyph>& pictures, bool accents) {
    for (std::size_t i = 0; i < pictures.size(); ++i) {
      if (accents) {
        accents_[std::string(head[i + 2])] = pictures[i];
        continue;
      }
      const auto code = ReadCode(head[i + 2]);
      if (!code) return false;
      glyphs_[*code] = pictures[i];
    }
    return true;
  }

  // compose U+00C4 A diaeresis 0
  bool Compose(const Words& head) {
    if (head.size() != 5) return false;
    const auto code = ReadCode(head[1]);
    const auto base = ReadCode(head[2]);
    const auto row = ReadInt(head[4]);
    const auto accent = accents_.find(std::string(head[3]));
    if (!code || !base || !row || accent == accents_.end()) return false;
    if (*row < 0 || !glyphs_.contains(*base)) return false;
    PixelGlyph picture = glyphs_[*base];
    for (int r = *row; r < kGlyphHeight; ++r) {
      picture[static_cast<std::size_t>(r)] |= accent->second[static_cast<std::size_t>(r - *row)];
    }
    glyphs_[*code] = picture;
    return true;
  }

  std::vector<std::string_view> lines_;
  std::size_t next_ = 0;
  PixelGlyphs glyphs_;
  std::map<std::string, PixelGlyph> accents_;
};

}  // namespace

std::optional<PixelGlyphs> ReadPixelGlyphs(const std::string& text) {
  return Reader(text).Read();
}

char32_t CodePage1252ToUnicode(std::uint8_t byte) {
  static constexpr std::array<char32_t, 32> kRow80 = {
      0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
      0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
      0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
  if (byte < 0x80 || byte > 0x9F) return byte;
  return kRow80[byte - 0x80u];
}

}  // namespace zepril
