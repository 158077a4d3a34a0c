// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "screens/newchallenge/NewChallengeDetailViewController.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

#include "screens/challenges/ChallengesTableViewController.h"
#include "tests/support/app/AppFixture.h"
#include "toolkit/controllers/UIApplication.h"

namespace kindora {

// The reveal screen of the first new challenge, reached through the list.
class NewChallengeDetailViewControllerTest : public AppFixture {
 protected:
  using Screen = NewChallengeDetailViewController;

  void open() {
    navigation().topViewController()->performSegueWithIdentifier("showNewChallenge",
                                                                 IndexPath{0, 0});
    time.advance(0.5);
  }
  static Screen& screen() { return top<Screen>(); }
  static std::shared_ptr<JxScratchImageView> cover() { return screen().scratchImageView.lock(); }
  static bool isOnTop() {
    return dynamic_cast<Screen*>(navigation().topViewController().get()) != nullptr;
  }

  void report(double progress) { screen().jxScratchImageView(*cover(), progress); }
  void reportNow(double progress) {
    report(progress);
    time.settle();
  }
  void reveal() {
    report(0.71);
    time.advance(2);
  }
  static bool wayBackIsHidden() { return screen().navigationItem()->hidesBackButton(); }
};

class OpenNewChallengeDetailViewControllerTest : public NewChallengeDetailViewControllerTest {
 protected:
  OpenNewChallengeDetailViewControllerTest() { open(); }
};

}  // namespace kindora
