// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/inprogress/InProgressChallengeDetailViewController.h"

#include <functional>

#include "tests/support/app/AppFixture.h"

namespace kindora {
namespace {

using Screen = InProgressChallengeDetailViewController;

class InProgressChallengeDetailViewControllerTest : public AppFixture {
 protected:
  // The screen of the first challenge in progress, reached through the list.
  void open() {
    navigation().topViewController()->performSegueWithIdentifier("showInProgressChallenge",
                                                                 IndexPath{1, 0});
    time.advance(0.5);
  }
  static Screen& screen() { return top<Screen>(); }
};

TEST_F(InProgressChallengeDetailViewControllerTest, AMissingChallengeStops) {
  const auto orphan =
      mainStoryboard().instantiateViewController("InProgressChallengeDetailViewController");
  EXPECT_DEATH(orphan->loadViewIfNeeded(), "fatal error: the screen has no challenge");
}

TEST_F(InProgressChallengeDetailViewControllerTest, ShowsTheChallenge) {
  open();
  EXPECT_EQ(screen().imageView.lock()->image(), store().inProgressChallenges[0]->challengeImage);
  EXPECT_EQ(screen().challengeNameLabel.lock()->text(), "Catch Your Breath");
  EXPECT_EQ(screen().challengeDescriptionLabel.lock()->text(), "Get a breath of fresh air!");
}

TEST_F(InProgressChallengeDetailViewControllerTest, AbsentFieldsOfTheChallengeStayAbsent) {
  const ChallengeRef challenge = store().inProgressChallenges[0];
  challenge->title = std::nullopt;
  challenge->description = std::nullopt;
  challenge->challengeImage = nullptr;
  open();
  EXPECT_EQ(screen().imageView.lock()->image(), nullptr);
  EXPECT_EQ(screen().challengeNameLabel.lock()->text(), std::nullopt);
  EXPECT_EQ(screen().challengeDescriptionLabel.lock()->text(), std::nullopt);
}

TEST_F(InProgressChallengeDetailViewControllerTest, NamesTheSender) {
  open();
  EXPECT_EQ(screen().senderImageView.lock()->image(),
            store().inProgressChallenges[0]->sender->picture);
  EXPECT_EQ(screen().senderLabel.lock()->text(), "Josh the Whale sent you this challenge.");
}

TEST_F(InProgressChallengeDetailViewControllerTest, AnUnknownSenderIsSomeone) {
  store().inProgressChallenges[0]->sender = nullptr;
  open();
  EXPECT_EQ(screen().senderImageView.lock()->image(), nullptr);
  EXPECT_EQ(screen().senderLabel.lock()->text(), "Someone sent you this challenge.");
}

TEST_F(InProgressChallengeDetailViewControllerTest, IsTitledLikeTheChallenge) {
  open();
  EXPECT_EQ(screen().title(), QStringLiteral("Catch Your Breath"));
  EXPECT_EQ(screen().navigationItem()->title(), QStringLiteral("Catch Your Breath"));
}

TEST_F(InProgressChallengeDetailViewControllerTest, HasNoTitleWhenTheChallengeHasNone) {
  store().inProgressChallenges[0]->title = std::nullopt;
  open();
  EXPECT_TRUE(screen().title().isEmpty());
}

TEST_F(InProgressChallengeDetailViewControllerTest, OneMayGoBack) {
  open();
  EXPECT_TRUE(delegate().window->goBack());
  time.advance(0.5);
  EXPECT_EQ(navigation().viewControllers().size(), 1u);
}

TEST_F(InProgressChallengeDetailViewControllerTest, UnwindsToTheList) {
  open();
  screen().performSegueWithIdentifier("unwind");
  time.advance(0.5);
  EXPECT_EQ(navigation().viewControllers().size(), 1u);
}

TEST_F(InProgressChallengeDetailViewControllerTest, IsReleasedWhenItIsLeft) {
  open();
  const std::weak_ptr<UIViewController> gone = screen().weak_from_this();
  navigation().popViewController(true);
  time.advance(0.5);
  EXPECT_TRUE(gone.expired());
}

// An outlet that the storyboard forgot.
struct ForgottenOutlet {
  const char* name;
  std::function<void(Screen&)> forget;
};

class InProgressChallengeDetailViewControllerOutletTest
    : public InProgressChallengeDetailViewControllerTest,
      public ::testing::WithParamInterface<ForgottenOutlet> {};

TEST_P(InProgressChallengeDetailViewControllerOutletTest, StopsTheLoading) {
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
  made->challenge = store().inProgressChallenges[0];
  EXPECT_DEATH(made->loadViewIfNeeded(), "fatal error: an outlet is not connected");
}

INSTANTIATE_TEST_SUITE_P(
    Forgotten, InProgressChallengeDetailViewControllerOutletTest,
    ::testing::Values(
        ForgottenOutlet{"ImageView", [](Screen& s) { s.imageView.reset(); }},
        ForgottenOutlet{"NameLabel", [](Screen& s) { s.challengeNameLabel.reset(); }},
        ForgottenOutlet{"DescriptionLabel", [](Screen& s) { s.challengeDescriptionLabel.reset(); }},
        ForgottenOutlet{"SenderImageView", [](Screen& s) { s.senderImageView.reset(); }},
        ForgottenOutlet{"SenderLabel", [](Screen& s) { s.senderLabel.reset(); }}),
    [](const auto& instance) { return std::string(instance.param.name); });

}  // namespace
}  // namespace kindora
