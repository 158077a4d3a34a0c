// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/springy/UIAttachmentBehavior.h"

#include <gtest/gtest.h>

namespace kindora {
namespace {

// Centred on (50, 50).
UICollectionViewLayoutAttributesRef cell() {
  return std::make_shared<UICollectionViewLayoutAttributes>(IndexPath{0, 3},
                                                            CGRect{{40, 30}, {20, 40}});
}

TEST(UICollectionViewLayoutAttributes, FrameFollowsTheCentre) {
  const auto item = cell();
  EXPECT_EQ(item->center(), (CGPoint{50, 50}));
  item->setCenter({60, 80});
  EXPECT_EQ(item->frame(), (CGRect{{50, 60}, {20, 40}}));
  EXPECT_EQ(item->indexPath(), (IndexPath{0, 3}));
}

TEST(UIAttachmentBehavior, HoldsItsItemAndItsAnchor) {
  const auto item = cell();
  const auto behavior = UIAttachmentBehavior::initWithItem(item, {53, 54});
  ASSERT_EQ(behavior->items().size(), 1U);
  EXPECT_EQ(behavior->items().front(), item);
  EXPECT_EQ(behavior->anchorPoint(), (CGPoint{53, 54}));
}

TEST(UIAttachmentBehavior, StartsRigidAtThePresentDistance) {
  const auto behavior = UIAttachmentBehavior::initWithItem(cell(), {53, 54});
  EXPECT_EQ(behavior->length(), 5);
  EXPECT_EQ(behavior->damping(), 0);
  EXPECT_EQ(behavior->frequency(), 0);
}

TEST(UIAttachmentBehavior, KeepsItsSettings) {
  const auto behavior = UIAttachmentBehavior::initWithItem(cell(), {50, 50});
  behavior->setLength(2);
  behavior->setDamping(0.5);
  behavior->setFrequency(3);
  EXPECT_EQ(behavior->length(), 2);
  EXPECT_EQ(behavior->damping(), 0.5);
  EXPECT_EQ(behavior->frequency(), 3);
}

}  // namespace
}  // namespace kindora
