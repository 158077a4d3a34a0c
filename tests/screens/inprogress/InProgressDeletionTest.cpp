// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/screens/inprogress/InProgressCeremonyFixture.h"

namespace kindora {
namespace {

class InProgressDeletionTest : public InProgressCeremonyTest {
 protected:
  InProgressDeletionTest() {
    screen().navigationItem()->rightBarButtonItem()->press();
    time.advance(0.5);
  }
};

TEST_F(InProgressDeletionTest, AsksLikeARejection) {
  ASSERT_NE(alert(), nullptr);
  EXPECT_EQ(alert()->titleText(), "Reject \"Catch Your Breath\"?");
  EXPECT_EQ(alert()->message(), "Josh the Whale will be so disappointed.");
  ASSERT_EQ(alert()->actions().size(), 2u);
  EXPECT_EQ(alert()->actions()[0].title, "Reject");
  EXPECT_EQ(alert()->actions()[0].style, UIAlertActionStyle::destructive);
  EXPECT_EQ(alert()->actions()[1].title, "Never Mind");
  EXPECT_EQ(alert()->actions()[1].style, UIAlertActionStyle::cancel);
}

TEST_F(InProgressDeletionTest, NothingIsDeletedWhileItAsks) {
  EXPECT_THAT(store().inProgressChallenges, ::testing::Contains(challenge));
}

TEST_F(InProgressDeletionTest, RejectDeletesAndLeadsBackToTheList) {
  choose("Reject");
  EXPECT_THAT(store().inProgressChallenges, ::testing::Not(::testing::Contains(challenge)));
  EXPECT_THAT(store().completedChallenges, ::testing::Not(::testing::Contains(challenge)));
  EXPECT_EQ(navigation().viewControllers().size(), 1u);
}

TEST_F(InProgressDeletionTest, NeverMindLeavesEverythingAsItWas) {
  const auto before = store().inProgressChallenges;
  choose("Never Mind");
  EXPECT_EQ(store().inProgressChallenges, before);
  EXPECT_TRUE(isOnTop());
  EXPECT_TRUE(button().isEnabled());
  EXPECT_TRUE(tabs().tabBar()->isUserInteractionEnabled());
}

TEST_F(InProgressDeletionTest, DeletingRaisesNoBadge) {
  choose("Reject");
  time.advance(3);
  EXPECT_TRUE(badges().badgeValue().isNull());
}

}  // namespace
}  // namespace kindora
