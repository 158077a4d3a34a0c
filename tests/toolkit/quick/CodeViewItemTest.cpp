// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/CodeViewItem.h"

#include "platform/fakes/FakeViewServices.h"
#include "tests/toolkit/quick/RecordFixture.h"
#include "toolkit/quick/BlurItem.h"
#include "toolkit/quick/DrawnPlace.h"
#include "toolkit/view/NSLayoutConstraint.h"
#include "toolkit/view/UIMotionEffect.h"
#include "toolkit/view/UIScrollView.h"
#include "toolkit/view/UIVisualEffectView.h"

namespace kindora {
namespace {

const QColor kWhitePixel(255, 255, 255);
const QColor kBluePixel(0, 0, 255);
constexpr UIColor kBlueColor{0, 0, 1, 1};

using CodeViewItemTest = RecordFixture;

// --- Grounds and corners ---

TEST_F(CodeViewItemTest, AGroundHasItsCorners) {
  addGround({{0, 0}, {100, 100}}, UIColor::redColor())->setCornerRadius(20);
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(1, 1), kWhitePixel);
  EXPECT_EQ(image.pixelColor(98, 98), kWhitePixel);
  EXPECT_EQ(image.pixelColor(50, 0), kRedPixel);
  EXPECT_EQ(image.pixelColor(50, 50), kRedPixel);
}

// A panel with round corners that clips, and in it a row at the bottom.
class ClippedTest : public RecordFixture {
 protected:
  ClippedTest() {
    panel->setCornerRadius(20);
    panel->setClipsToBounds(true);
  }
  const UIViewRef panel = addGround({{50, 50}, {100, 100}}, UIColor::clearColor());
};

TEST_F(ClippedTest, AGroundInACornerIsCutByIt) {
  addGround({{0, 60}, {50, 40}}, UIColor::redColor(), panel);
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(51, 148), kWhitePixel);
  EXPECT_EQ(image.pixelColor(50, 112), kRedPixel);
  EXPECT_EQ(image.pixelColor(98, 148), kRedPixel);
  EXPECT_EQ(image.pixelColor(80, 149), kRedPixel);
}

TEST_F(ClippedTest, SoIsOneDeepInside) {
  const auto row = addGround({{0, 60}, {100, 40}}, UIColor::clearColor(), panel);
  addGround({{50, 0}, {50, 40}}, kBlueColor, row);
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(148, 148), kWhitePixel);
  EXPECT_EQ(image.pixelColor(102, 148), kBluePixel);
}

TEST_F(ClippedTest, ALineAtTheEdgeEndsAtTheCorner) {
  addGround({{0, 99}, {100, 1}}, UIColor::redColor(), panel);
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(52, 149), kWhitePixel);
  EXPECT_EQ(image.pixelColor(100, 149), kRedPixel);
}

TEST_F(ClippedTest, WhatStandsOutIsCutOff) {
  addGround({{60, 40}, {100, 20}}, UIColor::redColor(), panel);
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(149, 100), kRedPixel);
  EXPECT_EQ(image.pixelColor(151, 100), kWhitePixel);
}

TEST_F(ClippedTest, TheCutFollowsAPanelThatGrows) {
  const auto row = addGround({{0, 60}, {50, 40}}, UIColor::redColor(), panel);
  EXPECT_EQ(pixel(51, 148), kWhitePixel);
  panel->setFrame({{50, 50}, {100, 140}});
  EXPECT_EQ(pixel(51, 148), kRedPixel);
}

TEST_F(ClippedTest, TheCutFollowsWhatIsScrolled) {
  const auto scroll = add(std::make_shared<UIScrollView>(), {{0, 0}, {100, 100}}, panel);
  scroll->setContentSize({100, 200});
  addGround({{0, 100}, {50, 40}}, UIColor::redColor(), scroll);
  scroll->setContentOffset({0, 40});
  EXPECT_EQ(pixel(51, 148), kWhitePixel);
  EXPECT_EQ(pixel(98, 148), kRedPixel);
  scroll->setContentOffset({0, 80});
  EXPECT_EQ(pixel(51, 108), kRedPixel);
}

TEST_F(CodeViewItemTest, ABorderRunsInsideTheBounds) {
  const auto view = addGround({{10, 10}, {50, 50}}, UIColor::whiteColor());
  view->setBorder({.color = UIColor::redColor(), .width = 2});
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(10, 30), kRedPixel);
  EXPECT_EQ(image.pixelColor(11, 30), kRedPixel);
  EXPECT_EQ(image.pixelColor(12, 30), kWhitePixel);
  EXPECT_EQ(image.pixelColor(9, 30), kWhitePixel);
  view->setBorder({});
  EXPECT_EQ(pixel(10, 30), kWhitePixel);
}

TEST_F(CodeViewItemTest, ABorderLiesAboveAPicture) {
  auto picture = std::make_shared<UIImageView>();
  picture->setImage(plainPicture(4, 4, kBlue));
  picture->setBorder({.color = UIColor::redColor(), .width = 2});
  add(picture, {{10, 10}, {50, 50}});
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(11, 30), kRedPixel);
  EXPECT_EQ(image.pixelColor(14, 30), kBluePixel);
}

// --- Whole pixels ---

QRectF drawnOf(const UIViewRef& view, double ratio) { return drawnRect(*view, ratio); }

TEST_F(CodeViewItemTest, StandsOnWholePixelsAndKeepsItsNumbers) {
  const auto outer = addGround({{10.3, 0}, {100, 100}}, UIColor::clearColor());
  const auto inner = addGround({{10.3, 20.6}, {30.2, 10}}, UIColor::redColor(), outer);
  EXPECT_EQ(drawnOf(outer, 1), QRectF(10, 0, 100, 100));
  EXPECT_EQ(drawnOf(inner, 1), QRectF(11, 21, 30, 10));  // from 20.6 to 50.8
  EXPECT_EQ(drawnOf(inner, 2), QRectF(10, 20.5, 30.5, 10));
  EXPECT_EQ(inner->frame(), (CGRect{{10.3, 20.6}, {30.2, 10}}));
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(21, 21), kRedPixel);
  EXPECT_EQ(image.pixelColor(20, 21), kWhitePixel);
  EXPECT_EQ(image.pixelColor(50, 25), kRedPixel);
  EXPECT_EQ(image.pixelColor(51, 25), kWhitePixel);
}

TEST_F(CodeViewItemTest, NeighboursLeaveNoGap) {
  double right = 0;
  for (int i = 0; i < 7; ++i) {
    const auto view = addGround({{i * 200 / 7.0, 0}, {200 / 7.0, 10}}, UIColor::redColor());
    EXPECT_EQ(drawnOf(view, 1).left(), right);
    right = drawnOf(view, 1).right();
  }
  EXPECT_EQ(right, 200);
}

TEST_F(CodeViewItemTest, ALineNeverVanishes) {
  for (double y = 10; y < 11; y += 0.1) {
    const auto line = addGround({{0, y}, {100, 0.5}}, UIColor::redColor());
    EXPECT_EQ(drawnOf(line, 1).height(), 1) << y;
    EXPECT_EQ(drawnOf(line, 2).height(), 0.5) << y;
  }
}

TEST_F(CodeViewItemTest, WhatMovesIsWhereItIs) {
  const auto view = addGround({{10, 10}, {10, 10}}, UIColor::redColor());
  UIViewState shown = view->state();
  shown.frame.origin.x = 20.25;
  view->setPresentation(shown);
  EXPECT_EQ(drawnOf(view, 1).left(), 20.25);
}

// --- Layout ---

TEST_F(CodeViewItemTest, IsLaidOutBeforeItIsDrawn) {
  const auto view = addGround({}, UIColor::redColor());
  view->setTranslatesAutoresizingMaskIntoConstraints(false);
  for (const auto edge : {NSLayoutAttribute::left, NSLayoutAttribute::top, NSLayoutAttribute::right,
                          NSLayoutAttribute::bottom}) {
    root->addConstraint(std::make_shared<NSLayoutConstraint>(NSLayoutConstraint::Parts{
        .firstItem = view, .firstAttribute = edge, .secondItem = root, .secondAttribute = edge}));
  }
  EXPECT_EQ(pixel(150, 150), kRedPixel);
  item->setSize({100, 100});
  EXPECT_EQ(pixel(50, 50), kRedPixel);
  EXPECT_EQ(pixel(150, 150), kWhitePixel);
}

// --- Tilt ---

class TiltedTest : public RecordFixture {
 protected:
  const FakeViewServices views = installFakeViewServices();
};

TEST_F(TiltedTest, AViewOnTheScreenFollowsTheTilt) {
  const auto view = addGround({{50, 50}, {20, 20}}, UIColor::redColor());
  EXPECT_FALSE(views.motion->handler);
  view->addMotionEffect(
      {{{.keyPath = "center.x", .minimumRelativeValue = -30, .maximumRelativeValue = 30}}});
  ASSERT_TRUE(views.motion->handler);
  views.motion->handler(1, 0);
  EXPECT_EQ(pixel(90, 60), kRedPixel);
  EXPECT_EQ(pixel(60, 60), kWhitePixel);
}

TEST_F(TiltedTest, TheSensorRestsWhileTheViewIsOffTheScreen) {
  const auto view = addGround({{50, 50}, {20, 20}}, UIColor::redColor());
  view->addMotionEffect({{{.keyPath = "center.x"}}});
  root->setHidden(true);
  EXPECT_FALSE(views.motion->handler);
  root->setHidden(false);
  EXPECT_TRUE(views.motion->handler);
  view->removeFromSuperview();
  EXPECT_FALSE(views.motion->handler);
}

// --- Panels ---

TEST_F(CodeViewItemTest, WithoutShadersAPanelIsAlmostWhite) {
  addGround({{0, 0}, {200, 200}}, UIColor::redColor());
  const auto panel = UIVisualEffectView::withBlur(UIBlurEffectStyle::extraLight);
  panel->setCornerRadius(20);
  panel->setClipsToBounds(true);
  add(panel, {{50, 50}, {100, 100}});
  const QImage image = drawn();
  EXPECT_GT(image.pixelColor(100, 100).green(), 220);
  EXPECT_LT(image.pixelColor(100, 100).green(), 245);
  EXPECT_EQ(image.pixelColor(51, 51), kRedPixel);
  EXPECT_EQ(image.pixelColor(40, 100), kRedPixel);
  EXPECT_FALSE(item->findChild<BlurItem*>()->blurs());
  EXPECT_TRUE(item->findChild<BlurItem*>()->behind().isEmpty());
}

// The item of such a panel is rounded to whole pixels.
TEST_F(CodeViewItemTest, APanelThatFillsWhatCutsItOffHasItsCorners) {
  addGround({{0, 0}, {200, 200}}, UIColor::redColor());
  const auto card = std::make_shared<UIView>();
  card->setCornerRadius(20);
  card->setClipsToBounds(true);
  add(card, {{50, 50}, {100.3, 100.3}});
  const auto between = std::make_shared<UIView>();
  between->setFrame({{0, 0}, {100.3, 100.3}});
  card->addSubview(between);
  const auto panel = UIVisualEffectView::withBlur(UIBlurEffectStyle::extraLight);
  panel->setFrame({{0, 0}, {100.3, 100.3}});
  between->addSubview(panel);
  EXPECT_EQ(item->findChild<BlurItem*>()->visibleRadius(), 20);
  EXPECT_EQ(pixel(51, 51), kRedPixel);
  card->setCornerRadius(0);
  EXPECT_NE(pixel(51, 51), kRedPixel);
  card->setCornerRadius(20);
  EXPECT_EQ(pixel(51, 51), kRedPixel);
  EXPECT_NE(pixel(100, 100), kRedPixel);
}

TEST_F(CodeViewItemTest, WhatStandsOnAPanelIsDrawnOnIt) {
  const auto panel = UIVisualEffectView::withBlur(UIBlurEffectStyle::extraLight);
  add(panel, {{50, 50}, {100, 100}});
  addGround({{0, 0}, {50, 50}}, kBlueColor, panel->contentView());
  EXPECT_EQ(pixel(60, 60), kBluePixel);
  EXPECT_EQ(panel->contentView()->frame(), (CGRect{{0, 0}, {100, 100}}));
}

// --- Reading aloud ---

TEST_F(CodeViewItemTest, AViewIsReadAloudWhenItSaysSo) {
  const auto view = addGround({{0, 0}, {50, 50}}, UIColor::redColor());
  EXPECT_EQ(names(QAccessible::AlertMessage), QStringList());
  view->setAccessibility(UIAccessibilityRole::alert, "Really?");
  EXPECT_EQ(names(QAccessible::AlertMessage), QStringList(QStringLiteral("Really?")));
}

}  // namespace
}  // namespace kindora
