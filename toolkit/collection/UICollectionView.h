// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Geometry.h"

namespace kindora {

class UICollectionViewDelegateFlowLayout;

/// What a layout asks of the scrolling view that it lays out.
///
/// In return the view
/// - asks shouldInvalidateLayoutForBoundsChange before it takes new bounds, and invalidates the
///   layout when the answer is yes;
/// - invalidates the layout when its items, or what its delegate says of them, have changed;
/// - calls prepareLayout after each change of its bounds, after each invalidation, and after each
///   tick of an animator that moved something.
class UICollectionView {
 public:
  virtual ~UICollectionView() = default;

  /// The visible part of the content: the origin is how far it is scrolled, in points.
  [[nodiscard]] virtual CGRect bounds() const = 0;
  /// In the superview's space, in points.
  [[nodiscard]] virtual CGRect frame() const = 0;
  /// Where the finger that scrolls is, in the content; exactly (0, 0) when there is none.
  [[nodiscard]] virtual CGPoint panLocation() const = 0;

  [[nodiscard]] virtual int numberOfSections() const = 0;
  [[nodiscard]] virtual int numberOfItemsInSection(int section) const = 0;
  /// Who decides on sizes and spacings; null leaves them to the layout.
  [[nodiscard]] virtual UICollectionViewDelegateFlowLayout* delegate() const = 0;
};

}  // namespace kindora
