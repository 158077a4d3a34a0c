// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/newchallenge/NewChallengeDetailViewController.h"

#include <limits>

#include "platform/qt/toolkit/UIApplication.h"
#include "tests/support/AppFixture.h"

namespace kindora {
namespace {

// The reveal screen of the first new challenge, reached through the list.
class NewChallenge : public AppFixture {
 protected:
  NewChallenge() {
    navigation().topViewController()->performSegueWithIdentifier("showNewChallenge",
                                                                 IndexPath{0, 0});
    time.advance(0.5);
  }

  static NewChallengeDetailViewController& screen() {
    return top<NewChallengeDetailViewController>();
  }

  void report(double progress) {
    screen().jxScratchImageView(*screen().scratchImageView.lock(), progress);
  }

  void reveal() {
    report(0.71);
    time.advance(2);
  }
};

TEST_F(NewChallenge, RevealStepsFollowOneAnother) {
  const auto cover = screen().scratchImageView.lock();
  report(0.71);
  time.settle();
  time.advance(0.24);
  EXPECT_NE(cover->superview(), nullptr);
  time.advance(0.02);
  EXPECT_EQ(cover->superview(), nullptr);
  time.advance(0.70);
  EXPECT_LT(screen().view()->presentation().layout, 1);
  EXPECT_GT(screen().view()->presentation().layout, 0);
  EXPECT_EQ(screen().challengeNameLabel.lock()->alpha(), 0);
  time.advance(0.06);
  EXPECT_EQ(screen().view()->presentation().layout, 1);
  EXPECT_EQ(screen().challengeNameLabel.lock()->alpha(), 1);
  EXPECT_EQ(screen().challengeNameLabel.lock()->presentation().alpha, 0);
  EXPECT_FALSE(screen().rejectButton.lock()->isEnabled());
  time.advance(0.5);
  EXPECT_EQ(screen().challengeNameLabel.lock()->presentation().alpha, 1);
  EXPECT_TRUE(screen().rejectButton.lock()->isEnabled());
  time.advance(0.25);
  EXPECT_EQ(screen().rejectButton.lock()->presentation().alpha, 1);
}

}  // namespace
}  // namespace kindora
