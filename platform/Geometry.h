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

/// The rectangle with its edges moved inwards; negative distances move them outwards.
[[nodiscard]] constexpr CGRect CGRectInset(const CGRect& rect, double dx, double dy) {
  return {{rect.origin.x + dx, rect.origin.y + dy},
          {rect.size.width - 2 * dx, rect.size.height - 2 * dy}};
}

/// Whether two rectangles overlap; touching edges do not.
[[nodiscard]] constexpr bool CGRectIntersectsRect(const CGRect& a, const CGRect& b) {
  return a.origin.x < b.origin.x + b.size.width && b.origin.x < a.origin.x + a.size.width &&
         a.origin.y < b.origin.y + b.size.height && b.origin.y < a.origin.y + a.size.height;
}

/// Distances from the four edges of a rectangle.
struct UIEdgeInsets {
  double top = 0;
  double left = 0;
  double bottom = 0;
  double right = 0;
  friend constexpr bool operator==(const UIEdgeInsets&, const UIEdgeInsets&) = default;
};

/// A row of a sectioned list or an item of a collection, first by section in order. Signed, because
/// a caller may ask for a section that does not exist.
struct IndexPath {
  int section = 0;
  int row = 0;
  friend constexpr bool operator==(const IndexPath&, const IndexPath&) = default;
  friend constexpr bool operator<(const IndexPath& a, const IndexPath& b) {
    return a.section != b.section ? a.section < b.section : a.row < b.row;
  }
};

}  // namespace kindora
