// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <memory>

#include "toolkit/collection/UICollectionViewLayoutAttributes.h"

namespace kindora {

/// A spring by which one item hangs on an anchor. What it does is up to the animator.
class UIAttachmentBehavior final {
 public:
  /// A rigid attachment at the present distance of the item's centre.
  [[nodiscard]] static std::shared_ptr<UIAttachmentBehavior> initWithItem(
      UICollectionViewLayoutAttributesRef item, CGPoint attachedToAnchor);

  /// The one item.
  [[nodiscard]] const std::array<UICollectionViewLayoutAttributesRef, 1>& items() const {
    return items_;
  }
  [[nodiscard]] CGPoint anchorPoint() const { return anchorPoint_; }

  /// Distance from the anchor at rest, in points.
  [[nodiscard]] double length() const { return length_; }
  void setLength(double points) { length_ = points; }
  /// Ratio to the critical damping: 0 swings for ever, 1 does not swing.
  [[nodiscard]] double damping() const { return damping_; }
  void setDamping(double ratio) { damping_ = ratio; }
  /// Of the undamped swing, in hertz; 0 is rigid.
  [[nodiscard]] double frequency() const { return frequency_; }
  void setFrequency(double hertz) { frequency_ = hertz; }

 private:
  UIAttachmentBehavior(UICollectionViewLayoutAttributesRef item, CGPoint anchor);

  std::array<UICollectionViewLayoutAttributesRef, 1> items_;
  CGPoint anchorPoint_;
  double length_;
  double damping_ = 0;
  double frequency_ = 0;
};

using UIAttachmentBehaviorRef = std::shared_ptr<UIAttachmentBehavior>;

}  // namespace kindora
