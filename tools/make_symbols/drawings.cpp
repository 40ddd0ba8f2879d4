// Reads the shapes of each symbol, and paints them cell by cell.
#include "make_symbols/drawings.h"

#include <cctype>
#include <charconv>
#include <string_view>

namespace zepril {
namespace {

constexpr Colour kGround{0xF4, 0xF1, 0xE7};
constexpr Colour kOutline{0x1B, 0x22, 0x26};
constexpr Colour kFaint{0xB9, 0xBD, 0xB6};
constexpr Colour kFaintText{0x70, 0x78, 0x7C};

std::optional<double> ReadNumber(std::string_view word) {
  double value = 0;
  const auto result = std::from_chars(word.data(), word.data() + word.size(), value);
  if (result.ec != std::errc() || result.ptr != word.data() + word.size()) return std::nullopt;
  return value;
}

std::vector<std::string> SplitWords(std::string_view line) {
  std::vector<std::string> words;
  std::size_t at = 0;
  while ((at = line.find_first_not_of(' ', at)) != std::string_view::npos) {
    const std::size_t end = std::min(line.find(' ', at), line.size());
    words.emplace_back(line.substr(at, end - at));
    at = end;
  }
  return words;
}

std::vector<Point> PointsOf(const std::vector<double>& values, std::size_t first) {
  std::vector<Point> points;
  for (std::size_t i = first; i + 1 < values.size(); i += 2) {
    points.push_back({values[i], values[i + 1]});
  }
  return points;
}

void MovePoints(std::vector<Point>& points, double dx, double dy) {
  for (Point& point : points) {
    point.x += dx;
    point.y += dy;
  }
}

int InkWidth(const PixelGlyph& glyph) {
  int width = 0;
  for (int row = 0; row < kGlyphHeight; ++row) {
    for (int column = 0; column < kGlyphWidth; ++column) {
      if (GlyphPixel(glyph, column, row)) width = std::max(width, column + 1);
    }
  }
  return width;
}

// How many numbers follow the colour of each shape; areas and lines take any even count.
int NumbersOf(char shape) {
  switch (shape) {
    case 'c':
      return 3;
    case 'o':
    case 'e':
    case 'b':
      return 4;
    case 'a':
      return 6;
    default:
      return 0;
  }
}

// A filled shape grows by half a unit for the outline and shrinks by as much for its inside.
void Solid(char shape, const std::vector<double>& n, double grow, Colour colour, Painter& painter) {
  if (shape == 'c') painter.Ellipse({n[0], n[1]}, n[2] + grow, n[2] + grow, colour);
  if (shape == 'e') painter.Ellipse({n[0], n[1]}, n[2] + grow, n[3] + grow, colour);
  if (shape == 'b') painter.Box(n[0] - grow, n[1] - grow, n[2] + grow, n[3] + grow, colour);
}

}  // namespace

std::optional<SymbolDrawings> SymbolDrawings::Read(const std::string& text, SymbolLetters letters,
                                                   std::string& fault) {
  SymbolDrawings drawings;
  drawings.letters_ = std::move(letters);
  std::vector<Words>* target = nullptr;
  std::string_view rest = text;
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    const std::string_view line = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    const Words words = SplitWords(line);
    if (words.empty() || words[0] == "#") continue;
    if (!drawings.ReadLine(words, target)) {
      fault = line;
      return std::nullopt;
    }
  }
  if (!drawings.TryAll(fault)) return std::nullopt;
  return drawings;
}

bool SymbolDrawings::ReadLine(const Words& words, std::vector<Words>*& target) {
  if (words[0] == "colour") return ReadColour(words);
  if (words[0] == "def" && words.size() == 2) {
    target = &pieces_[words[1]];
    return true;
  }
  if (words[0] == "=" && words.size() >= 2 && words[1].size() == 2) {
    target = &symbols_[words[1]];
    return true;
  }
  if (target == nullptr) return false;
  target->push_back(words);
  return true;
}

bool SymbolDrawings::ReadColour(const Words& words) {
  int value = 0;
  if (words.size() != 3 || words[2].size() != 6) return false;
  const auto result = std::from_chars(words[2].data(), words[2].data() + 6, value, 16);
  if (result.ec != std::errc()) return false;
  colours_[words[1]] = {static_cast<std::uint8_t>(value >> 16),
                        static_cast<std::uint8_t>(value >> 8 & 255),
                        static_cast<std::uint8_t>(value & 255)};
  return true;
}

// Every drawing once, so that a slip in the file is told when it is read.
bool SymbolDrawings::TryAll(std::string& fault) const {
  Painter painter;
  for (const auto* part : {&pieces_, &symbols_}) {
    for (const auto& [name, lines] : *part) {
      for (const Words& words : lines) {
        if (Draw(words, painter, 0, 0)) continue;
        fault = name + ":";
        for (const std::string& word : words)
          fault += " " + word;
        return false;
      }
    }
  }
  return true;
}

bool SymbolDrawings::Has(char table, char code) const {
  return symbols_.contains(std::string{table, code});
}

Painter SymbolDrawings::Paint(char table, char code) const {
  Painter painter;
  painter.Fill(kGround);
  const auto found = symbols_.find(std::string{table, code});
  if (found == symbols_.end()) {
    PaintUndrawn(code, painter);
    return painter;
  }
  for (const Words& words : found->second)
    Draw(words, painter, 0, 0);
  return painter;
}

void SymbolDrawings::PaintUndrawn(char code, Painter& painter) const {
  painter.Box(3, 3, 19, 19, kFaint);
  painter.Box(4, 4, 18, 18, kGround);
  const auto glyph = letters_.large.find(static_cast<unsigned char>(code));
  if (glyph != letters_.large.end()) painter.Glyph(glyph->second, 7, 4, kFaintText);
}

bool SymbolDrawings::Draw(const Words& words, Painter& painter, double dx, double dy) const {
  if (words[0] == "u") return DrawPiece(words, painter, dx, dy);
  if (words[0].size() != 1 || words.size() < 2 || !colours_.contains(words[1])) return false;
  if (words[0] == "g") {
    painter.Fill(colours_.at(words[1]));
    return words.size() == 2;
  }
  if (words[0] == "t" || words[0] == "T") return DrawText(words, painter);
  return DrawShape(words, painter, dx, dy);
}

bool SymbolDrawings::DrawPiece(const Words& words, Painter& painter, double dx, double dy) const {
  if (words.size() != 4 || !pieces_.contains(words[1])) return false;
  const auto x = ReadNumber(words[2]), y = ReadNumber(words[3]);
  if (!x || !y) return false;
  for (const Words& line : pieces_.at(words[1])) {
    if (line[0] == "u" && line[1] == words[1]) return false;
    if (!Draw(line, painter, dx + *x, dy + *y)) return false;
  }
  return true;
}

bool SymbolDrawings::DrawShape(const Words& words, Painter& painter, double dx, double dy) const {
  const bool outlined = std::isupper(static_cast<unsigned char>(words[0][0])) != 0;
  const char shape = static_cast<char>(std::tolower(static_cast<unsigned char>(words[0][0])));
  const Colour colour = colours_.at(words[1]);
  std::vector<double> n;
  for (std::size_t i = 2; i < words.size(); ++i) {
    const auto number = ReadNumber(words[i]);
    if (!number) return false;
    n.push_back(*number);
  }
  if (shape == 'p') {
    std::vector<Point> corners = PointsOf(n, 0);
    if (corners.size() < 3 || n.size() % 2 != 0) return false;
    MovePoints(corners, dx, dy);
    painter.Area(corners, colour);
    corners.push_back(corners.front());
    if (outlined) painter.Line(corners, 1, kOutline);
    return true;
  }
  if (shape == 'l') {
    std::vector<Point> points = PointsOf(n, 1);
    if (points.size() < 2 || n.size() % 2 != 1) return false;
    MovePoints(points, dx, dy);
    painter.Line(points, n[0], colour);
    return true;
  }
  const int count = NumbersOf(shape);
  if (count == 0 || static_cast<int>(n.size()) != count) return false;
  if (shape == 'a') {
    painter.Arc({n[1] + dx, n[2] + dy}, n[3], n[0], n[4], n[5], colour);
    return true;
  }
  n[0] += dx;
  n[1] += dy;
  if (shape == 'b') n[2] += dx, n[3] += dy;
  if (shape == 'o') {
    painter.Ring({n[0], n[1]}, n[2], n[3], colour);
    return true;
  }
  if (outlined) Solid(shape, n, 0.5, kOutline, painter);
  Solid(shape, n, outlined ? -0.5 : 0, colour, painter);
  return true;
}

bool SymbolDrawings::DrawText(const Words& words, Painter& painter) const {
  const Colour colour = colours_.at(words[1]);
  const bool small = words[0] == "t";
  if (words.size() != (small ? 4u : 5u)) return false;
  const auto first = ReadNumber(words[2]), second = small ? 0.0 : ReadNumber(words[3]);
  if (!first || !second) return false;
  const PixelGlyphs& letters = small ? letters_.small : letters_.large;
  std::vector<PixelGlyph> glyphs;
  int width = -1;
  for (const char c : words.back()) {
    const auto glyph = letters.find(static_cast<unsigned char>(c));
    if (glyph == letters.end()) return false;
    glyphs.push_back(glyph->second);
    width += InkWidth(glyph->second) + 1;
  }
  int x = small ? (Painter::kSide - width + 1) / 2 : static_cast<int>(*first);
  const int y = static_cast<int>(small ? *first : *second);
  for (const PixelGlyph& glyph : glyphs) {
    painter.Glyph(glyph, x, y, colour);
    if (!small) painter.Glyph(glyph, x + 1, y, colour);
    x += small ? InkWidth(glyph) + 1 : kGlyphWidth;
  }
  return true;
}

}  // namespace zepril
