// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Where the outline is steep it is followed row by row, where it is flat column by column, so that
// a step crosses two pixels at most. Within a step it is taken as straight. All between the two
// sides of a row is zeroed at once.
#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

#include "effects/scratch/Capsule.h"
#include "effects/scratch/CapsuleSide.h"

namespace kindora {
namespace {

constexpr unsigned kTile = Raster::kTileSide;

// The first position of the next tile.
int tileEnd(int position) {
  return static_cast<int>(static_cast<unsigned>(position) / kTile * kTile + kTile);
}

// The tiles around a capsule. Positions count from the first one's first pixel and are not
// negative. A tile is made writable when a pixel of it is first asked for.
class Tiles {
 public:
  // The tiles of the pixels from (left, top) to (right, bottom), all inside the raster.
  Tiles(Raster& raster, int left, int top, int right, int bottom)
      : raster_(raster),
        column_(static_cast<unsigned>(left) / kTile),
        row_(static_cast<unsigned>(top) / kTile),
        columns_(static_cast<unsigned>(right) / kTile - column_ + 1),
        tiles_(std::size_t{columns_} * (static_cast<unsigned>(bottom) / kTile - row_ + 1)) {}

  // Tiles beside or below each other. Small and copied into the loops, which could not tell
  // otherwise that writing pixels leaves it as it is.
  class Line {
   public:
    // The pixels of the tile at a position across (in a row) or down (in a column).
    [[nodiscard]] Rgba8* operator[](unsigned position) const {
      Rgba8*& tile = first_[std::size_t{position / kTile} * stride_];
      if (tile == nullptr) [[unlikely]] {
        owner_->open(tile);
      }
      return tile;
    }

   private:
    friend class Tiles;
    Line(Tiles* owner, std::size_t first, unsigned stride)
        : owner_(owner), first_(owner->tiles_.data() + first), stride_(stride) {}

    Tiles* owner_;
    Rgba8** first_;
    unsigned stride_;
  };

  [[nodiscard]] Line row(unsigned y) { return {this, std::size_t{y / kTile} * columns_, 1}; }
  [[nodiscard]] Line column(unsigned x) { return {this, x / kTile, columns_}; }
  [[nodiscard]] int originX() const { return static_cast<int>(column_ * kTile); }
  [[nodiscard]] int originY() const { return static_cast<int>(row_ * kTile); }

 private:
  void open(Rgba8*& tile) {
    const auto index = static_cast<std::size_t>(&tile - tiles_.data());
    tile = raster_.writableTile(column_ + index % columns_, row_ + index / columns_).data();
  }

  Raster& raster_;
  unsigned column_;
  unsigned row_;
  unsigned columns_;
  std::vector<Rgba8*> tiles_;
};

using Bytes = std::uint8_t __attribute__((vector_size(16)));
using Pair = std::uint8_t __attribute__((vector_size(8)));

std::uint64_t bits(const Rgba8* pixel) {
  std::uint32_t value;
  std::memcpy(&value, pixel, sizeof value);
  return value;
}

void setBits(Rgba8* pixel, std::uint64_t value) {
  const auto low = static_cast<std::uint32_t>(value);
  std::memcpy(static_cast<void*>(pixel), &low, sizeof low);
}

// Scales two pixels that lie `apart` pixels from each other. Written so that it becomes the few
// instructions that widen, multiply and narrow eight bytes.
inline void keep(Rgba8* pixels, unsigned apart, Channels keeps) {
  const std::uint64_t both = bits(pixels + apart) << 32 | bits(pixels);
  const auto bytes = std::bit_cast<Bytes>(Words{both, 0});
  const auto wide = std::bit_cast<Channels>(__builtin_shufflevector(
      bytes, Bytes{}, 0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23));
  const auto scaled =
      std::bit_cast<std::uint64_t>(__builtin_convertvector((wide * keeps + 128) >> 8, Pair));
  setBits(pixels, scaled);
  setBits(pixels + apart, scaled >> 32);
}

class BroadEraser {
 public:
  BroadEraser(Raster& raster, const Capsule& capsule)
      : tiles_(tilesAround(raster, capsule)),
        width_(static_cast<int>(raster.width()) - tiles_.originX()),
        height_(static_cast<int>(raster.height()) - tiles_.originY()),
        top_{capsule.from.x - tiles_.originX(), capsule.from.y - tiles_.originY()},
        bottom_{capsule.to.x - tiles_.originX(), capsule.to.y - tiles_.originY()},
        radius_(capsule.radius) {
    if (top_.y > bottom_.y) std::swap(top_, bottom_);
  }

  void erase() {
    eraseRows();
    eraseColumns();
  }

 private:
  static Tiles tilesAround(Raster& raster, const Capsule& capsule) {
    const auto pixel = [](double position, std::size_t extent) {
      return wholeWithin(std::floor(position), 0, static_cast<int>(extent) - 1);
    };
    const auto [from, to, radius] = capsule;
    // One pixel more: the sides are moved outwards by a little, and cross two pixels a step.
    const double reach = radius + 1;
    return {raster, pixel(std::min(from.x, to.x) - reach, raster.width()),
            pixel(std::min(from.y, to.y) - reach, raster.height()),
            pixel(std::max(from.x, to.x) + reach, raster.width()),
            pixel(std::max(from.y, to.y) + reach, raster.height())};
  }

  // Rows from first up to last, in which a side is followed row by row. The columns do the rest.
  struct Steep {
    int first = 0;
    int last = 0;
    [[nodiscard]] bool contains(int row) const { return row >= first && row < last; }
  };

  [[nodiscard]] Steep steepOf(const CapsuleSide& side) const {
    return {wholeWithin(std::ceil(side.steepStart()), 0, height_),
            wholeWithin(std::floor(side.steepEnd()), 0, height_)};
  }

  void eraseRows() {
    const CapsuleAxis axis({top_.y, top_.x}, {bottom_.y, bottom_.x}, radius_);
    const auto left = CapsuleSide::near(axis, width_);
    const auto right = CapsuleSide::far(axis, width_);
    left_ = steepOf(left);
    right_ = steepOf(right);
    // Rows that an end of the capsule lies in have no pixel that is covered whole.
    const int first = wholeWithin(std::ceil(top_.y - radius_), 0, height_);
    const int last = wholeWithin(std::floor(bottom_.y + radius_), 0, height_);
    for (int start = first; start < last;) {
      const int end = std::min(last, tileEnd(start));
      Crossings lefts(left, start, end - start);
      Crossings rights(right, start, end - start);
      lefts.findWhole();
      rights.findWhole();
      const Steep leftPairs = within(left_, start, end);
      const Steep rightPairs = within(right_, start, end);
      lefts.findPairs(leftPairs.first - start, leftPairs.last - start);
      rights.findPairs(rightPairs.first - start, rightPairs.last - start);
      const Tiles::Line tiles = tiles_.row(static_cast<unsigned>(start));
      const auto width = static_cast<unsigned>(width_);
      // Edges and inner pixels of a row in turn, which keeps loads and stores evenly busy.
      for (int row = start; row < end; ++row) {
        const int i = row - start;
        const unsigned line = static_cast<unsigned>(row) % kTile * kTile;
        if (leftPairs.contains(row)) {
          keepAcross(tiles, line, lefts.pair(i), width, lefts.keeps(i));
        }
        if (rightPairs.contains(row)) {
          keepAcross(tiles, line, rights.pair(i), width, rights.keeps(i));
        }
        clear(tiles, line, std::max(lefts.whole(i), 0), std::min(rights.whole(i), width_));
      }
      start = end;
    }
  }

  static Steep within(Steep steep, int start, int end) {
    return {std::clamp(steep.first, start, end), std::clamp(steep.last, start, end)};
  }

  static void clear(Tiles::Line tiles, unsigned line, int from, int to) {
    while (from < to) {
      const auto x = static_cast<unsigned>(from);
      const int next = std::min(to, tileEnd(from));
      std::memset(static_cast<void*>(tiles[x] + (line + x % kTile)), 0,
                  static_cast<unsigned>(next - from) * sizeof(Rgba8));
      from = next;
    }
  }

  // Two pixels of a row, either of which may lie outside.
  static void keepAcross(Tiles::Line tiles, unsigned line, int column, unsigned width,
                         Channels keeps) {
    const auto x = static_cast<unsigned>(column);
    if (x < width - 1 && x % kTile != kTile - 1) [[likely]] {
      keep(tiles[x] + (line + x % kTile), 1, keeps);
    } else {
      keepApart(x < width ? tiles[x] + (line + x % kTile) : nullptr,
                x + 1 < width ? tiles[x + 1] + (line + (x + 1) % kTile) : nullptr, keeps);
    }
  }

  // Above the rows of the left and the right side and below them.
  void eraseColumns() {
    const CapsuleAxis axis({top_.x, top_.y}, {bottom_.x, bottom_.y}, radius_);
    const auto columnOf = [this](double x) { return wholeWithin(std::floor(x), 0, width_); };
    for (const auto& side : {CapsuleSide::near(axis, height_), CapsuleSide::far(axis, height_)}) {
      // The rows in question end up to two columns beyond the diagonal.
      const int first = columnOf(side.steepStart() - 2);
      const int last = columnOf(side.steepEnd() + 3);
      const int apex = std::clamp(columnOf(side.isFar() ? bottom_.x : top_.x), first, last);
      const auto rows = [&](const Steep& steep) {
        return side.isFar() ? Steep{steep.last, height_} : Steep{0, steep.first};
      };
      for (int start = first; start < last; start = tileEnd(start)) {
        const int end = std::min(last, tileEnd(start));
        Crossings crossings(side, start, end - start);
        crossings.findPairs(0, end - start);
        keepDown(crossings, start, start, std::min(end, apex), rows(left_));
        keepDown(crossings, start, std::max(start, apex), end, rows(right_));
      }
    }
  }

  // Follows a side through the columns from begin up to end, as far as it runs in the rows.
  void keepDown(const Crossings& crossings, int start, int begin, int end, Steep rows) {
    const Tiles::Line tiles = tiles_.column(static_cast<unsigned>(start));
    const auto first = static_cast<unsigned>(rows.first);
    const auto count = static_cast<unsigned>(std::max(rows.last - rows.first, 0));
    for (int column = begin; column < end; ++column) {
      const unsigned x = static_cast<unsigned>(column) % kTile;
      const auto y = static_cast<unsigned>(crossings.pair(column - start));
      const Channels keeps = crossings.keeps(column - start);
      if (y - first < count && y + 1 - first < count && y % kTile != kTile - 1) [[likely]] {
        keep(tiles[y] + (y % kTile * kTile + x), kTile, keeps);
      } else {
        keepApart(y - first < count ? tiles[y] + (y % kTile * kTile + x) : nullptr,
                  y + 1 - first < count ? tiles[y + 1] + ((y + 1) % kTile * kTile + x) : nullptr,
                  keeps);
      }
    }
  }

  // Two pixels, of which either may be missing.
  static void keepApart(Rgba8* first, Rgba8* second, Channels keeps) {
    std::array<Rgba8, 2> pixels;
    if (first != nullptr) pixels[0] = *first;
    if (second != nullptr) pixels[1] = *second;
    keep(pixels.data(), 1, keeps);
    if (first != nullptr) *first = pixels[0];
    if (second != nullptr) *second = pixels[1];
  }

  Tiles tiles_;
  int width_;  // of the raster, from the first tile on
  int height_;
  CGPoint top_;
  CGPoint bottom_;
  double radius_;
  Steep left_;
  Steep right_;
};

}  // namespace

void eraseBroad(Raster& raster, const Capsule& capsule) { BroadEraser(raster, capsule).erase(); }

}  // namespace kindora
