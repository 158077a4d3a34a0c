// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// An off-screen bitmap: a picture is drawn into it, and from the clear blend mode on every shape
// drawn in it erases. Its y axis points up; positions are in pixels from the lower-left corner.
#pragma once

#include <cstddef>
#include <memory>

#include "platform/Geometry.h"
#include "platform/Raster.h"
#include "platform/UIColor.h"
#include "platform/UIImage.h"

namespace kindora {

/// What the numbers of a bitmap's pixels mean: here always the device's own red, green and blue.
class ColorSpace final {
 public:
  [[nodiscard]] static std::shared_ptr<const ColorSpace> deviceRGB();

 private:
  ColorSpace() = default;
};

enum class BlendMode { normal = 0, clear = 16 };
enum class AlphaInfo { premultipliedLast = 1 };

/// The shape of a context's memory.
struct BitmapLayout {
  std::size_t width = 0;   ///< pixels
  std::size_t height = 0;  ///< pixels
  std::size_t bitsPerComponent = 8;
  std::size_t bytesPerRow = 0;  ///< as declared by the caller; the pixels themselves lie in tiles
  AlphaInfo alphaInfo = AlphaInfo::premultipliedLast;
  friend constexpr bool operator==(const BitmapLayout&, const BitmapLayout&) = default;
};

class BitmapContext final {
 public:
  /// A transparent bitmap in the normal blend mode.
  BitmapContext(const BitmapLayout& layout, std::shared_ptr<const ColorSpace> colorSpace);

  [[nodiscard]] const BitmapLayout& layout() const { return layout_; }
  [[nodiscard]] const std::shared_ptr<const ColorSpace>& colorSpace() const { return colorSpace_; }

  /// Replaces the bitmap's pixels by the image, stretched over the rectangle from the lower-left
  /// corner to extent, which is the bitmap's size or less than a pixel larger. Meant for a fresh
  /// bitmap; stops in the clear blend mode.
  void drawImage(const UIImage& image, CGSize extent);

  [[nodiscard]] BlendMode blendMode() const { return blendMode_; }
  void setBlendMode(BlendMode mode) { blendMode_ = mode; }
  /// Kept for those who draw as the platform has them draw: in the clear blend mode no colour
  /// shows.
  [[nodiscard]] UIColor fillColor() const { return fillColor_; }
  void setFillColor(UIColor color) { fillColor_ = color; }
  [[nodiscard]] UIColor strokeColor() const { return strokeColor_; }
  void setStrokeColor(UIColor color) { strokeColor_ = color; }
  [[nodiscard]] double lineWidth() const { return lineWidth_; }
  void setLineWidth(double pixels) { lineWidth_ = pixels; }

  /// Erases a disc. Filling and stroking stop in any other blend mode than clear.
  void fillDisc(CGPoint centre, double radius);
  /// Erases a line of the line width with round caps.
  void strokeRoundCappedLine(CGPoint from, CGPoint to);

  /// The pixels as they are now. Later drawing does not change what was returned.
  [[nodiscard]] const Raster& raster() const { return raster_; }

 private:
  [[nodiscard]] CGPoint rasterPoint(CGPoint point) const;
  void requireClear() const;

  BitmapLayout layout_;
  std::shared_ptr<const ColorSpace> colorSpace_;
  Raster raster_;
  BlendMode blendMode_ = BlendMode::normal;
  UIColor fillColor_;
  UIColor strokeColor_;
  double lineWidth_ = 1;
};

}  // namespace kindora
