// Fills land and water, shapes the relief, and draws borders, dots and names.
#include "sample_maps/tile_raster.h"

#include <algorithm>
#include <cmath>

#include "sample_maps/tile_file.h"

namespace zepril {
namespace {

constexpr int kFlatMargin = 24;  // pixels looked at around the tile
constexpr int kReliefMargin = 140;
constexpr int kReliefDepth = 130;  // pixels from the coast to the darkest sea

// A tile with a margin around it, while it is painted.
class Canvas {
 public:
  Canvas(const MapData& data, const SampleTile& place, const TileStyle& style)
      : data_(data),
        style_(style),
        margin_(style.Relief ? kReliefMargin : kFlatMargin),
        side_(kSampleTilePixels + 2 * margin_),
        pixels_per_km_(static_cast<double>(kSampleTilePixels) / place.SideKm),
        left_(static_cast<int>(std::lround(place.EastKm * pixels_per_km_)) - margin_),
        top_(-static_cast<int>(std::lround((place.NorthKm + place.SideKm) * pixels_per_km_)) -
             margin_) {}

  std::vector<std::uint8_t> Paint(const Labels& labels) {
    FillLand();
    Ground();
    inks_ = ground_;
    if (style_.BorderBand) Borders(true);
    Borders(false);
    Coast();
    for (const Dot& dot : labels.Dots)
      PaintDot(dot);
    for (const MapLabel& label : labels.Names)
      PaintLabel(label);
    return Inner();
  }

 private:
  std::size_t At(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(side_) +
           static_cast<std::size_t>(x);
  }
  bool Inside(int x, int y) const { return x >= 0 && y >= 0 && x < side_ && y < side_; }
  double PixelX(const MapPoint& p) const { return p.EastKm * pixels_per_km_ - left_; }
  double PixelY(const MapPoint& p) const { return -p.NorthKm * pixels_per_km_ - top_; }

  // The palette entry of an ink: in relief tiles the inks of lines stand at its end.
  std::uint8_t Entry(Ink ink) const {
    return static_cast<std::uint8_t>(style_.Relief ? kReliefInks + ink - kInkCoast : ink);
  }

  // Rows are cut at their middle by every ring; what lies between two cuts is land.
  void FillLand() {
    std::vector<std::vector<double>> cuts(static_cast<std::size_t>(side_));
    for (const Outline& ring : data_.Land) {
      if (PixelY(ring.High) > side_ || PixelY(ring.Low) < 0 || PixelX(ring.Low) > side_) continue;
      for (std::size_t i = 0, j = ring.Points.size() - 1; i < ring.Points.size(); j = i++) {
        CutRows(ring.Points[j], ring.Points[i], cuts);
      }
    }
    land_.assign(At(0, side_), 0);
    for (int y = 0; y < side_; ++y) {
      std::vector<double>& row = cuts[static_cast<std::size_t>(y)];
      std::sort(row.begin(), row.end());
      for (std::size_t i = 0; i + 1 < row.size(); i += 2) {
        const int from = RowLimit(row[i]), to = RowLimit(row[i + 1]);
        std::fill(land_.begin() + static_cast<std::ptrdiff_t>(At(from, y)),
                  land_.begin() + static_cast<std::ptrdiff_t>(At(to, y)), std::uint8_t{1});
      }
    }
  }

  int RowLimit(double x) const {
    return static_cast<int>(std::clamp(std::ceil(x - 0.5), 0.0, static_cast<double>(side_)));
  }

  void CutRows(const MapPoint& a, const MapPoint& b, std::vector<std::vector<double>>& cuts) const {
    const double ay = PixelY(a), by = PixelY(b);
    const double low = std::min(ay, by), high = std::max(ay, by);
    if (high < 0 || low > side_ || low == high) return;
    const int first = static_cast<int>(std::max(0.0, std::ceil(low - 0.5)));
    const int last = static_cast<int>(std::min(side_ - 1.0, std::ceil(high - 0.5) - 1));
    const double ax = PixelX(a), slope = (PixelX(b) - ax) / (by - ay);
    for (int y = first; y <= last; ++y) {
      cuts[static_cast<std::size_t>(y)].push_back(ax + (y + 0.5 - ay) * slope);
    }
  }

  // Thirds of a pixel to the nearest pixel of the other kind, for the pixels where land is `kind`:
  // 3 straight, 4 aslant, in one pass down and one up.
  std::vector<int> Distances(std::uint8_t kind) const {
    std::vector<int> distance(land_.size());
    for (std::size_t i = 0; i < land_.size(); ++i)
      distance[i] = land_[i] == kind ? 1 << 20 : 0;
    const auto look = [&](int x, int y, int dx, int dy, int step) {
      if (!Inside(x + dx, y + dy)) return;
      int& here = distance[At(x, y)];
      here = std::min(here, distance[At(x + dx, y + dy)] + step);
    };
    for (int y = 0; y < side_; ++y) {
      for (int x = 0; x < side_; ++x) {
        if (distance[At(x, y)] == 0) continue;
        look(x, y, -1, 0, 3), look(x, y, -1, -1, 4), look(x, y, 0, -1, 3), look(x, y, 1, -1, 4);
      }
    }
    for (int y = side_ - 1; y >= 0; --y) {
      for (int x = side_ - 1; x >= 0; --x) {
        if (distance[At(x, y)] == 0) continue;
        look(x, y, 1, 0, 3), look(x, y, 1, 1, 4), look(x, y, 0, 1, 3), look(x, y, -1, 1, 4);
      }
    }
    return distance;
  }

  void Ground() {
    ground_.resize(land_.size());
    const std::vector<int> from_land = Distances(0);
    if (style_.Relief) {
      ReliefGround(from_land, Distances(1));
      return;
    }
    for (std::size_t i = 0; i < land_.size(); ++i) {
      ground_[i] = land_[i] != 0                            ? kInkLand
                   : from_land[i] <= 3 * style_.NearPixels  ? kInkSeaShore
                   : from_land[i] <= 3 * style_.ShorePixels ? kInkSeaNear
                                                            : kInkSea;
    }
  }

  // Sea darkens with the distance from the coast. The land is lit from the north-west over gentle
  // hills that are noise: an ornament, no survey.
  void ReliefGround(const std::vector<int>& from_land, const std::vector<int>& from_sea) {
    std::vector<float> height(land_.size());
    for (int y = 0; y < side_; ++y) {
      for (int x = 0; x < side_; ++x) {
        if (land_[At(x, y)] == 0) continue;
        const double rise = std::min(1.0, from_sea[At(x, y)] / 90.0);
        height[At(x, y)] = static_cast<float>(rise * Hills(left_ + x, top_ + y));
      }
    }
    for (int y = 0; y < side_; ++y) {
      for (int x = 0; x < side_; ++x) {
        const std::size_t i = At(x, y);
        if (land_[i] == 0) {
          const double depth = std::min(1.0, from_land[i] / (3.0 * kReliefDepth));
          ground_[i] = static_cast<std::uint8_t>(std::lround(std::sqrt(depth) * (kReliefLand - 1)));
          continue;
        }
        const std::size_t beside = Inside(x - 1, y - 1) ? At(x - 1, y - 1) : i;
        const double slope = height[i] - (land_[beside] != 0 ? height[beside] : 0.0F);
        const double light = std::clamp(0.45 + 0.2 * height[i] + 3.2 * slope, 0.0, 1.0);
        ground_[i] = static_cast<std::uint8_t>(
            kReliefLand + std::lround(light * (kReliefInks - kReliefLand - 1)));
      }
    }
  }

  static double Lattice(int x, int y) {
    std::uint32_t h = static_cast<std::uint32_t>(x) * 0x9E3779B1u;
    h = (h ^ h >> 15 ^ static_cast<std::uint32_t>(y) * 0x85EBCA77u) * 0xC2B2AE3Du;
    h = (h ^ h >> 13) * 0x27D4EB2Fu;
    return (h >> 8) / 16777216.0;
  }

  static double Noise(double x, double y) {
    const double fx = std::floor(x), fy = std::floor(y);
    const int ix = static_cast<int>(fx), iy = static_cast<int>(fy);
    const auto ease = [](double t) { return t * t * (3 - 2 * t); };
    const double tx = ease(x - fx), ty = ease(y - fy);
    const double upper = Lattice(ix, iy) + tx * (Lattice(ix + 1, iy) - Lattice(ix, iy));
    const double lower = Lattice(ix, iy + 1) + tx * (Lattice(ix + 1, iy + 1) - Lattice(ix, iy + 1));
    return upper + ty * (lower - upper);
  }

  static double Hills(int x, int y) {
    double sum = 0, weight = 0.5, step = 96;
    for (int octave = 0; octave < 5; ++octave, weight /= 2, step /= 2) {
      sum += weight * Noise(x / step + octave * 17, y / step - octave * 31);
    }
    return sum;
  }

  void Borders(bool band) {
    for (const Outline& line : data_.Borders) {
      if (PixelY(line.High) > side_ || PixelY(line.Low) < 0) continue;
      if (PixelX(line.Low) > side_ || PixelX(line.High) < 0) continue;
      double walked = 0;
      for (std::size_t i = 1; i < line.Points.size(); ++i) {
        walked = BorderStep(line.Points[i - 1], line.Points[i], walked, band);
      }
    }
  }

  // The thin line is dashed; what was walked counts from the line's start, so that the dashes meet
  // at tile edges.
  double BorderStep(const MapPoint& a, const MapPoint& b, double walked, bool band) {
    const double ax = PixelX(a), ay = PixelY(a), bx = PixelX(b), by = PixelY(b);
    const double length = std::hypot(bx - ax, by - ay);
    const bool near = std::max(ax, bx) >= 0 && std::min(ax, bx) <= side_ && std::max(ay, by) >= 0 &&
                      std::min(ay, by) <= side_;
    if (!near) return walked + length;
    const int steps =
        std::max(1, static_cast<int>(std::ceil(std::max(std::abs(bx - ax), std::abs(by - ay)))));
    for (int i = 0; i <= steps; ++i) {
      const double t = static_cast<double>(i) / steps;
      const bool gap = style_.BorderBand && std::fmod(walked + t * length, 10) > 7;
      if (!band && gap) continue;
      const int x = static_cast<int>(std::floor(ax + t * (bx - ax)));
      const int y = static_cast<int>(std::floor(ay + t * (by - ay)));
      const int reach = band ? 2 : 0;
      for (int dy = -reach; dy <= reach; ++dy) {
        for (int dx = -reach; dx <= reach; ++dx) {
          if (std::abs(dx) + std::abs(dy) <= 3)
            OnLand(x + dx, y + dy, band ? kInkBorderBand : kInkBorder);
        }
      }
    }
    return walked + length;
  }

  void OnLand(int x, int y, Ink ink) {
    if (Inside(x, y) && land_[At(x, y)] != 0) inks_[At(x, y)] = Entry(ink);
  }

  // Land pixels that touch the sea.
  void Coast() {
    for (int y = 1; y + 1 < side_; ++y) {
      for (int x = 1; x + 1 < side_; ++x) {
        const std::size_t i = At(x, y);
        if (land_[i] == 0) continue;
        const auto row = static_cast<std::size_t>(side_);
        if (land_[i - 1] == 0 || land_[i + 1] == 0 || land_[i - row] == 0 || land_[i + row] == 0) {
          inks_[i] = Entry(kInkCoast);
        }
      }
    }
  }

  void PaintDot(const Dot& dot) {
    const int x = dot.X - left_, y = dot.Y - top_;
    if (!Inside(x + 8, y + 8) && !Inside(x - 8, y - 8)) return;
    const int r = DotRadius(dot.Rank);
    const Ink fill = dot.Rank == 1 ? kInkCapital : kInkTown;
    for (int dy = -r; dy <= r; ++dy) {
      for (int dx = -r; dx <= r; ++dx) {
        const double distance = std::hypot(dx, dy);
        if (distance > r + 0.3 || !Inside(x + dx, y + dy)) continue;
        inks_[At(x + dx, y + dy)] = Entry(distance > r - 0.8 ? kInkTownRim : fill);
      }
    }
  }

  // Lines near the letters are wiped away first, so that names stay clear.
  void PaintLabel(const MapLabel& label) {
    const int x = label.X - left_, y = label.Y - top_;
    if (x > side_ || y > side_ || x + LabelWidth(label) < 0 || y + kLabelHeight < 0) return;
    if (!label.Water) {
      EachLetterPixel(label, x, y, [&](int px, int py) {
        for (int dy = -1; dy <= 1; ++dy) {
          for (int dx = -1; dx <= 1; ++dx) {
            if (Inside(px + dx, py + dy))
              inks_[At(px + dx, py + dy)] = ground_[At(px + dx, py + dy)];
          }
        }
      });
    }
    const Ink ink = label.Water ? kInkWaterName : label.Rank > 2 ? kInkSmallName : kInkName;
    EachLetterPixel(label, x, y, [&](int px, int py) {
      if (Inside(px, py)) inks_[At(px, py)] = Entry(ink);
    });
  }

  template <typename Take>
  void EachLetterPixel(const MapLabel& label, int x, int y, Take take) const {
    for (const char c : label.Text) {
      const LetterRows& rows = data_.Letters[static_cast<unsigned char>(c)];
      for (int row = 0; row < kLabelHeight; ++row) {
        for (int column = 0; column < 8; ++column) {
          if ((rows[static_cast<std::size_t>(row)] >> (7 - column) & 1) == 0) continue;
          take(x + column, y + row);
          if (label.Rank == 1) take(x + column + 1, y + row);
        }
      }
      x += label.Step;
    }
  }

  std::vector<std::uint8_t> Inner() const {
    std::vector<std::uint8_t> inner;
    inner.reserve(static_cast<std::size_t>(kSampleTilePixels) * kSampleTilePixels);
    for (int y = margin_; y < margin_ + kSampleTilePixels; ++y) {
      const auto from = inks_.begin() + static_cast<std::ptrdiff_t>(At(margin_, y));
      inner.insert(inner.end(), from, from + kSampleTilePixels);
    }
    return inner;
  }

  const MapData& data_;
  TileStyle style_;
  int margin_, side_;
  double pixels_per_km_;
  int left_, top_;  // pixels of the whole scale at the canvas's corner
  std::vector<std::uint8_t> land_, ground_, inks_;
};

}  // namespace

std::vector<std::uint8_t> PaintTile(const MapData& data, const Labels& labels,
                                    const SampleTile& place, const TileStyle& style) {
  return Canvas(data, place, style).Paint(labels);
}

}  // namespace zepril
