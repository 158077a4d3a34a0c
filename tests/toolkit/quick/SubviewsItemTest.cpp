// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/SubviewsItem.h"

#include <QSignalSpy>

#include "platform/fakes/ManualQueue.h"
#include "tests/support/ManualTime.h"
#include "tests/support/QuickFixture.h"
#include "toolkit/controllers/UIViewAnimation.h"
#include "toolkit/view/UIButton.h"
#include "toolkit/view/UIImageView.h"

namespace kindora {
namespace {

constexpr UIColor kBlueColor{0, 0, 1, 1};

// The page's view, drawn over the whole window, into which views are put by code.
class SubviewsItemTest : public QuickFixture {
 protected:
  SubviewsItemTest() {
    item->setOutlet(QStringLiteral("view"));
    item->setOwner(&owner);
  }

  template <typename View = UIView>
  static std::shared_ptr<View> make(CGRect frame, const UIColor& color = kRedColor) {
    auto view = std::make_shared<View>();
    view->setFrame(frame);
    view->setBackgroundColor(color);
    return view;
  }
  UIViewRef add(CGRect frame, const UIColor& color = kRedColor) {
    auto view = make(frame, color);
    owner.root->addSubview(view);
    return view;
  }
  std::shared_ptr<UIImageView> addPicture(CGRect frame, const UIImageRef& image) {
    auto view = make<UIImageView>(frame, UIColor::clearColor());
    view->setImage(image);
    owner.root->addSubview(view);
    return view;
  }

  Owner owner;
  const std::unique_ptr<SubviewsItem> item = place<SubviewsItem>({0, 0, 100, 100});
};

const QColor kBluePixel(0, 0, 255);

// --- Places ---

TEST_F(SubviewsItemTest, DrawsNothingOfItsOwn) { EXPECT_EQ(pixel(50, 50), QColor(Qt::white)); }

TEST_F(SubviewsItemTest, AViewMadeInCodeGoesWhereItsPlaceIsReported) {
  const auto view = add({{20, 30}, {40, 10}});
  view->reportFrame({{60, 70}, {20, 20}});
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(70, 80), kRedPixel);
  EXPECT_EQ(image.pixelColor(25, 35), QColor(Qt::white));
}

TEST_F(SubviewsItemTest, DrawsAViewMadeInCodeWhereItsRecordSays) {
  add({{20, 30}, {40, 10}});
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(20, 30), kRedPixel);
  EXPECT_EQ(image.pixelColor(59, 39), kRedPixel);
  EXPECT_EQ(image.pixelColor(19, 30), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(60, 39), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(30, 40), QColor(Qt::white));
}

TEST_F(SubviewsItemTest, DrawsViewsThatWereThereBefore) {
  Owner another;
  another.root->addSubview(make({{0, 0}, {50, 50}}));
  item->setOwner(&another);
  EXPECT_EQ(pixel(25, 25), kRedPixel);
}

TEST_F(SubviewsItemTest, LeavesTheViewsOfAStoryboardToTheirItems) {
  const auto view = owner.make<UIView>("box");
  view->setFrame({{0, 0}, {100, 100}});
  view->setBackgroundColor(kRedColor);
  EXPECT_EQ(pixel(50, 50), QColor(Qt::white));
}

TEST_F(SubviewsItemTest, FollowsAViewThatMoves) {
  const auto view = add({{0, 0}, {10, 10}});
  EXPECT_EQ(pixel(5, 5), kRedPixel);
  view->setCenter({50, 50});
  EXPECT_EQ(pixel(5, 5), QColor(Qt::white));
  EXPECT_EQ(pixel(50, 50), kRedPixel);
}

TEST_F(SubviewsItemTest, AViewThatIsRemovedGoes) {
  const auto view = add({{0, 0}, {100, 100}});
  EXPECT_EQ(pixel(50, 50), kRedPixel);
  view->removeFromSuperview();
  EXPECT_EQ(pixel(50, 50), QColor(Qt::white));
}

TEST_F(SubviewsItemTest, AViewThatWentComesBack) {
  const auto view = add({{0, 0}, {100, 100}});
  view->removeFromSuperview();
  owner.root->addSubview(view);
  EXPECT_EQ(pixel(50, 50), kRedPixel);
}

TEST_F(SubviewsItemTest, LaterViewsStandAboveEarlierOnes) {
  add({{0, 0}, {100, 100}});
  add({{0, 0}, {100, 100}}, kBlueColor);
  EXPECT_EQ(pixel(50, 50), kBluePixel);
}

TEST_F(SubviewsItemTest, AViewThatIsAddedAgainComesToTheFront) {
  const auto red = add({{0, 0}, {100, 100}});
  add({{0, 0}, {100, 100}}, kBlueColor);
  owner.root->addSubview(red);
  EXPECT_EQ(pixel(50, 50), kRedPixel);
}

TEST_F(SubviewsItemTest, DrawsWhatIsInsideAView) {
  const auto outer = add({{20, 20}, {60, 60}});
  outer->addSubview(make({{10, 10}, {20, 20}}, kBlueColor));
  EXPECT_EQ(pixel(35, 35), kBluePixel);
  EXPECT_EQ(pixel(25, 25), kRedPixel);
  EXPECT_EQ(pixel(55, 55), kRedPixel);
}

TEST_F(SubviewsItemTest, DrawsNothingOnceItsOwnerHasGone) {
  add({{0, 0}, {100, 100}});
  item->setOwner(nullptr);
  EXPECT_EQ(pixel(50, 50), QColor(Qt::white));
}

// --- Looks ---

TEST_F(SubviewsItemTest, AViewWithoutAColourIsSeenThrough) {
  add({{0, 0}, {100, 100}}, UIColor::clearColor());
  EXPECT_EQ(pixel(50, 50), QColor(Qt::white));
}

TEST_F(SubviewsItemTest, AColourMayCoverInPart) {
  add({{0, 0}, {100, 100}}, UIColor::blackColor().colorWithAlphaComponent(0.25));
  EXPECT_NEAR(pixel(50, 50).red(), 191, 2);
}

TEST_F(SubviewsItemTest, AColourMayComeAndGo) {
  const auto view = add({{0, 0}, {100, 100}}, UIColor::clearColor());
  EXPECT_EQ(pixel(50, 50), QColor(Qt::white));
  view->setBackgroundColor(kRedColor);
  EXPECT_EQ(pixel(50, 50), kRedPixel);
  view->setBackgroundColor(UIColor::clearColor());
  EXPECT_EQ(pixel(50, 50), QColor(Qt::white));
}

TEST_F(SubviewsItemTest, AViewIsAsOpaqueAsItsAlpha) {
  const auto view = add({{0, 0}, {100, 100}});
  view->setAlpha(0.5);
  EXPECT_NEAR(pixel(50, 50).green(), 128, 2);
  view->setAlpha(0);
  EXPECT_EQ(pixel(50, 50), QColor(Qt::white));
}

TEST_F(SubviewsItemTest, AHiddenViewIsNotDrawn) {
  const auto view = add({{0, 0}, {100, 100}});
  view->setHidden(true);
  EXPECT_EQ(pixel(50, 50), QColor(Qt::white));
  view->setHidden(false);
  EXPECT_EQ(pixel(50, 50), kRedPixel);
}

TEST_F(SubviewsItemTest, ScalesAboutTheCentre) {
  const auto view = add({{40, 40}, {20, 20}});
  view->setScaling(2);
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(31, 31), kRedPixel);
  EXPECT_EQ(image.pixelColor(68, 68), kRedPixel);
  EXPECT_EQ(image.pixelColor(28, 50), QColor(Qt::white));
}

TEST_F(SubviewsItemTest, ATranslationDisplaces) {
  const auto view = add({{0, 0}, {10, 10}});
  view->setTranslation({50, 30});
  EXPECT_EQ(pixel(55, 35), kRedPixel);
  EXPECT_EQ(pixel(5, 5), QColor(Qt::white));
}

TEST_F(SubviewsItemTest, CastsAShadowBelowItself) {
  const auto view = add({{30, 30}, {40, 40}}, kBlueColor);
  view->setShadowOpacity(1);
  view->setShadowOffset({0, 10});
  const QImage image = drawn();
  EXPECT_LT(image.pixelColor(50, 74).red(), 60);
  EXPECT_EQ(image.pixelColor(50, 50), kBluePixel);
  EXPECT_EQ(image.pixelColor(50, 20), QColor(Qt::white));
}

TEST_F(SubviewsItemTest, AShadowMayFadeAwayAgain) {
  const auto view = add({{30, 30}, {40, 40}});
  view->setShadowOpacity(1);
  EXPECT_LT(pixel(50, 26).red(), 255);
  view->setShadowOpacity(0);
  EXPECT_EQ(pixel(50, 26), QColor(Qt::white));
}

TEST_F(SubviewsItemTest, FollowsWhatAnAnimationShows) {
  ManualTime time{std::make_shared<ManualQueue>()};
  const auto view = add({{0, 0}, {20, 20}});
  animateWithDuration({.duration = 1, .curve = UIViewAnimationCurve::linear}, [&view] {
    view->setFrame({{80, 80}, {20, 20}});
  });
  time.advance(0.5);
  EXPECT_EQ(pixel(50, 50), kRedPixel);
  EXPECT_EQ(pixel(10, 10), QColor(Qt::white));
  time.advance(0.6);
  EXPECT_EQ(pixel(90, 90), kRedPixel);
}

// --- Keyframes ---

TEST_F(SubviewsItemTest, ShowsKeyframesInPlaceOfTheRecord) {
  const auto view = add({{0, 0}, {20, 20}});
  view->setKeyframeValues({.opacity = 0.5, .position = CGPoint{70, 70}});
  EXPECT_NEAR(pixel(70, 70).green(), 128, 2);
  EXPECT_EQ(pixel(10, 10), QColor(Qt::white));
  view->setKeyframeValues({});
  EXPECT_EQ(pixel(10, 10), kRedPixel);
}

TEST_F(SubviewsItemTest, AKeyframeTransformActsAboutTheCentre) {
  const auto view = add({{40, 40}, {20, 20}});
  view->setKeyframeValues({.transform = CATransform3DMakeScale(2, 1, 1)});
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(31, 50), kRedPixel);
  EXPECT_EQ(image.pixelColor(68, 50), kRedPixel);
  EXPECT_EQ(image.pixelColor(50, 38), QColor(Qt::white));
  view->setKeyframeValues({});
  EXPECT_EQ(pixel(31, 50), QColor(Qt::white));
}

TEST_F(SubviewsItemTest, AKeyframeTransformStaysAboutTheCentreOfAViewThatGrows) {
  const auto view = add({{40, 40}, {20, 20}});
  view->setKeyframeValues({.transform = CATransform3DMakeScale(0.5, 0.5, 1)});
  view->setSize({80, 80});
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(32, 32), kRedPixel);
  EXPECT_EQ(image.pixelColor(67, 67), kRedPixel);
  EXPECT_EQ(image.pixelColor(28, 50), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(72, 50), QColor(Qt::white));
}

TEST_F(SubviewsItemTest, ARowVectorMatrixMovesByItsFourthRow) {
  const auto view = add({{0, 0}, {20, 20}});
  CATransform3D moved = CATransform3DIdentity;
  moved.m41 = 60;
  moved.m42 = 30;
  view->setKeyframeValues({.transform = moved});
  EXPECT_EQ(pixel(70, 40), kRedPixel);
  EXPECT_EQ(pixel(10, 10), QColor(Qt::white));
}

// --- Pictures ---

TEST_F(SubviewsItemTest, DrawsAPicture) {
  addPicture({{10, 10}, {80, 80}}, plainPicture(4, 4, kBlue));
  EXPECT_EQ(pixel(50, 50), kBluePixel);
  EXPECT_EQ(pixel(5, 5), QColor(Qt::white));
}

TEST_F(SubviewsItemTest, APictureFillsUnlessToldToFit) {
  const auto view = addPicture({{0, 0}, {100, 100}}, plainPicture(8, 4, kBlue));
  EXPECT_EQ(pixel(50, 10), kBluePixel);
  view->setContentMode(UIViewContentMode::scaleAspectFit);
  EXPECT_EQ(pixel(50, 10), QColor(Qt::white));
  EXPECT_EQ(pixel(5, 50), kBluePixel);
}

TEST_F(SubviewsItemTest, WithoutAPictureThereIsTheGround) {
  const auto view = addPicture({{0, 0}, {100, 100}}, nullptr);
  view->setBackgroundColor(kRedColor);
  EXPECT_EQ(pixel(50, 50), kRedPixel);
}

TEST_F(SubviewsItemTest, ATemplateIsDrawnInItsTint) {
  const auto view = addPicture(
      {{0, 0}, {100, 100}},
      plainPicture(4, 4, kBlue)->imageWithRenderingMode(UIImageRenderingMode::alwaysTemplate));
  view->setTintColor(kRedColor);
  EXPECT_EQ(pixel(50, 50), kRedPixel);
}

TEST_F(SubviewsItemTest, ATintLeavesAnyOtherPicture) {
  const auto view = addPicture({{0, 0}, {100, 100}}, plainPicture(4, 4, kBlue));
  view->setTintColor(kRedColor);
  EXPECT_EQ(pixel(50, 50), kBluePixel);
}

TEST_F(SubviewsItemTest, APictureHasRoundedCorners) {
  addPicture({{0, 0}, {100, 100}}, plainPicture(4, 4, kBlue))->setCornerRadius(50);
  EXPECT_EQ(pixel(3, 3), QColor(Qt::white));
  EXPECT_EQ(pixel(50, 50), kBluePixel);
}

TEST_F(SubviewsItemTest, APictureThatFillsAClippingViewHasItsCorners) {
  const auto container = add({{0, 0}, {100, 100}}, UIColor::clearColor());
  container->setCornerRadius(50);
  const auto picture = make<UIImageView>({{0, 0}, {100, 100}}, UIColor::clearColor());
  picture->setImage(plainPicture(4, 4, kBlue));
  container->addSubview(picture);
  EXPECT_EQ(pixel(3, 3), kBluePixel);
  container->setClipsToBounds(true);
  picture->setAlpha(0.999);
  EXPECT_EQ(pixel(3, 3), QColor(Qt::white));
}

TEST_F(SubviewsItemTest, APageHalfLaidShowsBothPictures) {
  addPicture({{0, 0}, {100, 100}}, plainPicture(4, 4, kRed));
  addPicture({{0, 0}, {100, 100}}, plainPicture(4, 4, kBlue))->setCurl(0.5);
  const QImage image = drawn();
  EXPECT_GT(image.pixelColor(4, 4).blue(), 200);
  EXPECT_EQ(image.pixelColor(4, 4).red(), 0);
  EXPECT_EQ(image.pixelColor(95, 95), kRedPixel);
}

TEST_F(SubviewsItemTest, APageThatIsLaidCoversThePictureBelow) {
  addPicture({{0, 0}, {100, 100}}, plainPicture(4, 4, kRed));
  const auto page = addPicture({{0, 0}, {100, 100}}, plainPicture(4, 4, kBlue));
  page->setCurl(0);
  EXPECT_EQ(pixel(4, 4), kRedPixel);
  EXPECT_EQ(pixel(95, 95), kRedPixel);
  page->setCurl(1);
  EXPECT_EQ(pixel(4, 4), kBluePixel);
  EXPECT_EQ(pixel(95, 95), kBluePixel);
}

// --- Input ---

// Counts what reaches it.
class Below final : public QQuickItem {
 public:
  explicit Below(QQuickItem* parent) : QQuickItem(parent) {
    setAcceptedMouseButtons(Qt::AllButtons);
  }
  int presses = 0;
  int wheels = 0;

 protected:
  void mousePressEvent(QMouseEvent* /*event*/) override { ++presses; }
  void wheelEvent(QWheelEvent* /*event*/) override { ++wheels; }
};

class SubviewsInputTest : public SubviewsItemTest {
 protected:
  SubviewsInputTest() {
    below->setZ(-1);
    window.show();
  }
  void press(QPointF at) {
    QMouseEvent event(QEvent::MouseButtonPress, at, at, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
    QMouseEvent up(QEvent::MouseButtonRelease, at, at, Qt::LeftButton, Qt::NoButton,
                   Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &up);
  }
  void turnWheel(QPointF at) {
    QWheelEvent event(at, at, {0, 120}, {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&window, &event);
  }

  const std::unique_ptr<Below> below = place<Below>({0, 0, 100, 100});
};

TEST_F(SubviewsInputTest, ReachesWhatLiesBelowWhereThereIsNoView) {
  add({{0, 0}, {50, 50}});
  press({75, 75});
  turnWheel({75, 75});
  EXPECT_EQ(below->presses, 1);
  EXPECT_EQ(below->wheels, 1);
}

TEST_F(SubviewsInputTest, IsKeptByAView) {
  add({{0, 0}, {50, 50}});
  press({25, 25});
  turnWheel({25, 25});
  EXPECT_EQ(below->presses, 0);
  EXPECT_EQ(below->wheels, 0);
}

TEST_F(SubviewsInputTest, IsKeptByAViewThatIsSeenThrough) {
  add({{0, 0}, {100, 100}}, UIColor::clearColor());
  press({25, 25});
  EXPECT_EQ(below->presses, 0);
}

TEST_F(SubviewsInputTest, PassesThroughAViewThatTakesNone) {
  add({{0, 0}, {100, 100}})->setUserInteractionEnabled(false);
  press({25, 25});
  turnWheel({25, 25});
  EXPECT_EQ(below->presses, 1);
  EXPECT_EQ(below->wheels, 1);
}

// --- Covering ---

TEST_F(SubviewsItemTest, IsCoveredByAViewThatFills) {
  EXPECT_FALSE(item->isCovered());
  const auto view = make({{0, 0}, {100, 100}});
  view->setFillsSuperview(true);
  owner.root->addSubview(view);
  EXPECT_TRUE(item->isCovered());
  view->removeFromSuperview();
  EXPECT_FALSE(item->isCovered());
}

TEST_F(SubviewsItemTest, IsNotCoveredByAViewOfItsOwnSize) {
  add({{0, 0}, {100, 100}});
  EXPECT_FALSE(item->isCovered());
}

TEST_F(SubviewsItemTest, TellsThatItIsCovered) {
  const QSignalSpy changes(item.get(), &ViewItem::viewChanged);
  const auto view = make({{0, 0}, {100, 100}});
  view->setFillsSuperview(true);
  owner.root->addSubview(view);
  EXPECT_GE(changes.count(), 1);
}

TEST_F(SubviewsItemTest, WithoutAnOwnerItIsNotCovered) {
  const auto view = make({{0, 0}, {100, 100}});
  view->setFillsSuperview(true);
  owner.root->addSubview(view);
  item->setOwner(nullptr);
  EXPECT_FALSE(item->isCovered());
}

TEST_F(SubviewsItemTest, WhatFillsFollowsTheItem) {
  const auto view = make({{0, 0}, {100, 100}});
  view->setFillsSuperview(true);
  owner.root->addSubview(view);
  item->setSize({60, 40});
  EXPECT_EQ(view->frame(), (CGRect{{0, 0}, {60, 40}}));
  EXPECT_EQ(pixel(50, 30), kRedPixel);
  EXPECT_EQ(pixel(70, 30), QColor(Qt::white));
}

}  // namespace
}  // namespace kindora
