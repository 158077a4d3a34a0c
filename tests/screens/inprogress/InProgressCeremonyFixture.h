// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <string>

#include "effects/qt/LayerAnimations.h"
#include "screens/badges/BadgeInfoViewController.h"
#include "screens/inprogress/InProgressChallengeDetailViewController.h"
#include "screens/picker/KindoraTableViewController.h"
#include "tests/support/app/AppFixture.h"
#include "tests/toolkit/view/FakeRenderer.h"
#include "toolkit/view/UIControl.h"

namespace kindora {

inline constexpr CGRect kPicture{{35, 100}, {320, 320}};
inline constexpr CGPoint kPictureCentre{195, 260};
inline constexpr CGPoint kPageOrigin{0, 64};
inline constexpr CGPoint kBarOrigin{0, 795};
// The bottom middle of the second of two tabs on a bar of 390 x 49, in the page's space.
inline constexpr CGPoint kIntoTheTab{292.5, 795 + 49 - 64};

// The same with the phone on its side.
inline constexpr CGRect kTurnedPicture{{352, 72}, {140, 140}};
inline constexpr CGPoint kTurnedPictureCentre{422, 142};
inline constexpr CGPoint kTurnedBarOrigin{0, 341};
inline constexpr CGPoint kIntoTheTurnedTab{633, 341 + 49 - 64};

// The screen of the first challenge in progress, laid out as on a phone.
class InProgressCeremonyTest : public AppFixture {
 protected:
  using Screen = InProgressChallengeDetailViewController;

  InProgressCeremonyTest() {
    challenge = store().inProgressChallenges[0];
    navigation().topViewController()->performSegueWithIdentifier("showInProgressChallenge",
                                                                 IndexPath{1, 0});
    time.advance(0.5);
    layOut();
  }

  void layOut() {
    screen().imageView.lock()->reportFrame(kPicture);
    page_.emplace(root(), kPageOrigin);
    bar_.emplace(tab("tabBar"), kBarOrigin);
    tab("tab0").reportFrame({{0, 0}, {195, 49}});
    tab("tab1").reportFrame({{195, 0}, {195, 49}});
  }
  // As by a turn of the phone.
  void turn() {
    bar_.emplace(tab("tabBar"), kTurnedBarOrigin);
    tab("tabBar").reportFrame({{0, 341}, {844, 49}});
    tab("tab0").reportFrame({{0, 0}, {422, 49}});
    tab("tab1").reportFrame({{422, 0}, {422, 49}});
    screen().imageView.lock()->reportFrame(kTurnedPicture);
  }
  static UIView& tab(const char* name) { return *tabs().tabBar()->outlet(name); }
  static Screen& screen() { return top<Screen>(); }
  static UIView& root() { return *screen().view(); }
  static UIButton& button() { return dynamic_cast<UIButton&>(*screen().outlet("completeButton")); }
  static bool isOnTop() {
    return dynamic_cast<Screen*>(navigation().topViewController().get()) != nullptr;
  }

  void complete() {
    elapsed_ = 0;
    screen().completePressed();
  }
  // Moves to that many seconds after the button was pressed.
  void until(double seconds) {
    time.advance(seconds - elapsed_);
    elapsed_ = seconds;
  }
  void completeUntil(double seconds) {
    complete();
    until(seconds);
  }
  void choose(const char* title) {
    const auto shown = alert();
    ASSERT_NE(shown, nullptr);
    const auto found = std::ranges::find(shown->actions(), title, &UIAlertAction::title);
    ASSERT_NE(found, shown->actions().end());
    shown->choose(static_cast<int>(found - shown->actions().begin()));
    time.advance(1);
  }
  void answer(const char* title) {
    completeUntil(2.5);
    choose(title);
  }

  static const UIViewRef& medal() { return screen().medalAnimationView; }
  static CGPoint medalCentre() { return centerOf(medal()->presentation().frame); }
  // The view on top of the page, once the stamp is there.
  static const UIImageView* stamp() {
    const auto* top = dynamic_cast<const UIImageView*>(root().subviews().back().get());
    return top != nullptr && top->placer() == UIViewPlacer::record ? top : nullptr;
  }
  static UITabBarItem& badges() { return *tabs().viewControllers()[1]->tabBarItem(); }
  static UINavigationController& badgesStack() {
    return dynamic_cast<UINavigationController&>(*tabs().viewControllers()[1]);
  }

  ChallengeRef challenge;

 private:
  double elapsed_ = 0;
  std::optional<FakeRenderer> page_;
  std::optional<FakeRenderer> bar_;
};

}  // namespace kindora
