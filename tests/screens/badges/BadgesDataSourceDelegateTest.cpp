// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/badges/BadgesDataSourceDelegate.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "effects/springy/BelSpringyCollectionViewFlowLayout.h"
#include "model/ChallengeData.h"
#include "platform/fakes/FakeServices.h"
#include "screens/badges/BadgeCollectionViewCell.h"
#include "tests/screens/badges/Badge.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A grid of two badges, a and b.
class BadgesDataSourceDelegateTest : public ::testing::Test {
 protected:
  BadgesDataSourceDelegateTest() {
    view.registerCell(kBadgeCell, BadgeCollectionViewCell::fromPrototype);
    view.setDataSource(&source);
    view.setDelegate(&source);
    view.setFrame({{0, 0}, {320, 480}});
    completed() = {a, b};
  }
  static ChallengeData::List& completed() {
    return ChallengeData::sharedInstance().completedChallenges;
  }
  [[nodiscard]] CGSize sizeAtWidth(double width) {
    view.setFrame({{0, 0}, {width, 480}});
    return source.collectionViewLayoutSizeForItemAtIndexPath(view, {0, 0});
  }

  const FakeServices fakes = installFakeServices();
  const ChallengeRef a = badge("a");
  const ChallengeRef b = badge("b");
  BadgesDataSourceDelegate source;
  BelSpringyCollectionViewFlowLayout layout;
  CollectionView view{layout};
};

TEST_F(BadgesDataSourceDelegateTest, CountsThreeARowAndFourAColumn) {
  EXPECT_EQ(source.NUM_ITEMS_PER_ROW, 3);
  EXPECT_EQ(source.NUM_ITEMS_PER_COL, 4);
}

// --- The list ---

TEST_F(BadgesDataSourceDelegateTest, HasNoBadgesBeforeTheFirstRefresh) {
  EXPECT_THAT(source.badges, IsEmpty());
  EXPECT_EQ(source.numberOfSectionsInCollectionView(), 1);
  EXPECT_EQ(source.collectionViewNumberOfItemsInSection(0), 0);
}

TEST_F(BadgesDataSourceDelegateTest, TakesTheStoresListInItsOrder) {
  source.refreshData(view, true);
  EXPECT_THAT(source.badges, ElementsAre(a, b));
  EXPECT_EQ(source.collectionViewNumberOfItemsInSection(0), 2);
}

TEST_F(BadgesDataSourceDelegateTest, CreatedChallengesAreBadgesToo) {
  const ChallengeRef own = badge("own");
  own->created = true;
  ChallengeData::sharedInstance().addCreatedChallenge(own);
  source.refreshData(view, true);
  EXPECT_THAT(source.badges, ElementsAre(own, a, b));
}

TEST_F(BadgesDataSourceDelegateTest, ARecordListedTwiceIsTwoBadges) {
  completed() = {a, a};
  source.refreshData(view, true);
  EXPECT_EQ(view.shownCells().size(), 2u);
}

TEST_F(BadgesDataSourceDelegateTest, ItsListIsACopy) {
  source.refreshData(view, true);
  source.badges.clear();
  EXPECT_EQ(completed().size(), 2u);
}

TEST_F(BadgesDataSourceDelegateTest, ShowsTheListOnlyWhenAskedToReload) {
  source.refreshData(view, false);
  EXPECT_EQ(source.badges.size(), 2u);
  EXPECT_THAT(view.shownCells(), IsEmpty());
  source.refreshData(view, true);
  EXPECT_EQ(view.shownCells().size(), 2u);
}

// --- Cells ---

TEST_F(BadgesDataSourceDelegateTest, FillsABadgeCellForEachBadge) {
  source.refreshData(view, true);
  const auto& cell =
      dynamic_cast<BadgeCollectionViewCell&>(*view.shownCells().at(IndexPath{0, 1}).cell);
  EXPECT_EQ(cell.reuseIdentifier(), "badgeCell");
  EXPECT_EQ(cell.challenge(), b);
  EXPECT_EQ(cell.badgeLabel.lock()->text(), "b");
}

TEST_F(BadgesDataSourceDelegateTest, KnowsTheBadgeOfAPlace) {
  source.refreshData(view, false);
  EXPECT_EQ(source.badgeAt({0, 1}), b);
}

TEST_F(BadgesDataSourceDelegateTest, APlaceWithoutABadgeStops) {
  source.refreshData(view, false);
  EXPECT_DEATH(static_cast<void>(source.badgeAt({0, 2})), "fatal error: there is no badge 2");
  EXPECT_DEATH(static_cast<void>(source.badgeAt({0, -1})), "fatal error: there is no badge -1");
}

// --- Geometry ---

TEST_F(BadgesDataSourceDelegateTest, SpacesAndInsetsAre10Points) {
  EXPECT_EQ(source.collectionViewLayoutMinimumInteritemSpacingForSectionAtIndex(view, 0), 10);
  EXPECT_EQ(source.collectionViewLayoutMinimumLineSpacingForSectionAtIndex(view, 0), 10);
  EXPECT_EQ(source.collectionViewLayoutInsetForSectionAtIndex(view, 0),
            (UIEdgeInsets{10, 10, 10, 10}));
}

TEST_F(BadgesDataSourceDelegateTest, ItemsAreWholePointsWideAnd140High) {
  EXPECT_EQ(sizeAtWidth(320), (CGSize{90, 140}));
  EXPECT_EQ(sizeAtWidth(360), (CGSize{103, 140}));
  EXPECT_EQ(sizeAtWidth(375), (CGSize{108, 140}));
  EXPECT_EQ(sizeAtWidth(390), (CGSize{113, 140}));
  EXPECT_EQ(sizeAtWidth(414), (CGSize{121, 140}));
}

TEST_F(BadgesDataSourceDelegateTest, RoundsDownAfterTheSpacingWasTakenOff) {
  EXPECT_EQ(sizeAtWidth(319).width, 89);  // 299 / 3 - 10 is 89.67
}

TEST_F(BadgesDataSourceDelegateTest, AllItemsHaveOneSize) {
  EXPECT_TRUE(source.collectionViewLayoutHasUniformItemSizeInSection(view, 0));
}

TEST_F(BadgesDataSourceDelegateTest, ThreeBadgesStandInALine) {
  completed() = {a, b, a, b};
  source.refreshData(view, true);
  const auto frame = [&](int item) { return view.shownCells().at(IndexPath{0, item}).frame; };
  EXPECT_EQ(frame(0), (CGRect{{10, 10}, {90, 140}}));
  EXPECT_EQ(frame(1), (CGRect{{115, 10}, {90, 140}}));
  EXPECT_EQ(frame(2), (CGRect{{220, 10}, {90, 140}}));
  EXPECT_EQ(frame(3), (CGRect{{10, 160}, {90, 140}}));
}

TEST_F(BadgesDataSourceDelegateTest, ItsSpacingsComeBeforeThoseOfTheLayout) {
  layout.setMinimumLineSpacing(77);
  layout.setSectionInset({5, 5, 5, 5});
  layout.setItemSize({20, 20});
  completed() = {a, b, a, b};
  source.refreshData(view, true);
  EXPECT_EQ(view.shownCells().at(IndexPath{0, 3}).frame, (CGRect{{10, 160}, {90, 140}}));
}

TEST_F(BadgesDataSourceDelegateTest, AViewWithoutAWidthYetIsNoHarm) {
  view.setFrame({});
  completed().assign(1000, a);
  source.refreshData(view, true);
  EXPECT_LT(view.shownCells().size(), 100u);
  view.setFrame({{0, 0}, {320, 480}});
  EXPECT_EQ(view.shownCells().begin()->second.frame, (CGRect{{10, 10}, {90, 140}}));
}

}  // namespace
}  // namespace kindora
