// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>
#include <QPen>
#include <cstring>

#include "benchmarks/scratch/FingerPath.h"

namespace kindora::scratchbench {
namespace {

// The format that the painter is fastest in.
QImage restoredCover(QImage image) {
  if (image.isNull()) image = QImage(kSide, kSide, QImage::Format_ARGB32_Premultiplied);
  std::memcpy(image.bits(), coverPixels().data(), kSide * kSide * sizeof(Rgba8));
  return image;
}

void prepare(QPainter& painter) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setCompositionMode(QPainter::CompositionMode_Clear);
  painter.setPen(QPen(Qt::black, 2 * kRadius, Qt::SolidLine, Qt::RoundCap));
}

void drawSegment(QPainter& painter, std::size_t i) {
  painter.drawLine(QLineF(path()[i].x, path()[i].y, path()[i + 1].x, path()[i + 1].y));
}

void segmentQPainter(benchmark::State& state) {
  QImage image;
  for (auto iteration : state) {
    image = restoredCover(std::move(image));
    QPainter painter(&image);
    prepare(painter);
    state.SetIterationTime(timed([&] {
      for (std::size_t i = 0; i < kSegments; ++i) drawSegment(painter, i);
    }));
  }
}
BENCHMARK(segmentQPainter)
    ->Name("Scratch/SegmentQPainter")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// A touch set done the plain way: stroke, then a copy of the whole bitmap to show.
void touchSetQPainter(benchmark::State& state) {
  QImage image;
  for (auto iteration : state) {
    image = restoredCover(std::move(image));
    state.SetIterationTime(timed([&] {
      QImage shown;
      for (std::size_t i = 0; i < kSegments; ++i) {
        QPainter painter(&image);
        prepare(painter);
        drawSegment(painter, i);
        painter.end();
        shown = image.copy();
        benchmark::DoNotOptimize(shown.constBits());
      }
    }));
  }
}
BENCHMARK(touchSetQPainter)
    ->Name("Scratch/TouchSetQPainter")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kindora::scratchbench
