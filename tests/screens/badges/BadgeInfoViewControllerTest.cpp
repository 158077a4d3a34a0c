// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/badges/BadgeInfoViewController.h"

#include <functional>
#include <string>

#include "screens/picker/KindoraTableViewController.h"
#include "tests/screens/badges/ComeBack.h"
#include "tests/support/app/AppFixture.h"

namespace kindora {
namespace {

using Screen = BadgeInfoViewController;

// --- What it says ---

struct Said {
  const char* name;
  bool passedOn;
  std::int64_t number;
  bool created;
  const char* text;
};

class BadgeInfoTextTest : public ::testing::TestWithParam<Said> {};

TEST_P(BadgeInfoTextTest, SaysWhatTheUserDid) {
  Challenge challenge;
  challenge.passedOn = GetParam().passedOn;
  challenge.numSincePassedOn = GetParam().number;
  challenge.created = GetParam().created;
  EXPECT_EQ(badgeInfoText(challenge), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, BadgeInfoTextTest,
    ::testing::Values(Said{"Completed", false, 0, false,
                           "You've completed this challenge!\nNow Kindora to a friend!"},
                      Said{"Created", false, 0, true,
                           "You created this challenge!\nNow Kindora to a friend!"},
                      Said{"PassedOn", true, 0, false, "You've passed this on!"},
                      Said{"CreatedAndPassedOn", true, 0, true, "You've passed this on!"},
                      Said{"OnePersonSince", true, 1, false,
                           "1 person has completed this challenge since you passed it on!"},
                      Said{"TwoPeopleSince", true, 2, false,
                           "2 people have completed this challenge since you passed it on!"},
                      Said{"ManyPeopleSince", true, 1234567, true,
                           "1234567 people have completed this challenge since you passed it on!"},
                      Said{"PeopleWithoutPassingOn", false, 5, false,
                           "You've completed this challenge!\nNow Kindora to a friend!"},
                      Said{"PeopleWithoutPassingOnWhatWasCreated", false, 5, true,
                           "You created this challenge!\nNow Kindora to a friend!"}),
    [](const auto& instance) { return std::string(instance.param.name); });

// --- The screen ---

// The page of a badge, pushed onto the first tab.
class BadgeInfoViewControllerTest : public AppFixture {
 protected:
  void open() {
    screen = std::dynamic_pointer_cast<Screen>(
        mainStoryboard().instantiateViewController("BadgeInfoViewController"));
    screen->challenge = challenge;
    navigation().pushViewController(screen, false);
  }
  [[nodiscard]] std::optional<std::string> info() const { return screen->infoLabel.lock()->text(); }

  const ChallengeRef challenge = store().inProgressChallenges[0];
  std::shared_ptr<Screen> screen;
};

TEST_F(BadgeInfoViewControllerTest, AMissingChallengeStops) {
  const auto orphan = mainStoryboard().instantiateViewController("BadgeInfoViewController");
  EXPECT_DEATH(orphan->loadViewIfNeeded(), "fatal error: the screen has no challenge");
}

TEST_F(BadgeInfoViewControllerTest, ShowsTheChallenge) {
  open();
  EXPECT_EQ(screen->title(), QStringLiteral("Catch Your Breath"));
  EXPECT_EQ(screen->imageView.lock()->image(), challenge->challengeImage);
  EXPECT_EQ(screen->challengeNameLabel.lock()->text(), "Catch Your Breath");
  EXPECT_EQ(screen->challengeDescriptionLabel.lock()->text(), "Get a breath of fresh air!");
  EXPECT_EQ(info(), "You've completed this challenge!\nNow Kindora to a friend!");
}

TEST_F(BadgeInfoViewControllerTest, AbsentFieldsStayAbsent) {
  challenge->title = std::nullopt;
  challenge->description = std::nullopt;
  challenge->challengeImage = nullptr;
  open();
  EXPECT_TRUE(screen->title().isEmpty());
  EXPECT_EQ(screen->imageView.lock()->image(), nullptr);
  EXPECT_EQ(screen->challengeNameLabel.lock()->text(), std::nullopt);
  EXPECT_EQ(screen->challengeDescriptionLabel.lock()->text(), std::nullopt);
}

TEST_F(BadgeInfoViewControllerTest, BearsAStampThatShowsAsAWhole) {
  open();
  const auto stamp = screen->stampImageView.lock();
  EXPECT_EQ(stamp->image(), fakes.bundle->imageNamed("completed"));
  EXPECT_EQ(stamp->contentMode(), UIViewContentMode::scaleAspectFit);
}

TEST_F(BadgeInfoViewControllerTest, WhatWasCreatedIsNotStampedAsCompleted) {
  open();
  EXPECT_FALSE(screen->stampImageView.lock()->isHidden());
  challenge->created = true;
  open();
  EXPECT_TRUE(screen->stampImageView.lock()->isHidden());
}

TEST_F(BadgeInfoViewControllerTest, IsFilledAgainEachTimeItAppears) {
  open();
  navigation().pushViewController(makeViewController<UIViewController>(), false);
  challenge->passedOn = true;
  navigation().popViewController(false);
  EXPECT_EQ(info(), "You've passed this on!");
}

TEST_F(BadgeInfoViewControllerTest, KindoraLeadsToThePickerOfTheChallenge) {
  open();
  screen->kindoraTapped();
  EXPECT_EQ(top<KindoraTableViewController>().challenge, challenge);
}

TEST_F(BadgeInfoViewControllerTest, AChallengeMayBePassedOnAgain) {
  challenge->passedOn = true;
  open();
  screen->kindoraTapped();
  EXPECT_EQ(top<KindoraTableViewController>().challenge, challenge);
}

TEST_F(BadgeInfoViewControllerTest, AfterSendingItReadsThatItWasPassedOn) {
  open();
  screen->kindoraTapped();
  time.advance(0.5);
  top<KindoraTableViewController>().alertSendChallenge();
  time.advance(3);
  EXPECT_EQ(&top<Screen>(), screen.get());
  EXPECT_EQ(info(), "You've passed this on!");
}

TEST_F(BadgeInfoViewControllerTest, ThePickerMayComeBackHere) {
  open();
  screen->kindoraTapped();
  time.advance(0.5);
  ASSERT_NE(navigation().topViewController(), screen);
  comeBackFromAbove(navigation(), "unwindToBadgeInfo");
  time.advance(0.5);
  EXPECT_EQ(&top<Screen>(), screen.get());
  EXPECT_TRUE(screen->isVisible());
}

struct ForgottenOutlet {
  const char* name;
  std::function<void(Screen&)> forget;
};

class BadgeInfoViewControllerOutletTest : public BadgeInfoViewControllerTest,
                                          public ::testing::WithParamInterface<ForgottenOutlet> {};

TEST_P(BadgeInfoViewControllerOutletTest, StopsTheLoading) {
  const UIStoryboard storyboard({{.identifier = "screen",
                                  .make = [] { return makeViewController<Screen>(); },
                                  .connectOutlets =
                                      [](UIViewController& controller) {
                                        auto& made = dynamic_cast<Screen&>(controller);
                                        made.connectOutlets();
                                        GetParam().forget(made);
                                      }}});
  const auto made =
      std::dynamic_pointer_cast<Screen>(storyboard.instantiateViewController("screen"));
  made->challenge = challenge;
  EXPECT_DEATH(made->loadViewIfNeeded(), "fatal error: an outlet is not connected");
}

INSTANTIATE_TEST_SUITE_P(
    Forgotten, BadgeInfoViewControllerOutletTest,
    ::testing::Values(ForgottenOutlet{"InfoLabel", [](Screen& s) { s.infoLabel.reset(); }},
                      ForgottenOutlet{"ImageView", [](Screen& s) { s.imageView.reset(); }},
                      ForgottenOutlet{"NameLabel", [](Screen& s) { s.challengeNameLabel.reset(); }},
                      ForgottenOutlet{"DescriptionLabel",
                                      [](Screen& s) { s.challengeDescriptionLabel.reset(); }}),
    [](const auto& instance) { return std::string(instance.param.name); });

}  // namespace
}  // namespace kindora
