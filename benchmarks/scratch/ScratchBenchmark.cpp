// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// One iteration is the whole path on a fresh cover; restoring the cover is not timed, here as with
// the peers.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

#include "benchmarks/scratch/FingerPath.h"
#include "effects/scratch/Eraser.h"
#include "effects/scratch/JxScratchImageView.h"

namespace kindora::scratchbench {
namespace {

// Writes the cover into the tiles that the raster has, as the peers write into their buffers.
void restore(Raster& raster) {
  constexpr std::size_t kTile = Raster::kTileSide;
  for (std::size_t row = 0; row < raster.tileRows(); ++row) {
    for (std::size_t column = 0; column < raster.tileColumns(); ++column) {
      Raster::Tile& tile = raster.writableTile(column, row);
      const std::size_t width = std::min(kTile, kSide - column * kTile);
      const std::size_t height = std::min(kTile, kSide - row * kTile);
      for (std::size_t y = 0; y < height; ++y) {
        std::copy_n(coverPixels().data() + (row * kTile + y) * kSide + column * kTile, width,
                    tile.data() + y * kTile);
      }
    }
  }
}

void segment(benchmark::State& state) {
  Raster raster(kSide, kSide);
  for (auto iteration : state) {
    restore(raster);
    state.SetIterationTime(timed([&] {
      for (std::size_t i = 0; i < kSegments; ++i) {
        eraseSegment(raster, path()[i], path()[i + 1], kRadius);
      }
    }));
  }
}
BENCHMARK(segment)->Name("Scratch/Segment")->UseManualTime()->Unit(benchmark::kMillisecond);

// What no eraser can beat: zeros stored to exactly the covered pixels, which are known beforehand.
void floorOfErasing(benchmark::State& state) {
  std::vector<Rgba8> pixels(kSide * kSide);
  const auto& spans = coveredSpans();
  for (auto iteration : state) {
    std::memcpy(pixels.data(), coverPixels().data(), pixels.size() * sizeof(Rgba8));
    state.SetIterationTime(timed([&] {
      for (const std::vector<Span>& segmentSpans : spans) {
        for (const Span& span : segmentSpans) {
          std::memset(static_cast<void*>(pixels.data() + span.first), 0,
                      span.count * sizeof(Rgba8));
        }
        benchmark::ClobberMemory();
      }
    }));
  }
}
BENCHMARK(floorOfErasing)->Name("Scratch/Floor")->UseManualTime()->Unit(benchmark::kMillisecond);

// Copies the tiles that differ into one buffer, as a renderer that uploads them would.
std::size_t collectChanges(const Raster& before, const Raster& after, std::vector<Rgba8>& upload) {
  std::size_t used = 0;
  for (std::size_t row = 0; row < after.tileRows(); ++row) {
    for (std::size_t column = 0; column < after.tileColumns(); ++column) {
      if (after.sharesTile(before, column, row)) continue;
      const Raster::Tile& tile = after.tile(column, row);
      if (upload.size() < used + tile.size()) upload.resize(used + tile.size());
      std::copy(tile.begin(), tile.end(), upload.begin() + static_cast<std::ptrdiff_t>(used));
      used += tile.size();
    }
  }
  return used;
}

// Erase, mark, snapshot, and what is to be uploaded, through the view as a finger drives it.
void touchSet(benchmark::State& state) {
  const UIImageRef cover = UIImage::imageWithRaster(Raster(kSide, kSide, coverPixels()));
  const auto view = std::make_shared<JxScratchImageView>();
  view->setFrame({{0, 0}, {kSide, kSide}});
  std::vector<Rgba8> upload;
  std::size_t uploaded = 0;
  for (auto iteration : state) {
    view->setImage(cover, static_cast<std::size_t>(kRadius));
    state.SetIterationTime(timed([&] {
      for (std::size_t i = 0; i < kSegments; ++i) {
        const UIImageRef before = view->image();
        view->touchesMoved({{UITouchPhase::moved, path()[i + 1], path()[i]}});
        uploaded += collectChanges(before->raster(), view->image()->raster(), upload);
        benchmark::DoNotOptimize(upload.data());
      }
    }));
  }
  state.counters["uploadedKiBPerSet"] = static_cast<double>(uploaded * sizeof(Rgba8)) / 1024 /
                                        static_cast<double>(state.iterations() * kSegments);
}
BENCHMARK(touchSet)->Name("Scratch/TouchSet")->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kindora::scratchbench
