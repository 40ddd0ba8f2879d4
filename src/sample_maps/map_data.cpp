// Reads coasts, borders, towns and lakes, and cuts them to the grid's reach.
#include "sample_maps/map_data.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

#include "core/text_fields.h"
#include "geodesy/conversions.h"

namespace zepril {
namespace {

constexpr double kReach = 89.98;  // degrees of longitude either side
constexpr double kSouthLimit = -5;
constexpr double kNorthLimit = 84.9;

struct Degrees {
  double Lon = 0, Lat = 0;
};
using Arc = std::vector<Degrees>;

// Cuts a text into words, without keeping them.
class WordReader {
 public:
  explicit WordReader(std::string_view text) : rest_(text) {}

  bool AtEnd() {
    while (!rest_.empty() && rest_.front() == ' ')
      rest_.remove_prefix(1);
    return rest_.empty();
  }
  std::string_view Word() {
    if (AtEnd()) return {};
    const std::size_t end = std::min(rest_.find(' '), rest_.size());
    const std::string_view word = rest_.substr(0, end);
    rest_.remove_prefix(end);
    return word;
  }
  std::optional<int> Whole() {
    const std::string_view word = Word();
    if (!IsNumber(word) || word.find('.') != std::string_view::npos) return std::nullopt;
    return WholeVal(word, std::numeric_limits<int>::lowest(), std::numeric_limits<int>::max());
  }
  std::optional<double> Number() {
    const std::string_view word = Word();
    return IsNumber(word) ? std::optional<double>(Val(word)) : std::nullopt;
  }
  std::string_view Rest() {
    AtEnd();
    return rest_;
  }

 private:
  static bool IsNumber(std::string_view word) {
    if (!word.empty() && word.front() == '-') word.remove_prefix(1);
    return IsNumericField(word) && std::any_of(word.begin(), word.end(), IsDigit);
  }

  std::string_view rest_;
};

// Calls `take` for each line that is neither empty nor a comment, until it says no.
template <typename Take>
bool EachLine(std::string_view text, Take take) {
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    if (line.empty() || line.front() == '#') continue;
    if (!take(line)) return false;
  }
  return true;
}

// The grid runs out to infinity where the equator lies 90 degrees off the meridian, and its series
// fails before. Points near there are set far aside, where they shape no tile.
MapPoint ToGrid(Degrees at) {
  const double to_radians = kConversionPi / 180;
  const double aside =
      std::cos(at.Lat * to_radians) * std::sin((at.Lon - kSampleMeridian) * to_radians);
  if (std::abs(aside) > 0.999) return {std::copysign(25000.0, aside), at.Lat * 100};
  const GridMetres grid = GeodeticToUtm(at.Lon, at.Lat, kSampleMeridian, kUtmFalseEasting);
  return {grid.East / 1000, grid.North / 1000};
}

// Keeps what lies on the side of one edge of the box where `depth` is not negative.
template <typename Depth>
Arc CutRing(const Arc& ring, Depth depth) {
  Arc kept;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const Degrees a = ring[i], b = ring[(i + 1) % ring.size()];
    const double da = depth(a), db = depth(b);
    if (da >= 0) kept.push_back(a);
    if ((da >= 0) != (db >= 0)) {
      const double t = da / (da - db);
      kept.push_back({a.Lon + t * (b.Lon - a.Lon), a.Lat + t * (b.Lat - a.Lat)});
    }
  }
  return kept;
}

Arc CutToReach(Arc ring) {
  ring = CutRing(ring, [](Degrees p) { return p.Lon - (kSampleMeridian - kReach); });
  ring = CutRing(ring, [](Degrees p) { return kSampleMeridian + kReach - p.Lon; });
  ring = CutRing(ring, [](Degrees p) { return p.Lat - kSouthLimit; });
  return CutRing(ring, [](Degrees p) { return kNorthLimit - p.Lat; });
}

// Long straight steps in degrees are curves in the grid: they get points between.
Outline ToOutline(const Arc& arc, bool closed) {
  Outline outline;
  const std::size_t steps = closed ? arc.size() : arc.size() - 1;
  for (std::size_t i = 0; i < steps; ++i) {
    const Degrees a = arc[i], b = arc[(i + 1) % arc.size()];
    const double span = std::max(std::abs(b.Lon - a.Lon), std::abs(b.Lat - a.Lat));
    const int parts = 1 + static_cast<int>(std::min(span, 360.0));
    for (int part = 0; part < parts; ++part) {
      const double t = static_cast<double>(part) / parts;
      outline.Points.push_back(ToGrid({a.Lon + t * (b.Lon - a.Lon), a.Lat + t * (b.Lat - a.Lat)}));
    }
  }
  if (!closed) outline.Points.push_back(ToGrid(arc.back()));
  outline.Low = outline.High = outline.Points.front();
  for (const MapPoint& p : outline.Points) {
    outline.Low = {std::min(outline.Low.EastKm, p.EastKm),
                   std::min(outline.Low.NorthKm, p.NorthKm)};
    outline.High = {std::max(outline.High.EastKm, p.EastKm),
                    std::max(outline.High.NorthKm, p.NorthKm)};
  }
  return outline;
}

class LandReader {
 public:
  explicit LandReader(MapData& data) : data_(data) {}

  bool TakeLine(std::string_view line) {
    WordReader words(line);
    const std::string_view kind = words.Word();
    if (kind == "a") return TakeArc(words);
    if (kind == "r") return TakeRing(words);
    if (kind == "b") return TakeBorders(words);
    return false;
  }

 private:
  bool TakeArc(WordReader& words) {
    Arc arc;
    int lon = 0, lat = 0;
    while (!words.AtEnd()) {
      const auto east = words.Whole(), north = words.Whole();
      if (!east || !north || std::abs(*east) > 400000 || std::abs(*north) > 400000) return false;
      lon += *east;
      lat += *north;
      if (std::abs(lon) > 200000 || std::abs(lat) > 100000) return false;
      arc.push_back({lon / 1000.0, lat / 1000.0});
    }
    arcs_.push_back(std::move(arc));
    return true;
  }

  const Arc* Find(int number) const {
    const std::size_t index = static_cast<std::size_t>(std::abs(static_cast<long>(number)));
    return index == 0 || index > arcs_.size() ? nullptr : &arcs_[index - 1];
  }

  bool TakeRing(WordReader& words) {
    Arc ring;
    while (!words.AtEnd()) {
      const auto number = words.Whole();
      const Arc* arc = number ? Find(*number) : nullptr;
      if (arc == nullptr) return false;
      if (*number > 0) {
        ring.insert(ring.end(), arc->begin(), arc->end());
      } else {
        ring.insert(ring.end(), arc->rbegin(), arc->rend());
      }
    }
    Unwind(ring);
    // Unwound, a ring may lie a turn beside the map.
    for (const double turn : {-360.0, 0.0, 360.0}) {
      Arc turned = ring;
      for (Degrees& at : turned)
        at.Lon += turn;
      turned = CutToReach(std::move(turned));
      if (turned.size() >= 3) data_.Land.push_back(ToOutline(turned, true));
    }
    return true;
  }

  // Takes out the jump from 180 east to 180 west.
  static void Unwind(Arc& ring) {
    double turn = 0;
    for (std::size_t i = 1; i < ring.size(); ++i) {
      const double step = ring[i].Lon + turn - ring[i - 1].Lon;
      if (step > 180) turn -= 360;
      if (step < -180) turn += 360;
      ring[i].Lon += turn;
    }
  }

  bool TakeBorders(WordReader& words) {
    while (!words.AtEnd()) {
      const auto number = words.Whole();
      const Arc* arc = number ? Find(*number) : nullptr;
      if (arc == nullptr) return false;
      AddBorder(*arc);
    }
    return true;
  }

  // The pieces of a line within reach.
  void AddBorder(const Arc& arc) {
    Arc piece;
    for (const Degrees& at : arc) {
      const bool inside = std::abs(at.Lon - kSampleMeridian) < kReach && at.Lat > kSouthLimit;
      if (inside) piece.push_back(at);
      if (inside && &at != &arc.back()) continue;
      if (piece.size() >= 2) data_.Borders.push_back(ToOutline(piece, false));
      piece.clear();
    }
  }

  MapData& data_;
  std::vector<Arc> arcs_;
};

// Told this way round, it also refuses what is no number.
bool OnMap(double lat, double lon) {
  return std::abs(lat) <= kNorthLimit && std::abs(lon - kSampleMeridian) <= kReach;
}

// 54.09 12.14 2 Rostock
bool TakePlace(std::string_view line, std::vector<MapPlace>& places) {
  WordReader words(line);
  const auto lat = words.Number(), lon = words.Number();
  const auto rank = words.Whole();
  const std::string_view name = words.Rest();
  if (!lat || !lon || !rank || name.empty() || !OnMap(*lat, *lon)) return false;
  places.push_back({ToGrid({*lon, *lat}), *rank, std::string(name)});
  return true;
}

// Cuts the corners of a ring a quarter of each side before and behind them.
Arc RoundOff(const Arc& ring) {
  Arc smooth;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const Degrees a = ring[i], b = ring[(i + 1) % ring.size()];
    for (const double t : {0.25, 0.75}) {
      smooth.push_back({a.Lon + t * (b.Lon - a.Lon), a.Lat + t * (b.Lat - a.Lat)});
    }
  }
  return smooth;
}

// Mueritz 53.51 12.67 53.46 12.62 ...: a hole in the land.
bool TakeLake(std::string_view line, std::vector<Outline>& land) {
  WordReader words(line);
  words.Word();
  Arc ring;
  while (!words.AtEnd()) {
    const auto lat = words.Number(), lon = words.Number();
    if (!lat || !lon || !OnMap(*lat, *lon)) return false;
    ring.push_back({*lon, *lat});
  }
  if (ring.size() < 3) return false;
  for (int pass = 0; pass < 3; ++pass)
    ring = RoundOff(ring);
  land.push_back(ToOutline(ring, true));
  return true;
}

std::optional<int> HexByte(std::string_view text, std::size_t at) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  if (at + 2 > text.size()) return std::nullopt;
  const std::size_t high = kDigits.find(UpperChar(text[at]));
  const std::size_t low = kDigits.find(UpperChar(text[at + 1]));
  if (high == std::string_view::npos || low == std::string_view::npos) return std::nullopt;
  return static_cast<int>(high * 16 + low);
}

// 41 0000001824244242427E4242420000
bool TakeLetter(std::string_view line, MapData& data) {
  const auto byte = HexByte(line, 0);
  if (!byte) return false;
  LetterRows& rows = data.Letters[static_cast<std::size_t>(*byte)];
  for (std::size_t row = 0; row < rows.size(); ++row) {
    const auto bits = HexByte(line, 3 + 2 * row);
    if (!bits) return false;
    rows[row] = static_cast<std::uint8_t>(*bits);
  }
  return true;
}

// The files of map data in their folder.
class MapDataFiles {
 public:
  MapDataFiles(const Files& files, std::string source)
      : files_(files), source_(std::move(source)) {}

  // False, with `fault` naming the file, when it is missing or a line is not understood.
  template <typename Take>
  bool Read(const std::string& name, std::string& fault, Take take) const {
    const auto text = files_.ReadAll(source_ + "/" + name, kLargestFile);
    if (text && EachLine(*text, take)) return true;
    fault = name;
    return false;
  }

 private:
  static constexpr std::size_t kLargestFile = 256u << 20;

  const Files& files_;
  std::string source_;
};

}  // namespace

std::optional<MapData> ReadMapData(const Files& files, const std::string& source,
                                   std::string& fault) {
  const MapDataFiles folder(files, source);
  MapData data;
  LandReader land(data);
  const auto line_to = [&](auto& places) {
    return [&places](std::string_view line) { return TakePlace(line, places); };
  };
  const bool good = folder.Read("europe.txt", fault,
                                [&](std::string_view line) { return land.TakeLine(line); }) &&
                    folder.Read("lakes.txt", fault,
                                [&](std::string_view line) { return TakeLake(line, data.Land); }) &&
                    folder.Read("towns.txt", fault, line_to(data.Towns)) &&
                    folder.Read("waters.txt", fault, line_to(data.Waters)) &&
                    folder.Read("letters.txt", fault,
                                [&](std::string_view line) { return TakeLetter(line, data); });
  if (!good) return std::nullopt;
  return data;
}

}  // namespace zepril
