// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/legacy/QavAlertViewCoordinator.h"

#include <gmock/gmock.h>

#include <thread>

#include "tests/alerts/legacy/AlertFixture.h"

namespace kindora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class QavAlertViewCoordinatorTest : public AlertFixture {
 protected:
  using AlertRef = std::shared_ptr<QavAlertView>;

  // Brings the alert onto the screen and forgets the events of that.
  void bringUp(const AlertRef& wanted) {
    coordinator.presentAlert(wanted);
    endTransition();
    log.clear();
  }

  QavAlertViewCoordinator coordinator{environment()};
  AlertRef a = alert("A");
  AlertRef b = alert("B");
  AlertRef c = alert("C");
  AlertRef d = alert("D");
  AlertRef x = alert("X");
};

TEST_F(QavAlertViewCoordinatorTest, AlertComesAndGoesInOrder) {
  coordinator.presentAlert(a);
  EXPECT_THAT(events(),
              ElementsAre("user dim", "alert key", "A will present", "show A for nothing"));
  endTransition();
  EXPECT_THAT(events(), ElementsAre("A did present"));
  coordinator.dismissAlert(a, 0, true);
  EXPECT_THAT(events(), ElementsAre("A will dismiss 0", "user undim", "show nothing for A"));
  endTransition();
  EXPECT_THAT(events(), ElementsAre("user key", "alert released", "A did dismiss 0"));
}

TEST_F(QavAlertViewCoordinatorTest, CoveredAlertComesBackAndIsToldThatItWasPresentedAlone) {
  bringUp(a);
  coordinator.presentAlert(b);
  EXPECT_THAT(events(), ElementsAre("B will present", "show B for A"));
  endTransition();
  EXPECT_THAT(events(), ElementsAre("B did present"));
  EXPECT_THAT(coordinator.alerts(), ElementsAre(a, b));
  coordinator.dismissAlert(b, 1, true);
  EXPECT_THAT(events(), ElementsAre("B will dismiss 1", "show A for B"));
  endTransition();
  EXPECT_THAT(events(), ElementsAre("B did dismiss 1", "A did present"));
  coordinator.dismissAlert(a, 0, true);
  EXPECT_THAT(events(), ElementsAre("A will dismiss 0", "user undim", "show nothing for A"));
  endTransition();
  EXPECT_THAT(events(), ElementsAre("user key", "alert released", "A did dismiss 0"));
}

TEST_F(QavAlertViewCoordinatorTest, ThreeAlertsAtOnceComeOneAfterTheOther) {
  coordinator.presentAlert(a);
  coordinator.presentAlert(b);
  coordinator.presentAlert(c);
  EXPECT_THAT(events(),
              ElementsAre("user dim", "alert key", "A will present", "show A for nothing"));
  EXPECT_THAT(coordinator.alerts(), ElementsAre(a)) << "postponed alerts are not on the stack";
  endTransition();
  EXPECT_THAT(events(), ElementsAre("A did present", "B will present", "show B for A"));
  endTransition();
  EXPECT_THAT(events(), ElementsAre("B did present", "C will present", "show C for B"));
  endTransition();
  EXPECT_THAT(events(), ElementsAre("C did present"));
  EXPECT_THAT(coordinator.alerts(), ElementsAre(a, b, c));
}

TEST_F(QavAlertViewCoordinatorTest, CoveredAlertIsDismissedAtOnce) {
  bringUp(a);
  bringUp(b);
  coordinator.dismissAlert(a, 1, true);
  EXPECT_THAT(events(), ElementsAre("A will dismiss 1", "A did dismiss 1"));
  EXPECT_EQ(coordinator.visibleAlert(), b);
  coordinator.dismissAlert(b, 0, true);
  EXPECT_THAT(events(), ElementsAre("B will dismiss 0", "user undim", "show nothing for B"));
  endTransition();
  EXPECT_THAT(events(), ElementsAre("user key", "alert released", "B did dismiss 0"));
}

TEST_F(QavAlertViewCoordinatorTest, DismissedTwiceOnItsWayInItIsToldTwice) {
  coordinator.presentAlert(a);
  coordinator.dismissAlert(a, 0, true);
  coordinator.dismissAlert(a, 1, true);
  log.clear();
  EXPECT_EQ(coordinator.transitionQueue().size(), 2U);
  endTransition();
  EXPECT_THAT(events(),
              ElementsAre("A did present", "A will dismiss 0", "user undim", "show nothing for A"));
  endTransition();
  EXPECT_THAT(events(), ElementsAre("user key", "alert released", "A did dismiss 0",
                                    "A will dismiss 1", "A did dismiss 1"));
}

TEST_F(QavAlertViewCoordinatorTest, DismissedOnItsWayOutItIsToldAtOnceAndAgainAtTheEnd) {
  bringUp(a);
  coordinator.dismissAlert(a, 0, true);
  log.clear();
  coordinator.dismissAlert(a, 1, true);
  EXPECT_THAT(events(), ElementsAre("A will dismiss 1", "A did dismiss 1"));
  endTransition();
  EXPECT_THAT(events(), ElementsAre("user key", "alert released", "A did dismiss 0"));
}

TEST_F(QavAlertViewCoordinatorTest, RequestThatBeginsNoTransitionLeavesTheRestWaiting) {
  coordinator.presentAlert(x);
  coordinator.presentAlert(b);
  coordinator.dismissAlert(x, 0, true);
  coordinator.presentAlert(c);
  log.clear();
  endTransition();
  EXPECT_THAT(events(), ElementsAre("X did present", "B will present", "show B for X"));
  endTransition();
  EXPECT_THAT(events(), ElementsAre("B did present", "X will dismiss 0", "X did dismiss 0"));
  EXPECT_EQ(coordinator.transitionQueue().size(), 1U) << "C waits";
  EXPECT_THAT(running, IsEmpty());
  coordinator.dismissAlert(b, 0, true);
  EXPECT_THAT(events(), ElementsAre("B will dismiss 0", "user undim", "show nothing for B"));
  endTransition();
  EXPECT_THAT(events(), ElementsAre("user key", "alert released", "B did dismiss 0", "user dim",
                                    "alert key", "C will present", "show C for nothing"));
  EXPECT_EQ(windowsMade, 2);
  endTransition();
  EXPECT_THAT(events(), ElementsAre("C did present"));
}

TEST_F(QavAlertViewCoordinatorTest, AlertShownAfterTheLastOneGoesBeforeThePostponedOne) {
  const AlertRef e = alert("E");
  bringUp(a);
  a->didDismissHandler = [&](int) { coordinator.presentAlert(d); };
  coordinator.dismissAlert(a, 0, true);
  coordinator.presentAlert(e);
  log.clear();
  endTransition();
  EXPECT_THAT(events(), ElementsAre("user key", "alert released", "A did dismiss 0", "user dim",
                                    "alert key", "D will present", "show D for nothing"));
  ASSERT_EQ(coordinator.transitionQueue().size(), 1U);
  EXPECT_EQ(std::get<0>(coordinator.transitionQueue().front()).alert, e);
  endTransition();
  EXPECT_THAT(events(), ElementsAre("D did present", "E will present", "show E for D"));
}

TEST_F(QavAlertViewCoordinatorTest, RecordedAgainItStandsBehindTheOthers) {
  bringUp(a);
  a->didDismissHandler = [&](int) { coordinator.presentAlert(d); };
  coordinator.dismissAlert(a, 0, true);
  coordinator.presentAlert(b);
  coordinator.presentAlert(c);
  endTransition();
  ASSERT_EQ(coordinator.transitionQueue().size(), 2U);
  EXPECT_EQ(std::get<0>(coordinator.transitionQueue()[0]).alert, c);
  EXPECT_EQ(std::get<0>(coordinator.transitionQueue()[1]).alert, b);
}

TEST_F(QavAlertViewCoordinatorTest, WithoutAnimationTheOneBelowIsStillShown) {
  bringUp(a);
  bringUp(b);
  coordinator.dismissAlert(b, 0, false);
  EXPECT_THAT(events(), ElementsAre("B will dismiss 0", "cut to A for B"));
  endTransition();
  EXPECT_THAT(events(), ElementsAre("B did dismiss 0", "A did present"));
}

TEST_F(QavAlertViewCoordinatorTest, LastAlertWithoutAnimationHasGoneWhenTheCallReturns) {
  bringUp(a);
  coordinator.dismissAlert(a, 0, false);
  EXPECT_THAT(events(), ElementsAre("A will dismiss 0", "user undim", "cut to nothing for A",
                                    "user key", "A did dismiss 0", "alert released"))
      << "the window outlives its own operation";
  EXPECT_EQ(coordinator.alertWindow(), nullptr);
  EXPECT_EQ(coordinator.visibleAlert(), nullptr);
}

TEST_F(QavAlertViewCoordinatorTest, AlertShownWhileTheLastVanishesGetsAWindowOfItsOwn) {
  bringUp(a);
  a->didDismissHandler = [&](int) { coordinator.presentAlert(b); };
  coordinator.dismissAlert(a, 0, false);
  EXPECT_EQ(windowsMade, 2);
  EXPECT_NE(coordinator.alertWindow(), nullptr);
  endTransition();
  EXPECT_EQ(coordinator.visibleAlert(), b);
}

TEST_F(QavAlertViewCoordinatorTest, TransitionHasItsTwoAlertsAndNoVisibleOne) {
  bringUp(a);
  coordinator.presentAlert(b);
  EXPECT_EQ(coordinator.visibleAlert(), nullptr);
  EXPECT_EQ(coordinator.presentingAlert(), b);
  EXPECT_EQ(coordinator.dismissingAlert(), a);
  endTransition();
  EXPECT_EQ(coordinator.visibleAlert(), b);
  EXPECT_EQ(coordinator.presentingAlert(), nullptr);
  EXPECT_EQ(coordinator.dismissingAlert(), nullptr);
}

TEST_F(QavAlertViewCoordinatorTest, AlertThatWasNeverShownIsDismissedAtOnce) {
  coordinator.dismissAlert(a, 3, true);
  EXPECT_THAT(events(), ElementsAre("A will dismiss 3", "A did dismiss 3"));
  EXPECT_EQ(coordinator.alertWindow(), nullptr);
}

TEST_F(QavAlertViewCoordinatorTest, CoveredAlertIsDismissedAtOnceEvenDuringATransition) {
  bringUp(a);
  bringUp(b);
  coordinator.presentAlert(c);
  log.clear();
  coordinator.dismissAlert(a, 0, true);
  EXPECT_THAT(events(), ElementsAre("A will dismiss 0", "A did dismiss 0"));
  EXPECT_THAT(coordinator.transitionQueue(), IsEmpty());
  EXPECT_THAT(coordinator.alerts(), ElementsAre(b, c));
}

TEST_F(QavAlertViewCoordinatorTest, DismissalDoesNotTakeAPostponedPresentationBack) {
  coordinator.presentAlert(a);
  coordinator.presentAlert(b);
  log.clear();
  coordinator.dismissAlert(b, 0, true);
  EXPECT_THAT(events(), ElementsAre("B will dismiss 0", "B did dismiss 0"));
  endTransition();
  EXPECT_THAT(events(), ElementsAre("A did present", "B will present", "show B for A"));
}

TEST_F(QavAlertViewCoordinatorTest, PresentingTheVisibleAlertChangesNothing) {
  bringUp(a);
  coordinator.presentAlert(a);
  EXPECT_THAT(events(), IsEmpty());
  EXPECT_THAT(coordinator.alerts(), ElementsAre(a));
  EXPECT_THAT(running, IsEmpty());
}

TEST_F(QavAlertViewCoordinatorTest, NullIsNoAlert) {
  coordinator.presentAlert(nullptr);
  coordinator.dismissAlert(nullptr, 0, true);
  EXPECT_THAT(events(), IsEmpty());
  EXPECT_THAT(coordinator.alerts(), IsEmpty());
}

TEST_F(QavAlertViewCoordinatorTest, PostponedRequestsKeepTheirAlerts) {
  coordinator.presentAlert(a);
  coordinator.presentAlert(b);
  const std::weak_ptr<QavAlertView> waiting = b;
  b = nullptr;
  ASSERT_FALSE(waiting.expired());
  endTransition();
  endTransition();
  EXPECT_EQ(coordinator.visibleAlert(), waiting.lock());
}

TEST_F(QavAlertViewCoordinatorTest, AlertThatHasGoneIsReleased) {
  bringUp(a);
  const std::weak_ptr<QavAlertView> gone = a;
  coordinator.dismissAlert(std::exchange(a, nullptr), 0, true);
  endTransition();
  EXPECT_TRUE(gone.expired());
}

TEST_F(QavAlertViewCoordinatorTest, TheCoordinatorsOwnReferencesMayBeGivenBack) {
  bringUp(a);
  bringUp(b);
  coordinator.dismissAlert(coordinator.visibleAlert(), 2, true);
  endTransition();
  EXPECT_THAT(events(),
              ElementsAre("B will dismiss 2", "show A for B", "B did dismiss 2", "A did present"));
  coordinator.presentAlert(coordinator.alerts().front());
  EXPECT_EQ(coordinator.visibleAlert(), a);
}

TEST_F(QavAlertViewCoordinatorTest, WhatIsAskedForWhileAnAlertIsAboutToGoWaits) {
  bringUp(a);
  a->willDismissHandler = [&](int) { coordinator.presentAlert(b); };
  coordinator.dismissAlert(a, 0, true);
  EXPECT_THAT(events(), ElementsAre("A will dismiss 0", "user undim", "show nothing for A"));
  endTransition();
  EXPECT_THAT(events(), ElementsAre("user key", "alert released", "A did dismiss 0", "user dim",
                                    "alert key", "B will present", "show B for nothing"));
}

TEST_F(QavAlertViewCoordinatorTest, UserWindowIsTheKeyWindowOfTheFirstMoment) {
  const auto first = userWindow;
  userWindow = std::make_shared<FakeUserWindow>(log);
  bringUp(a);
  EXPECT_EQ(coordinator.userWindow(), first);
  EXPECT_EQ(keyWindowQuestions, 1);
}

TEST_F(QavAlertViewCoordinatorTest, AppWithoutAWindowGetsAlertsAllTheSame) {
  userWindow = nullptr;
  QavAlertViewCoordinator other(environment());
  other.presentAlert(a);
  endTransition();
  other.dismissAlert(a, 0, true);
  endTransition();
  EXPECT_THAT(events(), ElementsAre("alert key", "A will present", "show A for nothing",
                                    "A did present", "A will dismiss 0", "show nothing for A",
                                    "alert released", "A did dismiss 0"));
}

TEST_F(QavAlertViewCoordinatorTest, SharedCoordinatorIsMadeOnceWhicheverThreadAsksFirst) {
  keyWindowQuestions = 0;
  std::vector<QavAlertViewCoordinator*> found(4);
  {
    std::vector<std::jthread> threads;
    for (auto& place : found) {
      threads.emplace_back([&place] { place = &QavAlertViewCoordinator::sharedCoordinator(); });
    }
  }
  EXPECT_THAT(found, testing::Each(&QavAlertViewCoordinator::sharedCoordinator()));
  EXPECT_EQ(keyWindowQuestions, 1);
}

}  // namespace
}  // namespace kindora
