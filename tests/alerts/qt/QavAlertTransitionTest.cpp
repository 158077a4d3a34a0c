// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include "alerts/qt/QavAlertAnimationController.h"
#include "alerts/qt/QavAlertControllerTransitioningDelegate.h"
#include "alerts/qt/QavAlertPresentationController.h"
#include "tests/alerts/qt/AlertFixture.h"

namespace kindora {
namespace {

class QavAlertTransitionTest : public AlertFixture {
 protected:
  QavAlertTransitionTest() { controller->presentWithCompletion(); }

  [[nodiscard]] QavAlertPresentationController& presentation() const {
    return dynamic_cast<QavAlertPresentationController&>(*controller->presentationController());
  }

  const QavAlertControllerRef controller = alert();
};

TEST_F(QavAlertTransitionTest, ComesOutOfALargerOneThatIsNotThereYet) {
  EXPECT_EQ(controller->view()->presentation().scaling, 1.2);
  EXPECT_EQ(controller->view()->presentation().alpha, 0);
  EXPECT_EQ(controller->view()->frame(), (CGRect{{0, 0}, {320, 480}}));
  double alpha = 0;
  double scaling = 1.2;
  for (int i = 0; i < 40; ++i) {
    time.advance(0.01);
    const UIViewState& shown = controller->view()->presentation();
    EXPECT_GE(shown.alpha, alpha);
    EXPECT_LE(shown.alpha, 1);
    EXPECT_LE(shown.scaling, scaling);
    EXPECT_GE(shown.scaling, 1);
    alpha = shown.alpha;
    scaling = shown.scaling;
  }
  time.advance(0.01);
  EXPECT_EQ(controller->view()->presentation().alpha, 1);
  EXPECT_EQ(controller->view()->presentation().scaling, 1);
}

TEST_F(QavAlertTransitionTest, FadesAwayWithoutChangingItsSize) {
  pass();
  controller->dismissWithCompletion();
  time.advance(0.1);
  EXPECT_LT(controller->view()->presentation().alpha, 1);
  EXPECT_EQ(controller->view()->presentation().scaling, 1);
  time.advance(0.31);
  EXPECT_EQ(controller->view()->superview(), nullptr);
  EXPECT_EQ(base->presentedViewController(), nullptr);
}

TEST_F(QavAlertTransitionTest, DimsWhatLiesBelow) {
  const auto dimming = presentation().dimmingView();
  EXPECT_EQ(dimming->state().backgroundColor, UIColor::colorWithWhite(0, 0.4));
  EXPECT_EQ(dimming->superview(), presentation().containerView());
  EXPECT_EQ(dimming->presentation().alpha, 0);
  EXPECT_EQ(dimming->alpha(), 1);
  EXPECT_EQ(base->view()->tintAdjustmentMode(), UIViewTintAdjustmentMode::dimmed);
  pass();
  EXPECT_EQ(dimming->presentation().alpha, 1);
  controller->dismissWithCompletion();
  EXPECT_EQ(base->view()->tintAdjustmentMode(), UIViewTintAdjustmentMode::automatic);
  EXPECT_EQ(dimming->alpha(), 0);
  time.advance(0.2);
  EXPECT_LT(dimming->presentation().alpha, 1);
}

TEST_F(QavAlertTransitionTest, TheDimmingFollowsTheContainer) {
  window.reportSize(480, 320);
  EXPECT_EQ(presentation().dimmingView()->frame(), presentation().containerView()->frame());
  EXPECT_EQ(presentation().dimmingView()->frame().size, (CGSize{480, 320}));
}

TEST_F(QavAlertTransitionTest, LiesBelowTheAlert) {
  const auto& views = presentation().containerView()->subviews();
  ASSERT_EQ(views.size(), 2U);
  EXPECT_EQ(views[0], presentation().dimmingView());
  EXPECT_EQ(views[1], controller->view());
}

TEST(QavAlertControllerTransitioningDelegate, ProvidesNewObjectsEachTime) {
  QavAlertControllerTransitioningDelegate delegate;
  EXPECT_TRUE(delegate.animationControllerForPresentation(true)->presentation());
  EXPECT_FALSE(delegate.animationControllerForPresentation(false)->presentation());
  EXPECT_NE(delegate.animationControllerForPresentation(true),
            delegate.animationControllerForPresentation(true));
}

TEST(QavAlertAnimationController, TakesALittleMoreThanFourTenths) {
  EXPECT_EQ(QavAlertAnimationController(true).transitionDuration(nullptr), 0.404);
}

}  // namespace
}  // namespace kindora
