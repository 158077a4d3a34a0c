// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Geometry.h"

namespace kindora {

/// The square through which the user cuts a picture: the picture always covers the square and is
/// moved and zoomed under it.
class SquareCrop final {
 public:
  /// At zoom 1 the picture just covers the square.
  static constexpr double kMaximumZoom = 5;

  /// The picture in pixels and the square's side in points, all above 0. The picture begins centred
  /// at zoom 1.
  SquareCrop(CGSize picture, double side);

  [[nodiscard]] double zoom() const { return zoom_; }
  [[nodiscard]] double side() const { return side_; }
  /// Where the picture lies, in points from the square's corner.
  [[nodiscard]] CGRect pictureFrame() const;
  /// What the square shows, in whole pixels of the picture: a square inside it, at least 1 pixel.
  [[nodiscard]] CGRect cropRect() const;

  /// Moves the picture, as far as it still covers the square.
  void pan(CGPoint points);
  /// Zooms by a factor about a point of the square, which keeps its place where the edges allow.
  void zoomBy(double factor, CGPoint about);
  /// The square has another size on the screen; the same part of the picture shows.
  void setSide(double side);

 private:
  [[nodiscard]] double pointsPerPixel() const;
  void keepCovered();

  CGSize picture_;
  double side_;
  double zoom_ = 1;
  CGPoint center_;  // the picture's pixel in the middle of the square
};

}  // namespace kindora
