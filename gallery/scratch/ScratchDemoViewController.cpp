// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/scratch/ScratchDemoViewController.h"

#include <cmath>

#include "platform/services/Services.h"

namespace kindora {

ScratchDemoViewController::ScratchDemoViewController()
    : brushRadius_({.name = QStringLiteral("Radius"),
                    .minimum = 20,
                    .maximum = 100,
                    .step = 5,
                    .value = 50,
                    .decimals = 0,
                    .unit = QStringLiteral("px")}) {
  connect(&brushRadius_, &SliderSetting::valueChanged, this, &ScratchDemoViewController::startAnew);
}

void ScratchDemoViewController::connectOutlets() {
  setTitle(QStringLiteral("Scratch-off"));
  connectOutlet(imageView, "imageView", *view());
  connectOutlet(scratchImageView, "scratchImageView", *view());
}

void ScratchDemoViewController::viewDidLoad() {
  UIViewController::viewDidLoad();
  connected(imageView)->setImage(services().bundle->imageNamed("hug"));
  connected(scratchImageView)
      ->setDelegate(std::static_pointer_cast<ScratchDemoViewController>(shared_from_this()));
  startAnew();
}

void ScratchDemoViewController::setGridShown(bool shown) {
  if (gridShown_ == shown) return;
  gridShown_ = shown;
  emit gridShownChanged();
}

void ScratchDemoViewController::startAnew() {
  connected(scratchImageView)
      ->setImage(services().bundle->imageNamed("scratchImage"),
                 static_cast<std::size_t>(std::lround(brushRadius_.value())));
  emit startedAnew();
  emit gridChanged();
}

void ScratchDemoViewController::jxScratchImageView(JxScratchImageView& /*view*/,
                                                   double /*didChangeMaskingProgress*/) {
  emit gridChanged();
}

double ScratchDemoViewController::progress() const {
  const auto cover = scratchImageView.lock();
  const double progress = cover ? cover->maskingProgress() : 0;
  return std::isfinite(progress) ? progress : 0;
}

QString ScratchDemoViewController::progressText() const {
  const auto cover = scratchImageView.lock();
  return QStringLiteral("%1 % gone, %2 of %3 cells marked")
      .arg(std::lround(100 * progress()))
      .arg(cover ? cover->tilesFilled() : 0)
      .arg(columns() * rows());
}

int ScratchDemoViewController::columns() const {
  const auto cover = scratchImageView.lock();
  return cover ? static_cast<int>(cover->tilesX()) : 0;
}

int ScratchDemoViewController::rows() const {
  const auto cover = scratchImageView.lock();
  return cover ? static_cast<int>(cover->tilesY()) : 0;
}

QByteArray ScratchDemoViewController::marks() const {
  const auto cover = scratchImageView.lock();
  const auto matrix = cover ? cover->maskedMatrix() : nullptr;
  if (!matrix) return {};
  const JxMatrix::Max max = matrix->max();
  QByteArray marks;
  marks.reserve(static_cast<qsizetype>(max.x) * static_cast<qsizetype>(max.y));
  // The grid counts its lines from below.
  for (std::size_t line = max.y; line-- > 0;) {
    for (std::size_t column = 0; column < max.x; ++column) {
      marks.append(matrix->valueForCoordinates(column, line) != 0 ? '\1' : '\0');
    }
  }
  return marks;
}

}  // namespace kindora
