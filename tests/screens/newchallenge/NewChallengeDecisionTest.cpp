// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/screens/newchallenge/NewChallengeFixture.h"

namespace kindora {
namespace {

// --- Accepting ---

TEST_F(OpenNewChallengeDetailViewControllerTest,
       AcceptingMovesTheChallengeToTheEndOfThoseInProgress) {
  const ChallengeRef challenge = screen().challenge;
  reveal();
  screen().accepted();
  EXPECT_EQ(store().newChallenges.size(), 2u);
  ASSERT_EQ(store().inProgressChallenges.size(), 3u);
  EXPECT_EQ(store().inProgressChallenges.back(), challenge);
}

TEST_F(OpenNewChallengeDetailViewControllerTest, AcceptingSaysWhatComesNext) {
  reveal();
  screen().accepted();
  ASSERT_NE(alert(), nullptr);
  EXPECT_EQ(alert()->titleText(), "Challenge accepted!");
  EXPECT_EQ(alert()->message(),
            "This challenge is now in progress. Come back when you've completed it.");
  EXPECT_TRUE(alert()->actions().empty());
  EXPECT_EQ(alert()->preferredStyle(), UIAlertControllerStyle::alert);
  EXPECT_EQ(alert()->presentationProgress(), 0);
}

TEST_F(OpenNewChallengeDetailViewControllerTest, TheStoreHasAcceptedBeforeTheAlertComes) {
  reveal();
  std::size_t inProgressThen = 0;
  QObject::connect(delegate().window->presentations(), &QAbstractItemModel::rowsInserted,
                   [&] { inProgressThen = store().inProgressChallenges.size(); });
  screen().accepted();
  EXPECT_EQ(inProgressThen, 3u);
}

TEST_F(OpenNewChallengeDetailViewControllerTest, TheAlertStaysFor2500Milliseconds) {
  reveal();
  screen().accepted();
  time.advance(2.499);
  EXPECT_EQ(alert()->presentationProgress(), 1);
  time.advance(0.010);
  EXPECT_LT(alert()->presentationProgress(), 1);
}

TEST_F(OpenNewChallengeDetailViewControllerTest, TheScreenUnwindsOnlyWhenTheAlertHasGone) {
  reveal();
  screen().accepted();
  time.advance(2.745);
  EXPECT_NE(alert(), nullptr);
  EXPECT_TRUE(isOnTop());
  EXPECT_FALSE(navigation().isTransitioning());
  time.advance(0.010);
  EXPECT_EQ(alert(), nullptr);
  EXPECT_FALSE(isOnTop());
  EXPECT_TRUE(navigation().isTransitioning());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, TheListShowsWhatWasAccepted) {
  const ChallengeRef challenge = screen().challenge;
  reveal();
  screen().accepted();
  time.advance(3.5);
  const auto& list = top<ChallengesTableViewController>();
  EXPECT_TRUE(list.isVisible());
  EXPECT_EQ(list.inProgress.back(), challenge);
  EXPECT_EQ(list.newChallenges.size(), 2u);
}

TEST_F(OpenNewChallengeDetailViewControllerTest, NobodyClosesTheAlertByHand) {
  reveal();
  screen().accepted();
  time.advance(0.5);
  EXPECT_TRUE(delegate().window->goBack());
  alert()->choose(0);
  time.advance(1);
  EXPECT_NE(alert(), nullptr);
}

TEST_F(OpenNewChallengeDetailViewControllerTest, AcceptingTwiceAcceptsOnceAndUnwindsOnce) {
  reveal();
  screen().accepted();
  screen().accepted();
  EXPECT_EQ(delegate().window->presentations()->count(), 1);
  EXPECT_EQ(store().inProgressChallenges.size(), 3u);
  time.advance(4);
  EXPECT_EQ(alert(), nullptr);
  EXPECT_EQ(navigation().viewControllers().size(), 1u);
}

TEST_F(OpenNewChallengeDetailViewControllerTest, TheTimerLeavesAnotherAlertAlone) {
  reveal();
  screen().rejected();
  const auto question = alert();
  screen().accepted();
  time.advance(4);
  EXPECT_EQ(alert(), question);
  EXPECT_EQ(question->presentationProgress(), 1);
}

// --- Rejecting ---

TEST_F(OpenNewChallengeDetailViewControllerTest, RejectingAsksFirst) {
  reveal();
  screen().rejected();
  ASSERT_NE(alert(), nullptr);
  EXPECT_EQ(alert()->titleText(), "Reject \"Cup o' Coffee\"?");
  EXPECT_EQ(alert()->message(), "Bob the Astronaut will be so disappointed.");
  EXPECT_EQ(alert()->actionTitles(),
            QStringList({QStringLiteral("Reject"), QStringLiteral("Never Mind")}));
  EXPECT_EQ(alert()->presentationProgress(), 0);
  EXPECT_EQ(store().newChallenges.size(), 3u);
}

TEST_F(OpenNewChallengeDetailViewControllerTest, TheQuestionDoesWithoutASender) {
  screen().challenge->sender = nullptr;
  screen().rejected();
  EXPECT_EQ(alert()->message(), "The sender will be so disappointed.");
}

TEST_F(OpenNewChallengeDetailViewControllerTest, NeverMindHasNothingToRun) {
  screen().rejected();
  EXPECT_TRUE(alert()->actions()[0].handler);
  EXPECT_FALSE(alert()->actions()[1].handler);
}

TEST_F(OpenNewChallengeDetailViewControllerTest, RejectTakesTheChallengeOutAndUnwinds) {
  const ChallengeRef challenge = screen().challenge;
  reveal();
  screen().rejected();
  time.advance(0.5);
  alert()->choose(0);
  EXPECT_TRUE(isOnTop());
  time.advance(1);
  EXPECT_EQ(std::ranges::find(store().newChallenges, challenge), store().newChallenges.end());
  EXPECT_EQ(store().newChallenges.size(), 2u);
  EXPECT_EQ(store().inProgressChallenges.size(), 2u);
  EXPECT_EQ(top<ChallengesTableViewController>().newChallenges.size(), 2u);
}

TEST_F(OpenNewChallengeDetailViewControllerTest, NeverMindLeavesEverythingAsItWas) {
  reveal();
  screen().rejected();
  time.advance(0.5);
  alert()->choose(1);
  time.advance(1);
  EXPECT_EQ(alert(), nullptr);
  EXPECT_TRUE(isOnTop());
  EXPECT_EQ(store().newChallenges.size(), 3u);
  EXPECT_TRUE(screen().doneScratching());
  for (const auto& button : screen().buttons) {
    EXPECT_TRUE(button.lock()->isEnabled());
    EXPECT_EQ(button.lock()->presentation().alpha, 1);
  }
}

TEST_F(OpenNewChallengeDetailViewControllerTest, AfterNeverMindOneMayStillAccept) {
  reveal();
  screen().rejected();
  time.advance(0.5);
  alert()->choose(1);
  time.advance(0.5);
  screen().accepted();
  EXPECT_EQ(alert()->titleText(), "Challenge accepted!");
}

// --- What outlives the screen ---

TEST_F(OpenNewChallengeDetailViewControllerTest, AReportThatComesAfterTheScreenHasGoneIsHarmless) {
  const std::weak_ptr<UIViewController> gone = screen().weak_from_this();
  report(0.9);
  navigation().popViewController(false);
  ASSERT_TRUE(gone.expired());
  time.advance(2);
  EXPECT_FALSE(isOnTop());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, ARevealThatOutlivesTheScreenIsHarmless) {
  const std::weak_ptr<UIViewController> gone = screen().weak_from_this();
  reportNow(0.9);
  time.advance(0.3);
  navigation().popViewController(false);
  time.advance(3);
  EXPECT_TRUE(gone.expired());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, ATimerThatOutlivesTheScreenIsHarmless) {
  const std::weak_ptr<UIViewController> gone = screen().weak_from_this();
  screen().accepted();
  const auto said = alert();
  navigation().popViewController(false);
  ASSERT_TRUE(gone.expired());
  time.advance(4);
  EXPECT_EQ(navigation().viewControllers().size(), 1u);
  // The alert was the screen's to close, and nobody else does.
  EXPECT_EQ(alert(), said);
  EXPECT_EQ(said->presentationProgress(), 1);
}

TEST_F(OpenNewChallengeDetailViewControllerTest, IsReleasedWithItsViewsWhenItIsLeft) {
  const std::weak_ptr<UIViewController> gone = screen().weak_from_this();
  const std::weak_ptr<UIView> view = screen().view();
  const QPointer<UIViewController> object = &screen();
  reveal();
  screen().accepted();
  time.advance(3.5);
  EXPECT_TRUE(gone.expired());
  EXPECT_TRUE(view.expired());
  EXPECT_TRUE(object.isNull());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, ARejectedChallengeIsReleased) {
  const std::weak_ptr<Challenge> challenge = screen().challenge;
  reveal();
  screen().rejected();
  time.advance(0.5);
  alert()->choose(0);
  time.advance(1);
  EXPECT_TRUE(challenge.expired());
}

}  // namespace
}  // namespace kindora
