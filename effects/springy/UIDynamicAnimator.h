// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Moves items on their springs towards their anchors, exactly at any frame rate.
//
// The animator owns where its items are: a centre that somebody else sets counts only once
// updateItemUsingCurrentState is called. A spring sleeps on its anchor as soon as it is nearer than
// 0.05 points and slower than 1 point a second, and wakes when its item is updated. There is no
// clock inside; whoever shows the items calls advance while isResting is false. Main thread only.
#pragma once

#include <list>
#include <map>
#include <memory>
#include <vector>

#include "effects/springy/DampedSpring.h"
#include "effects/springy/UIAttachmentBehavior.h"

namespace kindora {

class UICollectionViewLayout;

class UIDynamicAnimator final {
 public:
  /// An animator of the layout's cells; the layout must outlive its use.
  [[nodiscard]] static std::shared_ptr<UIDynamicAnimator> initWithCollectionViewLayout(
      const UICollectionViewLayout& layout);

  UIDynamicAnimator(const UIDynamicAnimator&) = delete;
  UIDynamicAnimator& operator=(const UIDynamicAnimator&) = delete;

  [[nodiscard]] const UICollectionViewLayout& collectionViewLayout() const { return layout_; }

  /// All springs in the order in which they were added.
  [[nodiscard]] std::vector<UIAttachmentBehaviorRef> behaviors() const;
  /// Takes the item as it is, at rest. Stops the program on a second spring for one cell, on a
  /// length other than 0, a frequency not above 0 and a negative damping.
  void addBehavior(const UIAttachmentBehaviorRef& behavior);
  /// Leaves the item where it is. Nothing happens when the behaviour is not one of the animator's.
  void removeBehavior(const UIAttachmentBehaviorRef& behavior);
  void removeAllBehaviors();

  /// The items that overlap the rectangle, in the order of their springs.
  [[nodiscard]] std::vector<UICollectionViewLayoutAttributesRef> itemsInRect(
      const CGRect& rect) const;
  /// Null for a cell without a spring.
  [[nodiscard]] UICollectionViewLayoutAttributesRef layoutAttributesForCellAtIndexPath(
      IndexPath path) const;
  /// Goes on from where the item's centre is now, at the speed it has.
  void updateItemUsingCurrentState(const UICollectionViewLayoutAttributesRef& item);

  /// Moves the items on by that time; true when any of them moved.
  bool advance(double seconds);
  /// True when no further advance would move anything.
  [[nodiscard]] bool isResting() const { return awake_ == 0; }

 private:
  struct Body {
    UIAttachmentBehaviorRef behavior;
    SpringState x;
    SpringState y;
    bool awake = false;
  };
  using Bodies = std::list<Body>;

  explicit UIDynamicAnimator(const UICollectionViewLayout& layout) : layout_(layout) {}
  void takeCentre(Body& body);
  void setAwake(Body& body, bool awake);

  const UICollectionViewLayout& layout_;
  Bodies bodies_;
  std::map<IndexPath, Bodies::iterator> bodyOfCell_;
  std::size_t awake_ = 0;
};

}  // namespace kindora
