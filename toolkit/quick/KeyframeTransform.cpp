// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/KeyframeTransform.h"

namespace kindora {
namespace {

// Row vectors there, column vectors here.
QMatrix4x4 toQMatrix(const CATransform3D& t) {
  const auto f = [](double value) { return static_cast<float>(value); };
  return {f(t.m11), f(t.m21), f(t.m31), f(t.m41), f(t.m12), f(t.m22), f(t.m32), f(t.m42),
          f(t.m13), f(t.m23), f(t.m33), f(t.m43), f(t.m14), f(t.m24), f(t.m34), f(t.m44)};
}

}  // namespace

class KeyframeTransform::Matrix final : public QQuickTransform {
 public:
  void applyTo(QMatrix4x4* matrix) const override { *matrix *= value; }
  void changed() { update(); }

  QMatrix4x4 value;
};

KeyframeTransform::KeyframeTransform() = default;
KeyframeTransform::~KeyframeTransform() = default;

void KeyframeTransform::set(const std::optional<CATransform3D>& transform, QQuickItem& item) {
  if (!matrix_) {
    if (!transform) return;
    matrix_ = std::make_unique<Matrix>();
    matrix_->appendToItem(&item);
  }
  const auto x = static_cast<float>(item.width() / 2);
  const auto y = static_cast<float>(item.height() / 2);
  QMatrix4x4 value;
  if (transform) {
    value.translate(x, y);
    value *= toQMatrix(*transform);
    value.translate(-x, -y);
  }
  if (matrix_->value == value) return;
  matrix_->value = value;
  matrix_->changed();
}

}  // namespace kindora
