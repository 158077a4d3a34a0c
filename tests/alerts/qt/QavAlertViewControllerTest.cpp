// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/QavAlertViewController.h"

#include <gmock/gmock.h>

#include "alerts/legacy/QavAlertView.h"
#include "alerts/legacy/QavAlertViewColors.h"
#include "platform/KeyboardNotification.h"
#include "tests/alerts/qt/AlertFixture.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class QavAlertViewControllerTest : public AlertFixture {
 protected:
  QavAlertViewControllerTest() {
    controller->view()->setFrame({{0, 0}, {320, 480}});
    controller->view()->layoutIfNeeded();
  }

  void replace(const std::shared_ptr<QavAlertView>& before,
               const std::shared_ptr<QavAlertView>& after, bool animated = true) {
    controller->replaceAlert(before, after, animated, [this] { note("replaced"); });
  }
  static std::shared_ptr<QavAlertView> alertView() {
    const auto made = QavAlertView::alertWithTitleMessage("T", "M");
    return made;
  }

  const std::shared_ptr<QavAlertViewController> controller =
      makeViewController<QavAlertViewController>();
  const std::shared_ptr<QavAlertView> a = alertView();
  const std::shared_ptr<QavAlertView> b = alertView();
};

TEST_F(QavAlertViewControllerTest, BeginsAsTheOneThatPresentsTheFirst) {
  EXPECT_TRUE(controller->presentingFirstAlert());
  EXPECT_FALSE(controller->dismissingLastAlert());
  EXPECT_FALSE(controller->showsDimmingView());
  EXPECT_EQ(controller->dimmingView()->state().backgroundColor, qav_dimmedBackgroundColor());
  EXPECT_EQ(controller->dimmingView()->alpha(), 0);
}

TEST_F(QavAlertViewControllerTest, SpringsTheNewAlertIn) {
  replace(nullptr, a);
  EXPECT_EQ(a->superview(), controller->alertContainerView());
  EXPECT_EQ(a->alpha(), 1);
  EXPECT_EQ(a->presentation().alpha, 0);
  ASSERT_TRUE(a->keyframeValues().transform.has_value());
  EXPECT_EQ(*a->keyframeValues().transform, CATransform3DMakeScale(1.26, 1.26, 1));
  time.advance(0.25);
  EXPECT_GT(a->presentation().alpha, 0.5);
  EXPECT_LT(a->keyframeValues().transform->m11, 1.13);
  EXPECT_TRUE(controller->presentingFirstAlert());
  time.advance(0.25);
  EXPECT_THAT(log(), IsEmpty());
  time.advance(0.02);
  EXPECT_THAT(log(), ElementsAre("replaced"));
  EXPECT_FALSE(controller->presentingFirstAlert());
  EXPECT_EQ(a->keyframeValues().transform, std::nullopt);
  EXPECT_EQ(a->presentation().alpha, 1);
  EXPECT_EQ(a->presentation().scaling, 1);
}

TEST_F(QavAlertViewControllerTest, AnAlertOnItsWayOutTakesNoPressesUntilItComesBack) {
  replace(nullptr, a);
  pass();
  EXPECT_TRUE(a->isUserInteractionEnabled());
  replace(a, b);
  EXPECT_FALSE(a->isUserInteractionEnabled());
  EXPECT_TRUE(b->isUserInteractionEnabled());
  pass();
  replace(b, a);
  EXPECT_TRUE(a->isUserInteractionEnabled());
}

TEST_F(QavAlertViewControllerTest, SpringsTheOldAlertOutWhileTheNewComesIn) {
  replace(nullptr, a);
  pass();
  time.advance(0.1);
  log();
  replace(a, b);
  EXPECT_EQ(a->presentation().alpha, 1);
  EXPECT_EQ(*a->keyframeValues().transform, CATransform3DMakeScale(1, 1, 1));
  time.advance(0.3);
  EXPECT_LT(a->presentation().alpha, 0.5);
  EXPECT_LT(a->keyframeValues().transform->m11, 0.95);
  EXPECT_GT(a->keyframeValues().transform->m11, 0.84);
  EXPECT_EQ(a->superview(), controller->alertContainerView());
  time.advance(0.3);
  EXPECT_THAT(log(), ElementsAre("replaced"));
  EXPECT_EQ(a->superview(), nullptr);
  EXPECT_EQ(b->superview(), controller->alertContainerView());
}

TEST_F(QavAlertViewControllerTest, TheDimmingStaysWhileOneAlertTakesTheOthersPlace) {
  replace(nullptr, a);
  EXPECT_TRUE(controller->showsDimmingView());
  EXPECT_EQ(controller->dimmingView()->presentation().alpha, 0);
  pass();
  time.advance(0.1);
  EXPECT_EQ(controller->dimmingView()->presentation().alpha, 1);
  replace(a, b);
  EXPECT_EQ(controller->dimmingView()->presentation().alpha, 1);
  pass();
  time.advance(0.1);
  replace(b, nullptr);
  EXPECT_TRUE(controller->dismissingLastAlert());
  EXPECT_FALSE(controller->showsDimmingView());
  time.advance(0.3);
  EXPECT_LT(controller->dimmingView()->presentation().alpha, 0.5);
  time.advance(0.3);
  EXPECT_EQ(controller->dimmingView()->presentation().alpha, 0);
  EXPECT_TRUE(controller->presentingFirstAlert());
}

TEST_F(QavAlertViewControllerTest, WithoutAnimationTheOldOneVanishesWhenTheNewOneHasComeIn) {
  replace(nullptr, a);
  pass();
  time.advance(0.1);
  log();
  replace(a, b, false);
  EXPECT_EQ(a->keyframeValues().transform, std::nullopt);
  EXPECT_EQ(a->presentation().alpha, 1);
  EXPECT_EQ(b->presentation().alpha, 0);
  time.advance(0.52);
  EXPECT_THAT(log(), ElementsAre("replaced"));
  EXPECT_EQ(a->superview(), nullptr);
}

TEST_F(QavAlertViewControllerTest, WithoutAnimationAndWithoutANewAlertItIsOverAtOnce) {
  replace(nullptr, a);
  pass();
  time.advance(0.1);
  log();
  replace(a, nullptr, false);
  EXPECT_THAT(log(), ElementsAre("replaced"));
  EXPECT_EQ(a->superview(), nullptr);
}

TEST_F(QavAlertViewControllerTest, TheNewAlertTakesTheKeyboardAndTheOldOneGivesItUp) {
  a->setAlertViewStyle(QavAlertViewStyle::plainTextInput);
  replace(nullptr, a);
  EXPECT_TRUE(a->textFieldAtIndex(0)->isFirstResponder());
  pass();
  time.advance(0.1);
  replace(a, b);
  EXPECT_FALSE(a->textFieldAtIndex(0)->isFirstResponder());
}

TEST_F(QavAlertViewControllerTest, TheAlertStandsInTheMiddleOfTheRoomThatTheKeyboardLeaves) {
  a->show();
  NotificationCenter::defaultCenter().post(
      UIKeyboardWillShowNotification,
      KeyboardNotification{.endFrame = {{0, 280}, {320, 200}}, .duration = 0.25});
  EXPECT_EQ(controller->bottomSpacingConstraint()->constant(), -200);
  EXPECT_EQ(controller->alertContainerView()->frame().size.height, 280);
  EXPECT_EQ(controller->alertContainerView()->presentation().frame.size.height, 480);
  time.advance(0.26);
  EXPECT_EQ(controller->alertContainerView()->presentation().frame.size.height, 280);
  NotificationCenter::defaultCenter().post(
      UIKeyboardWillHideNotification,
      KeyboardNotification{.endFrame = {{0, 480}, {320, 0}}, .duration = 0.25});
  EXPECT_EQ(controller->bottomSpacingConstraint()->constant(), 0);
}

TEST_F(QavAlertViewControllerTest, TheAlertFitsTheWindowWhenThatIsResized) {
  const auto longAlert =
      QavAlertView::alertWithTitleMessageButtons("T", std::string(3000, 'x'), {"OK"});
  longAlert->show();
  UIWindow* alertWindow = UIApplication::sharedApplication()->windows().back();
  ASSERT_EQ(alertWindow->windowLevel(), UIWindowLevelAlert);
  alertWindow->reportSize(320, 480);
  alertWindow->root()->view()->layoutIfNeeded();
  EXPECT_EQ(longAlert->frame().size.height, 440);
  alertWindow->reportSize(480, 320);
  alertWindow->root()->view()->layoutIfNeeded();
  EXPECT_EQ(longAlert->frame().size.height, 280);
  EXPECT_EQ(longAlert->center(), (CGPoint{240, 160}));
  time.advance(0.6);
  longAlert->dismissWithClickedButtonIndex(0, true);
  time.advance(0.6);
  EXPECT_EQ(UIApplication::sharedApplication()->windows().size(), 1U);
  EXPECT_TRUE(window.isKeyWindow());
}

TEST_F(QavAlertViewControllerTest, EscPressesTheCancelButtonOnceAlsoOnTheWayIn) {
  const auto asked = QavAlertView::initWithTitle("T", std::nullopt, {}, "Cancel", {"OK"});
  asked->didDismissHandler = [this](int index) { note("dismissed " + std::to_string(index)); };
  asked->show();
  time.advance(0.1);
  EXPECT_TRUE(UIApplication::sharedApplication()->keyWindow()->goBack());
  EXPECT_FALSE(UIApplication::sharedApplication()->keyWindow()->goBack());
  time.advance(1.2);
  EXPECT_THAT(log(), ElementsAre("dismissed 0"));
  EXPECT_TRUE(window.isKeyWindow());
}

TEST_F(QavAlertViewControllerTest, EscDoesNothingWithoutACancelButton) {
  const auto told = QavAlertView::initWithTitle("T", std::nullopt, {}, std::nullopt, {"OK"});
  told->show();
  time.advance(0.6);
  EXPECT_FALSE(UIApplication::sharedApplication()->keyWindow()->goBack());
  EXPECT_TRUE(told->isVisible());
  told->dismissWithClickedButtonIndex(0, false);
}

}  // namespace
}  // namespace kindora
