// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/SquareCrop.h"

#include <algorithm>
#include <cmath>

namespace kindora {

SquareCrop::SquareCrop(CGSize picture, double side)
    : picture_(picture), side_(side), center_{picture.width / 2, picture.height / 2} {}

double SquareCrop::pointsPerPixel() const {
  return zoom_ * side_ / std::min(picture_.width, picture_.height);
}

CGRect SquareCrop::pictureFrame() const {
  const double scale = pointsPerPixel();
  return {{side_ / 2 - center_.x * scale, side_ / 2 - center_.y * scale},
          {picture_.width * scale, picture_.height * scale}};
}

CGRect SquareCrop::cropRect() const {
  const double shorter = std::min(picture_.width, picture_.height);
  const double side = std::max(1.0, std::floor(shorter / zoom_ + 1e-6));
  const auto origin = [side](double center, double length) {
    return std::clamp(std::round(center - side / 2), 0.0, length - side);
  };
  return {{origin(center_.x, picture_.width), origin(center_.y, picture_.height)}, {side, side}};
}

void SquareCrop::pan(CGPoint points) {
  const double scale = pointsPerPixel();
  center_.x -= points.x / scale;
  center_.y -= points.y / scale;
  keepCovered();
}

void SquareCrop::zoomBy(double factor, CGPoint about) {
  const double before = pointsPerPixel();
  zoom_ = std::clamp(zoom_ * factor, 1.0, kMaximumZoom);
  const double after = pointsPerPixel();
  const CGPoint fromMiddle{about.x - side_ / 2, about.y - side_ / 2};
  center_.x += fromMiddle.x / before - fromMiddle.x / after;
  center_.y += fromMiddle.y / before - fromMiddle.y / after;
  keepCovered();
}

void SquareCrop::setSide(double side) { side_ = side; }

void SquareCrop::keepCovered() {
  const double half = std::min(picture_.width, picture_.height) / zoom_ / 2;
  center_.x = std::clamp(center_.x, half, picture_.width - half);
  center_.y = std::clamp(center_.y, half, picture_.height - half);
}

}  // namespace kindora
