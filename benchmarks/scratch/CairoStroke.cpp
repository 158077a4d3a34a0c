// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <benchmark/benchmark.h>
#include <cairo.h>

#include <cstring>
#include <memory>

#include "benchmarks/scratch/FingerPath.h"

namespace kindora::scratchbench {
namespace {

void segmentCairo(benchmark::State& state) {
  const std::unique_ptr<cairo_surface_t, void (*)(cairo_surface_t*)> surface(
      cairo_image_surface_create(CAIRO_FORMAT_ARGB32, kSide, kSide), cairo_surface_destroy);
  const std::unique_ptr<cairo_t, void (*)(cairo_t*)> context(cairo_create(surface.get()),
                                                             cairo_destroy);
  cairo_set_operator(context.get(), CAIRO_OPERATOR_CLEAR);
  cairo_set_line_cap(context.get(), CAIRO_LINE_CAP_ROUND);
  cairo_set_line_width(context.get(), 2 * kRadius);
  for (auto iteration : state) {
    cairo_surface_flush(surface.get());
    std::memcpy(cairo_image_surface_get_data(surface.get()), coverPixels().data(),
                kSide * kSide * sizeof(Rgba8));
    cairo_surface_mark_dirty(surface.get());
    state.SetIterationTime(timed([&] {
      for (std::size_t i = 0; i < kSegments; ++i) {
        cairo_move_to(context.get(), path()[i].x, path()[i].y);
        cairo_line_to(context.get(), path()[i + 1].x, path()[i + 1].y);
        cairo_stroke(context.get());
      }
    }));
  }
  if (cairo_status(context.get()) != CAIRO_STATUS_SUCCESS) state.SkipWithError("drawing failed");
}
BENCHMARK(segmentCairo)
    ->Name("Scratch/SegmentCairo")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kindora::scratchbench
