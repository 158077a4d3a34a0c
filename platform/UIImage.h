// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// An immutable picture, shared by reference; two images are the same when they are the same object.
//
// A picture comes either from a raster or from a source that draws it at any number of pixels (a
// vector drawing). Drawing from a source happens on first need. Main thread only.
#pragma once

#include <memory>
#include <optional>

#include "platform/Geometry.h"
#include "platform/Raster.h"

namespace kindora {

class UIImage;
using UIImageRef = std::shared_ptr<const UIImage>;

/// Draws one picture at any number of pixels.
class ImageSource {
 public:
  virtual ~ImageSource() = default;
  /// The whole picture, stretched to width x height pixels, both at least 1.
  [[nodiscard]] virtual Raster render(std::size_t width, std::size_t height) const = 0;
};

/// A template lends its shape alone: it is drawn in the tint of whatever shows it.
enum class UIImageRenderingMode { automatic, alwaysTemplate };

class UIImage final {
 public:
  /// A picture of the raster's pixels; its size in points is the pixel size divided by the scale.
  [[nodiscard]] static UIImageRef imageWithRaster(Raster raster, double scale = 1);
  /// A picture that claims a size of its own (in points), whatever the raster's pixel size.
  [[nodiscard]] static UIImageRef imageWithRaster(Raster raster, CGSize size, double scale);
  /// A picture that the source draws; size in points.
  [[nodiscard]] static UIImageRef imageWithSource(std::shared_ptr<const ImageSource> source,
                                                  CGSize size, double scale);

  /// Another picture of the same pixels or source, to be drawn in that mode.
  [[nodiscard]] UIImageRef imageWithRenderingMode(UIImageRenderingMode mode) const;

  UIImage(const UIImage&) = delete;
  UIImage& operator=(const UIImage&) = delete;

  [[nodiscard]] CGSize size() const { return size_; }
  [[nodiscard]] double scale() const { return scale_; }
  [[nodiscard]] UIImageRenderingMode renderingMode() const { return renderingMode_; }
  /// The pixel size as a real number: size times scale, not rounded.
  [[nodiscard]] CGSize pixelSize() const { return {size_.width * scale_, size_.height * scale_}; }

  /// The picture's own pixels: size times scale, rounded up, when a source draws it.
  [[nodiscard]] const Raster& raster() const;
  /// The whole picture at width x height pixels: the raster itself (shared) when that is its size,
  /// else drawn anew by the source, or resampled by area (smaller) and linearly (larger).
  [[nodiscard]] Raster rendered(std::size_t width, std::size_t height) const;
  /// The picture stretched over extent pixels, which need not be whole, and cut to the width x
  /// height pixels at its lower-left corner. Extent must not be smaller than these.
  [[nodiscard]] Raster rendered(std::size_t width, std::size_t height, CGSize extent) const;

 private:
  UIImage(std::optional<Raster> raster, std::shared_ptr<const ImageSource> source, CGSize size,
          double scale);

  mutable std::optional<Raster> raster_;
  std::shared_ptr<const ImageSource> source_;
  CGSize size_;
  double scale_;
  UIImageRenderingMode renderingMode_ = UIImageRenderingMode::automatic;
};

/// A number of pixels rounded up to whole ones, forgiving the rounding of size times scale: a
/// product of 100 that came out as 100.00000000000001 is 100.
[[nodiscard]] std::size_t wholePixels(double pixels);

}  // namespace kindora
