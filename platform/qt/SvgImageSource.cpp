// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/SvgImageSource.h"

#include <QImage>
#include <QPainter>
#include <cstring>
#include <utility>
#include <vector>

namespace kindora {

SvgImageSource::SvgImageSource(QString fileName) : fileName_(std::move(fileName)) {}

Raster SvgImageSource::render(std::size_t width, std::size_t height) const {
  if (!renderer_) renderer_ = std::make_unique<QSvgRenderer>(fileName_);
  std::vector<Rgba8> pixels(width * height);
  // Drawn into the vector itself, whose rows have no gaps.
  QImage canvas(reinterpret_cast<uchar*>(pixels.data()), static_cast<int>(width),
                static_cast<int>(height), static_cast<qsizetype>(width * sizeof(Rgba8)),
                QImage::Format_RGBA8888_Premultiplied);
  QPainter painter(&canvas);
  renderer_->render(&painter, QRectF(canvas.rect()));
  painter.end();
  return {width, height, pixels};
}

}  // namespace kindora
