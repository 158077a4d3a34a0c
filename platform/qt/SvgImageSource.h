// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QSvgRenderer>
#include <memory>

#include "platform/UIImage.h"

namespace kindora {

/// Draws an SVG file at any number of pixels. The file is parsed when first drawn. Main thread
/// only.
class SvgImageSource final : public ImageSource {
 public:
  /// The file must hold an SVG drawing and not change; its name may be that of a Qt resource.
  explicit SvgImageSource(QString fileName);

  [[nodiscard]] Raster render(std::size_t width, std::size_t height) const override;

 private:
  QString fileName_;
  mutable std::unique_ptr<QSvgRenderer> renderer_;
};

}  // namespace kindora
