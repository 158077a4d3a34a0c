// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/RejectAlert.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/fakes/ManualQueue.h"
#include "tests/support/ManualTime.h"

namespace kindora {
namespace {

class RejectAlertTest : public ::testing::Test {
 protected:
  RejectAlertTest() {
    challenge.title = "Cup o' Coffee";
    challenge.sender = std::make_shared<User>("Bob the Astronaut", nullptr, std::nullopt);
  }

  // Presents the alert and chooses one of its actions.
  void choose(const std::shared_ptr<UIAlertController>& alert, int action) {
    const auto presenter = makeViewController<UIViewController>();
    presenter->presentViewController(alert, true);
    time.advance(0.3);
    alert->choose(action);
    time.advance(0.3);
    EXPECT_EQ(presenter->presentedViewController(), nullptr);
  }
  std::function<void()> noted(const std::string& what) {
    return [this, what] { ran.push_back(what); };
  }

  ManualTime time{std::make_shared<ManualQueue>()};
  Challenge challenge;
  std::vector<std::string> ran;
};

TEST_F(RejectAlertTest, AsksForTheChallengeBetweenStraightQuotes) {
  EXPECT_EQ(rejectAlertForChallenge(challenge, {})->titleText(), "Reject \"Cup o' Coffee\"?");
}

TEST_F(RejectAlertTest, AnAbsentTitleReadsAsEmpty) {
  challenge.title = std::nullopt;
  EXPECT_EQ(rejectAlertForChallenge(challenge, {})->titleText(), "Reject \"\"?");
}

TEST_F(RejectAlertTest, NamesTheSender) {
  EXPECT_EQ(rejectAlertForChallenge(challenge, {})->message(),
            "Bob the Astronaut will be so disappointed.");
}

TEST_F(RejectAlertTest, AnAbsentSenderIsTheSender) {
  challenge.sender = nullptr;
  EXPECT_EQ(rejectAlertForChallenge(challenge, {})->message(),
            "The sender will be so disappointed.");
}

TEST_F(RejectAlertTest, IsAnAlertAndNoSheet) {
  EXPECT_EQ(rejectAlertForChallenge(challenge, {})->preferredStyle(),
            UIAlertControllerStyle::alert);
}

TEST_F(RejectAlertTest, OffersRejectBeforeNeverMind) {
  const auto alert = rejectAlertForChallenge(challenge, {});
  ASSERT_EQ(alert->actions().size(), 2u);
  EXPECT_EQ(alert->actions()[0].title, "Reject");
  EXPECT_EQ(alert->actions()[0].style, UIAlertActionStyle::destructive);
  EXPECT_EQ(alert->actions()[1].title, "Never Mind");
  EXPECT_EQ(alert->actions()[1].style, UIAlertActionStyle::cancel);
}

TEST_F(RejectAlertTest, LeavesThePresentingToTheCaller) {
  const auto alert = rejectAlertForChallenge(challenge, noted("reject"), noted("never mind"));
  time.advance(1);
  EXPECT_EQ(alert->presentingViewController(), nullptr);
  EXPECT_TRUE(ran.empty());
}

TEST_F(RejectAlertTest, RejectRunsTheFirstClosure) {
  choose(rejectAlertForChallenge(challenge, noted("reject"), noted("never mind")), 0);
  EXPECT_EQ(ran, std::vector<std::string>{"reject"});
}

TEST_F(RejectAlertTest, NeverMindRunsTheSecondClosure) {
  choose(rejectAlertForChallenge(challenge, noted("reject"), noted("never mind")), 1);
  EXPECT_EQ(ran, std::vector<std::string>{"never mind"});
}

TEST_F(RejectAlertTest, WithoutAClosureRejectOnlyCloses) {
  choose(rejectAlertForChallenge(challenge, {}, noted("never mind")), 0);
  EXPECT_TRUE(ran.empty());
}

TEST_F(RejectAlertTest, WithoutAClosureNeverMindOnlyCloses) {
  choose(rejectAlertForChallenge(challenge, noted("reject")), 1);
  EXPECT_TRUE(ran.empty());
}

TEST_F(RejectAlertTest, EveryCallMakesAnAlertOfItsOwn) {
  EXPECT_NE(rejectAlertForChallenge(challenge, {}), rejectAlertForChallenge(challenge, {}));
}

}  // namespace
}  // namespace kindora
