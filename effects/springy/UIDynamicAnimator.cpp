// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/springy/UIDynamicAnimator.h"

#include <cmath>

#include "platform/FatalError.h"

namespace kindora {
namespace {

constexpr double kRestingDistance = 0.05;  // points
constexpr double kRestingSpeed = 1;        // points a second

const UICollectionViewLayoutAttributesRef& itemOf(const UIAttachmentBehaviorRef& behavior) {
  return behavior->items().front();
}

}  // namespace

std::shared_ptr<UIDynamicAnimator> UIDynamicAnimator::initWithCollectionViewLayout(
    const UICollectionViewLayout& layout) {
  return std::shared_ptr<UIDynamicAnimator>(new UIDynamicAnimator(layout));
}

std::vector<UIAttachmentBehaviorRef> UIDynamicAnimator::behaviors() const {
  std::vector<UIAttachmentBehaviorRef> result;
  result.reserve(bodies_.size());
  for (const Body& body : bodies_) result.push_back(body.behavior);
  return result;
}

void UIDynamicAnimator::addBehavior(const UIAttachmentBehaviorRef& behavior) {
  if (behavior->length() != 0) fatalError("the animator knows only springs of length 0");
  if (!(behavior->frequency() > 0) || !(behavior->damping() >= 0)) {
    fatalError("a spring needs a frequency above 0 and a damping of 0 or more");
  }
  const auto body = bodies_.insert(bodies_.end(), Body{.behavior = behavior});
  if (!bodyOfCell_.emplace(itemOf(behavior)->indexPath(), body).second) {
    fatalError("the cell has a spring already");
  }
  takeCentre(*body);
}

void UIDynamicAnimator::removeBehavior(const UIAttachmentBehaviorRef& behavior) {
  const auto found = bodyOfCell_.find(itemOf(behavior)->indexPath());
  if (found == bodyOfCell_.end() || found->second->behavior != behavior) return;
  setAwake(*found->second, false);
  bodies_.erase(found->second);
  bodyOfCell_.erase(found);
}

void UIDynamicAnimator::removeAllBehaviors() {
  bodies_.clear();
  bodyOfCell_.clear();
  awake_ = 0;
}

std::vector<UICollectionViewLayoutAttributesRef> UIDynamicAnimator::itemsInRect(
    const CGRect& rect) const {
  std::vector<UICollectionViewLayoutAttributesRef> result;
  for (const Body& body : bodies_) {
    const UICollectionViewLayoutAttributesRef& item = itemOf(body.behavior);
    if (CGRectIntersectsRect(item->frame(), rect)) result.push_back(item);
  }
  return result;
}

UICollectionViewLayoutAttributesRef UIDynamicAnimator::layoutAttributesForCellAtIndexPath(
    IndexPath path) const {
  const auto found = bodyOfCell_.find(path);
  return found == bodyOfCell_.end() ? nullptr : itemOf(found->second->behavior);
}

void UIDynamicAnimator::updateItemUsingCurrentState(
    const UICollectionViewLayoutAttributesRef& item) {
  const auto found = bodyOfCell_.find(item->indexPath());
  if (found == bodyOfCell_.end() || itemOf(found->second->behavior) != item) return;
  takeCentre(*found->second);
}

bool UIDynamicAnimator::advance(double seconds) {
  if (!(seconds > 0)) return false;
  bool moved = false;
  for (Body& body : bodies_) {
    if (!body.awake) continue;
    const UIAttachmentBehavior& behavior = *body.behavior;
    const DampedSpring spring(behavior.frequency(), behavior.damping(), seconds);
    body.x = spring.after(body.x);
    body.y = spring.after(body.y);
    const bool near = std::hypot(body.x.displacement, body.y.displacement) < kRestingDistance;
    if (near && std::hypot(body.x.velocity, body.y.velocity) < kRestingSpeed) {
      body.x = {};
      body.y = {};
      setAwake(body, false);
    }
    const CGPoint anchor = behavior.anchorPoint();
    itemOf(body.behavior)
        ->setCenter({anchor.x + body.x.displacement, anchor.y + body.y.displacement});
    moved = true;
  }
  return moved;
}

void UIDynamicAnimator::takeCentre(Body& body) {
  const CGPoint center = itemOf(body.behavior)->center();
  const CGPoint anchor = body.behavior->anchorPoint();
  body.x.displacement = center.x - anchor.x;
  body.y.displacement = center.y - anchor.y;
  setAwake(body, body.x != SpringState{} || body.y != SpringState{});
}

void UIDynamicAnimator::setAwake(Body& body, bool awake) {
  if (body.awake == awake) return;
  body.awake = awake;
  awake_ = awake ? awake_ + 1 : awake_ - 1;
}

}  // namespace kindora
