// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A flow layout whose cells hang on springs: they lag behind a scroll the more the farther they are
// from the finger, and settle back.
//
// The flow layout says where a cell rests; from then on the animator owns where it is. Springs
// exist only for cells within 100 points of what is visible. Scrolling never invalidates the
// layout, it moves the springs; the collection view prepares the layout after each scroll, so that
// cells get their springs in time. An invalidation or another width drops all springs.
#pragma once

#include <memory>
#include <set>

#include "effects/springy/UIDynamicAnimator.h"
#include "toolkit/collection/UICollectionViewFlowLayout.h"

namespace kindora {

class BelSpringyCollectionViewFlowLayout final : public UICollectionViewFlowLayout {
 public:
  /// Items of 44 x 44 with 10 points between and around them.
  BelSpringyCollectionViewFlowLayout();

  [[nodiscard]] const std::shared_ptr<UIDynamicAnimator>& dynamicAnimator() const {
    return dynamicAnimator_;
  }
  /// The cells that have a spring: exactly the items of the animator's behaviours.
  [[nodiscard]] const std::set<IndexPath>& visibleIndexPathsSet() const {
    return visibleIndexPathsSet_;
  }
  /// How far the last change of the bounds scrolled down, in points.
  [[nodiscard]] double latestDelta() const { return latestDelta_; }

  void invalidateLayout() override;
  /// Gives springs to cells that have come near and takes them from those that have left.
  void prepareLayout() override;
  /// The cells that are in the rectangle now, displaced as they are.
  [[nodiscard]] std::vector<UICollectionViewLayoutAttributesRef> layoutAttributesForElementsInRect(
      const CGRect& rect) const override;
  /// Null for a cell without a spring.
  [[nodiscard]] UICollectionViewLayoutAttributesRef layoutAttributesForItemAtIndexPath(
      IndexPath path) const override;
  /// Moves the springs for the scroll from the present bounds to the new ones. Always false.
  [[nodiscard]] bool shouldInvalidateLayoutForBoundsChange(const CGRect& newBounds) override;

  bool advance(double seconds) override { return dynamicAnimator_->advance(seconds); }
  [[nodiscard]] bool isResting() const override { return dynamicAnimator_->isResting(); }

 private:
  void removeSpringsOutside(const std::set<IndexPath>& paths);
  void addSpring(const UICollectionViewLayoutAttributesRef& item, CGPoint touch);
  void displace(const UIAttachmentBehavior& spring, CGPoint touch) const;

  std::shared_ptr<UIDynamicAnimator> dynamicAnimator_;
  std::set<IndexPath> visibleIndexPathsSet_;
  double latestDelta_ = 0;
};

}  // namespace kindora
