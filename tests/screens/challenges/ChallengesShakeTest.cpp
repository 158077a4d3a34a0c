// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/screens/challenges/ChallengesFixture.h"

namespace kindora {
namespace {

// --- Shake ---

TEST_F(ChallengesTableViewControllerTest, AShakeAnnouncesWhoSentTheChallenge) {
  shake();
  ASSERT_NE(alert(), nullptr);
  EXPECT_EQ(alert()->titleText(), "New challenge from Horace the Smiley!");
  EXPECT_EQ(alert()->message(), std::nullopt);
  EXPECT_TRUE(alert()->actions().empty());
  EXPECT_EQ(alert()->preferredStyle(), UIAlertControllerStyle::alert);
}

TEST_F(ChallengesTableViewControllerTest, TheAnnouncementComesAnimated) {
  shake();
  EXPECT_EQ(alert()->presentationProgress(), 0);
  time.advance(0.1);
  EXPECT_GT(alert()->presentationProgress(), 0);
  EXPECT_LT(alert()->presentationProgress(), 1);
}

TEST_F(ChallengesTableViewControllerTest, AnUnknownSenderIsSomeone) {
  store().hiddenChallenges.back()->sender = nullptr;
  shake();
  EXPECT_EQ(alert()->titleText(), "New challenge from Someone!");
}

TEST_F(ChallengesTableViewControllerTest, AShakePutsTheRowOnTopAtOnceAndAnimated) {
  shake();
  EXPECT_EQ(shown().at(1), "Horace the Smiley | -");
  EXPECT_EQ(shown().size(), 8u);
  EXPECT_TRUE(table().animatesChanges());
  EXPECT_EQ(list().newChallenges, store().newChallenges);
}

TEST_F(ChallengesTableViewControllerTest, AShakeShowsWhateverElseHasChangedInTheStore) {
  store().inProgressChallenges.clear();
  shake();
  EXPECT_EQ(shown().back(), "No Challenges in Progress");
}

TEST_F(ChallengesTableViewControllerTest, TheAnnouncementGoesAfter1250Milliseconds) {
  shake();
  time.advance(1.249);
  EXPECT_EQ(alert()->presentationProgress(), 1);
  time.advance(0.010);
  EXPECT_LT(alert()->presentationProgress(), 1);
  time.advance(0.25);
  EXPECT_EQ(alert(), nullptr);
}

TEST_F(ChallengesTableViewControllerTest, TheListKeepsHearingShakesUnderTheAnnouncement) {
  shake();
  time.advance(0.5);
  EXPECT_TRUE(list().isFirstResponder());
}

TEST_F(ChallengesTableViewControllerTest, OtherMotionsAreIgnored) {
  list().motionEnded(UIEventSubtype::none);
  EXPECT_EQ(alert(), nullptr);
  EXPECT_EQ(store().hiddenChallenges.size(), 3u);
  EXPECT_EQ(fakes.mainQueue->pendingCount(), 0u);
}

TEST_F(ChallengesTableViewControllerTest, ASecondShakeMovesOnUnderTheFirstAnnouncement) {
  shake();
  const auto first = alert();
  time.advance(0.5);
  shake();
  EXPECT_EQ(alert(), first);
  EXPECT_EQ(delegate().window->presentations()->count(), 1);
  EXPECT_EQ(shown().at(1), "Sally the Eye | -");
  EXPECT_EQ(shown().at(2), "Horace the Smiley | -");
  EXPECT_EQ(store().hiddenChallenges.size(), 1u);
}

TEST_F(ChallengesTableViewControllerTest, TheTimerOfASecondShakeFindsNothingToDismiss) {
  shake();
  time.advance(1);
  shake();
  time.advance(0.6);
  EXPECT_EQ(alert(), nullptr);
  time.advance(1);
  EXPECT_EQ(alert(), nullptr);
  EXPECT_EQ(fakes.mainQueue->pendingCount(), 0u);
}

TEST_F(ChallengesTableViewControllerTest, TheTimerDismissesWhateverIsPresentedThen) {
  shake();
  time.advance(1);
  shake();  // its timer ends at 2.25
  time.advance(0.6);
  swipeFirstInProgress();
  time.advance(0.6);
  EXPECT_NE(alert(), nullptr);
  time.advance(0.4);
  EXPECT_EQ(alert(), nullptr);
  EXPECT_EQ(store().inProgressChallenges.size(), 2u);
}

TEST_F(ChallengesTableViewControllerTest, AShakeUnderAQuestionAnnouncesNothingAndClosesItLater) {
  swipeFirstInProgress();
  const auto question = alert();
  time.advance(0.5);
  shake();
  EXPECT_EQ(alert(), question);
  EXPECT_EQ(shown().at(1), "Horace the Smiley | -");
  time.advance(1.6);
  EXPECT_EQ(alert(), nullptr);
  EXPECT_EQ(store().inProgressChallenges.size(), 2u);
}

TEST_F(ChallengesTableViewControllerTest, ShakesDeliverTheHiddenChallengesLastFirst) {
  for (int i = 0; i < 3; ++i) {
    shake();
    time.advance(2);
  }
  const Lines lines = shown();
  EXPECT_EQ(Lines(lines.begin() + 1, lines.begin() + 4),
            (Lines{"Jane the Cactus | -", "Sally the Eye | -", "Horace the Smiley | -"}));
}

TEST_F(ChallengesTableViewControllerTest, TheFourthShakeDoesNothingAtAll) {
  for (int i = 0; i < 3; ++i) {
    shake();
    time.advance(2);
  }
  store().newChallenges.pop_back();
  const TableEar ear(table());
  shake();
  EXPECT_EQ(alert(), nullptr);
  EXPECT_EQ(ear.changes, 0);
  EXPECT_EQ(list().newChallenges.size(), 6u);
  EXPECT_EQ(fakes.mainQueue->pendingCount(), 0u);
}

TEST_F(ChallengesTableViewControllerTest, NoShakeIsHeardWhileTheAppDoesNotSupportIt) {
  UIApplication::sharedApplication()->setApplicationSupportsShakeToEdit(false);
  shake();
  EXPECT_EQ(alert(), nullptr);
  EXPECT_EQ(store().hiddenChallenges.size(), 3u);
}

TEST_F(ChallengesTableViewControllerTest, NoShakeIsHeardOnTheOtherTab) {
  tabs().pressTab(1);
  shake();
  EXPECT_EQ(alert(), nullptr);
  EXPECT_EQ(store().hiddenChallenges.size(), 3u);
}

TEST_F(ChallengesTableViewControllerTest, NoShakeIsHeardOnTheScreensAboveIt) {
  table().select(1);
  shake();
  time.advance(0.5);
  shake();
  EXPECT_EQ(store().hiddenChallenges.size(), 3u);
}

TEST_F(ChallengesTableViewControllerTest, NoShakeIsHeardUnderAPageThatCoversIt) {
  const auto page = makeViewController<UIViewController>();
  list().presentViewController(page, true);
  time.advance(0.5);
  shake();
  EXPECT_EQ(store().hiddenChallenges.size(), 3u);
}

TEST_F(ChallengesTableViewControllerTest, ShakesAreHeardAgainBackOnTheList) {
  tabs().pressTab(1);
  tabs().pressTab(0);
  shake();
  EXPECT_EQ(store().hiddenChallenges.size(), 2u);
}

TEST_F(ChallengesTableViewControllerTest, ATimerThatOutlivesTheScreenIsHarmless) {
  auto fresh = makeViewController<ChallengesTableViewController>();
  fresh->loadViewIfNeeded();
  fresh->motionEnded(UIEventSubtype::motionShake);
  ASSERT_NE(fresh->presentedViewController(), nullptr);
  const std::weak_ptr<ChallengesTableViewController> gone = fresh;
  fresh.reset();
  time.advance(2);
  EXPECT_TRUE(gone.expired());
}

}  // namespace
}  // namespace kindora
