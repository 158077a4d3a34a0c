// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora {

/// A 4 x 4 matrix for row vectors. As made it is all zeros, which is not the identity.
struct CATransform3D {
  double m11 = 0, m12 = 0, m13 = 0, m14 = 0;
  double m21 = 0, m22 = 0, m23 = 0, m24 = 0;
  double m31 = 0, m32 = 0, m33 = 0, m34 = 0;
  double m41 = 0, m42 = 0, m43 = 0, m44 = 0;
  friend constexpr bool operator==(const CATransform3D&, const CATransform3D&) = default;
};

inline constexpr CATransform3D CATransform3DIdentity{.m11 = 1, .m22 = 1, .m33 = 1, .m44 = 1};

/// Scales by the three factors about the origin.
[[nodiscard]] constexpr CATransform3D CATransform3DMakeScale(double sx, double sy, double sz) {
  return {.m11 = sx, .m22 = sy, .m33 = sz, .m44 = 1};
}

}  // namespace kindora
