// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/springy/BelSpringyCollectionViewFlowLayout.h"

#include <algorithm>
#include <cmath>

namespace kindora {
namespace {

constexpr double kSpacing = 10;
constexpr CGSize kItemSize{44, 44};
constexpr double kMargin = 100;
/// How far from the finger a cell moves with the whole scroll.
constexpr double kFullDistance = 1500;
constexpr double kDamping = 0.8F;
constexpr double kFrequency = 1;

// Both differences are rounded to single precision, their sum is not.
double distance(CGPoint touch, CGPoint anchor) {
  const double dy = std::abs(static_cast<float>(touch.y - anchor.y));
  const double dx = std::abs(static_cast<float>(touch.x - anchor.x));
  return dy + dx;
}

}  // namespace

BelSpringyCollectionViewFlowLayout::BelSpringyCollectionViewFlowLayout()
    : dynamicAnimator_(UIDynamicAnimator::initWithCollectionViewLayout(*this)) {
  setMinimumInteritemSpacing(kSpacing);
  setMinimumLineSpacing(kSpacing);
  setItemSize(kItemSize);
  setSectionInset({kSpacing, kSpacing, kSpacing, kSpacing});
}

void BelSpringyCollectionViewFlowLayout::invalidateLayout() {
  UICollectionViewFlowLayout::invalidateLayout();
  dynamicAnimator_->removeAllBehaviors();
  visibleIndexPathsSet_.clear();
}

void BelSpringyCollectionViewFlowLayout::prepareLayout() {
  UICollectionViewFlowLayout::prepareLayout();
  if (collectionView() == nullptr) return;
  const CGRect visible = CGRectInset({collectionView()->bounds().origin,  //
                                      collectionView()->frame().size},
                                     -kMargin, -kMargin);
  const auto items = UICollectionViewFlowLayout::layoutAttributesForElementsInRect(visible);
  std::set<IndexPath> paths;
  for (const auto& item : items) paths.insert(paths.end(), item->indexPath());
  removeSpringsOutside(paths);

  const CGPoint touch = collectionView()->panLocation();
  for (const auto& item : items) {
    if (!visibleIndexPathsSet_.contains(item->indexPath())) addSpring(item, touch);
  }
}

void BelSpringyCollectionViewFlowLayout::removeSpringsOutside(const std::set<IndexPath>& paths) {
  for (const UIAttachmentBehaviorRef& spring : dynamicAnimator_->behaviors()) {
    const IndexPath path = spring->items().front()->indexPath();
    if (paths.contains(path)) continue;
    dynamicAnimator_->removeBehavior(spring);
    visibleIndexPathsSet_.erase(path);
  }
}

void BelSpringyCollectionViewFlowLayout::addSpring(const UICollectionViewLayoutAttributesRef& item,
                                                   CGPoint touch) {
  const auto spring = UIAttachmentBehavior::initWithItem(item, item->center());
  spring->setLength(0);
  spring->setDamping(kDamping);
  spring->setFrequency(kFrequency);
  if (touch != CGPoint{}) displace(*spring, touch);
  dynamicAnimator_->addBehavior(spring);
  visibleIndexPathsSet_.insert(item->indexPath());
}

void BelSpringyCollectionViewFlowLayout::displace(const UIAttachmentBehavior& spring,
                                                  CGPoint touch) const {
  const UICollectionViewLayoutAttributesRef& item = spring.items().front();
  const double resistance = distance(touch, spring.anchorPoint()) / kFullDistance;
  const double resisted = latestDelta_ * resistance;
  const CGPoint center = item->center();
  item->setCenter({center.x, center.y + (latestDelta_ < 0 ? std::max(latestDelta_, resisted)
                                                          : std::min(latestDelta_, resisted))});
}

std::vector<UICollectionViewLayoutAttributesRef>
BelSpringyCollectionViewFlowLayout::layoutAttributesForElementsInRect(const CGRect& rect) const {
  return dynamicAnimator_->itemsInRect(rect);
}

UICollectionViewLayoutAttributesRef
BelSpringyCollectionViewFlowLayout::layoutAttributesForItemAtIndexPath(IndexPath path) const {
  return dynamicAnimator_->layoutAttributesForCellAtIndexPath(path);
}

bool BelSpringyCollectionViewFlowLayout::shouldInvalidateLayoutForBoundsChange(
    const CGRect& newBounds) {
  if (collectionView() == nullptr) return false;
  latestDelta_ = newBounds.origin.y - collectionView()->bounds().origin.y;
  const CGPoint touch = collectionView()->panLocation();
  for (const UIAttachmentBehaviorRef& spring : dynamicAnimator_->behaviors()) {
    displace(*spring, touch);
    dynamicAnimator_->updateItemUsingCurrentState(spring->items().front());
  }
  return false;
}

}  // namespace kindora
