// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/screens/picker/KindoraFixture.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Anna and Diana are ticked, and the challenge is sent.
class KindoraSendingTest : public KindoraTableViewControllerTest {
 protected:
  KindoraSendingTest() {
    press(0);
    press(1);
  }

  void pressSend() {
    elapsed_ = 0;
    send().press();
  }
  // Moves to that many seconds after Send was pressed.
  void until(double seconds) {
    time.advance(seconds - elapsed_);
    elapsed_ = seconds;
  }
  void sendUntil(double seconds) {
    pressSend();
    until(seconds);
  }
  static bool isCovered() { return hasCoveringSubview(*tabs().view()); }
  [[nodiscard]] bool isOnTop() const { return navigation().topViewController() == screen; }
  static std::string alertTitle() { return alert()->titleText().value_or("(none)"); }
  // Straight to the confirmation.
  std::string confirmation() {
    screen->alertSendChallenge();
    return alertTitle();
  }

 private:
  double elapsed_ = 0;
};

TEST_F(KindoraSendingTest, EndsTheEditing) {
  bar().press();
  pressSend();
  EXPECT_FALSE(bar().isFirstResponder());
}

TEST_F(KindoraSendingTest, CoversTheWholeTabBarController) {
  EXPECT_FALSE(isCovered());
  pressSend();
  EXPECT_TRUE(isCovered());
}

TEST_F(KindoraSendingTest, NoTabIsPressedMeanwhile) {
  sendUntil(1);
  tabs().pressTab(1);
  EXPECT_EQ(tabs().selectedIndex(), 0);
  tabs().pressTab(0);
  EXPECT_TRUE(isOnTop());
}

TEST_F(KindoraSendingTest, OneCannotGoBackMeanwhile) {
  sendUntil(1);
  EXPECT_TRUE(delegate().window->goBack());
  until(2);
  EXPECT_TRUE(isOnTop());
}

TEST_F(KindoraSendingTest, TheAnimationTakes495Seconds) {
  sendUntil(4.94);
  EXPECT_TRUE(isCovered());
  EXPECT_EQ(alert(), nullptr);
  until(4.97);
  EXPECT_FALSE(isCovered());
  EXPECT_NE(alert(), nullptr);
}

TEST_F(KindoraSendingTest, ConfirmsWithTitleAndNumberAndWithoutAnyButton) {
  sendUntil(4.97);
  EXPECT_EQ(alertTitle(), "Passed on \"Cup o' Coffee\" to 2 friends!");
  EXPECT_EQ(alert()->message(), std::nullopt);
  EXPECT_EQ(alert()->preferredStyle(), UIAlertControllerStyle::alert);
  EXPECT_THAT(alert()->actions(), IsEmpty());
}

TEST_F(KindoraSendingTest, ConfirmsASingleFriend) {
  press(0);
  EXPECT_EQ(confirmation(), "Passed on \"Cup o' Coffee\" to 1 friend!");
}

TEST_F(KindoraSendingTest, ConfirmsAChallengeWithoutATitle) {
  challenge->title = std::nullopt;
  EXPECT_EQ(confirmation(), "Passed on \"this challenge\" to 2 friends!");
}

TEST_F(KindoraSendingTest, ConfirmsAnEmptyTitleAsItIs) {
  challenge->title = "";
  EXPECT_EQ(confirmation(), "Passed on \"\" to 2 friends!");
}

TEST_F(KindoraSendingTest, ConfirmsNobodyAsFriendsToo) {
  press(0);
  press(1);
  EXPECT_EQ(confirmation(), "Passed on \"Cup o' Coffee\" to 0 friends!");
}

TEST_F(KindoraSendingTest, TheConfirmationStaysTwoSeconds) {
  screen->alertSendChallenge();
  until(1.99);
  EXPECT_EQ(alert()->presentationProgress(), 1);
  until(2.02);
  EXPECT_LT(alert()->presentationProgress(), 1);
}

TEST_F(KindoraSendingTest, OnlyTheEndOfTheDismissalMakesItPassedOn) {
  screen->alertSendChallenge();
  until(2.24);
  EXPECT_FALSE(challenge->passedOn);
  EXPECT_FALSE(screen->navigationItem()->prompt().isEmpty());
  EXPECT_TRUE(isOnTop());
  until(2.27);
  EXPECT_TRUE(challenge->passedOn);
  EXPECT_TRUE(screen->navigationItem()->prompt().isEmpty());
  EXPECT_FALSE(isOnTop());
}

TEST_F(KindoraSendingTest, IsPassedOnBeforeThePromptGoesAndTheScreenAfterIt) {
  bool passedOn = false;
  bool stillThere = false;
  QObject::connect(screen->navigationItem(), &UINavigationItem::changed, screen.get(), [&] {
    passedOn = challenge->passedOn;
    stillThere = isOnTop();
  });
  screen->alertSendChallenge();
  until(3);
  EXPECT_TRUE(passedOn);
  EXPECT_TRUE(stillThere);
}

TEST_F(KindoraSendingTest, LeavesAnimated) {
  screen->alertSendChallenge();
  until(2.3);
  EXPECT_TRUE(navigation().isTransitioning());
  until(3);
  EXPECT_FALSE(navigation().isTransitioning());
}

TEST_F(KindoraSendingTest, TheConfirmationCannotBeClosedByTheUser) {
  screen->alertSendChallenge();
  until(1);
  delegate().window->goBack();
  until(1.9);
  EXPECT_NE(alert(), nullptr);
  EXPECT_TRUE(isOnTop());
}

TEST_F(KindoraSendingTest, FromPressToEnd) {
  sendUntil(4.95 + 2 + 0.25 - 0.02);
  EXPECT_FALSE(challenge->passedOn);
  until(4.95 + 2 + 0.25 + 0.05);
  EXPECT_TRUE(challenge->passedOn);
}

TEST_F(KindoraSendingTest, ChangesNothingButThePassingOn) {
  const auto before = store().completedChallenges;
  const auto inProgress = store().inProgressChallenges;
  sendUntil(8);
  EXPECT_EQ(challenge->numSincePassedOn, 0);
  EXPECT_EQ(store().completedChallenges, before);
  EXPECT_EQ(store().inProgressChallenges, inProgress);
  EXPECT_THAT(friends(), ElementsAre(anna, diana, joe));
  EXPECT_EQ(anna->name, "Anna");
}

TEST_F(KindoraSendingTest, IsReleasedInTheEnd) {
  sendUntil(8);
  const std::weak_ptr<Screen> gone = screen;
  screen.reset();
  time.settle();
  EXPECT_TRUE(gone.expired());
}

TEST_F(KindoraSendingTest, AChallengeWithoutAPictureIsSentToo) {
  challenge->challengeImage = nullptr;
  sendUntil(8);
  EXPECT_TRUE(challenge->passedOn);
}

TEST_F(KindoraSendingTest, WithoutAChallengeItStopsInTheEnd) {
  screen->challenge = nullptr;
  screen->alertSendChallenge();
  until(2);
  EXPECT_DEATH(until(3), "fatal error: the screen has no challenge");
}

TEST_F(KindoraSendingTest, TheScreenMayGoWhileItSends) {
  pressSend();
  until(1);
  navigation().popViewController(false);
  screen.reset();
  until(8);
  EXPECT_FALSE(challenge->passedOn);
  EXPECT_EQ(alert(), nullptr);
  EXPECT_FALSE(isCovered());
}

}  // namespace
}  // namespace kindora
