// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Points, sizes and rectangles in the y-down space of views, in points.
#pragma once

#include <cstddef>

namespace kindora {

struct CGPoint {
  double x = 0;
  double y = 0;
  friend constexpr bool operator==(const CGPoint&, const CGPoint&) = default;
};

struct CGSize {
  double width = 0;
  double height = 0;
  friend constexpr bool operator==(const CGSize&, const CGSize&) = default;
};

struct CGRect {
  CGPoint origin;
  CGSize size;
  friend constexpr bool operator==(const CGRect&, const CGRect&) = default;
};

[[nodiscard]] constexpr CGPoint centerOf(const CGRect& rect) {
  return {rect.origin.x + rect.size.width / 2, rect.origin.y + rect.size.height / 2};
}

/// A rectangle of that size about a centre.
[[nodiscard]] constexpr CGRect rectAround(CGPoint center, CGSize size) {
  return {{center.x - size.width / 2, center.y - size.height / 2}, size};
}

/// A row of a sectioned list. Signed, because a caller may ask for a section that does not exist.
struct IndexPath {
  int section = 0;
  int row = 0;
  friend constexpr bool operator==(const IndexPath&, const IndexPath&) = default;
};

}  // namespace kindora
