// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/ViewItem.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>

#include "platform/fakes/ManualQueue.h"
#include "tests/support/ManualTime.h"
#include "tests/support/QuickFixture.h"
#include "toolkit/controllers/UIViewAnimation.h"
#include "toolkit/quick/Appearance.h"
#include "toolkit/view/UIButton.h"
#include "toolkit/view/UIImageView.h"
#include "toolkit/view/UILabel.h"

namespace kindora {
namespace {

class ViewItemTest : public QuickFixture {
 protected:
  void draw(const char* outlet) {
    item->setOutlet(QLatin1String(outlet));
    item->setOwner(&owner);
  }

  Owner owner;
  const std::unique_ptr<ViewItem> item = place<ViewItem>({10, 20, 30, 40});
};

// --- Connecting ---

TEST_F(ViewItemTest, WithoutAnOwnerItIsNotShown) {
  EXPECT_FALSE(item->isShown());
  EXPECT_TRUE(item->text().isEmpty());
  EXPECT_EQ(item->image(), ImageHandle{});
}

TEST_F(ViewItemTest, ShowsTheViewThatItsOutletNames) {
  owner.make<UILabel>("label")->setText("Hello");
  draw("label");
  EXPECT_TRUE(item->isShown());
  EXPECT_EQ(item->text(), QStringLiteral("Hello"));
}

TEST_F(ViewItemTest, ShowsARootView) {
  draw("view");
  EXPECT_TRUE(item->isShown());
  EXPECT_TRUE(item->isVisible());
}

TEST_F(ViewItemTest, AnUnknownOutletStops) {
  EXPECT_DEATH(draw("missing"), "fatal error: no outlet \"missing\"");
}

TEST_F(ViewItemTest, AnotherOutletTakesThePlaceOfTheFirst) {
  const auto first = owner.make<UILabel>("first");
  owner.make<UILabel>("second")->setText("Second");
  draw("first");
  item->setOutlet(QStringLiteral("second"));
  EXPECT_EQ(item->text(), QStringLiteral("Second"));
  QSignalSpy changes(item.get(), &ViewItem::viewChanged);
  first->setText("First");
  EXPECT_EQ(changes.count(), 0);
}

TEST_F(ViewItemTest, GivesUpItsViewWithItsOwner) {
  owner.make<UILabel>("label")->setText("Hello");
  draw("label");
  item->setOwner(nullptr);
  EXPECT_FALSE(item->isShown());
  EXPECT_TRUE(item->text().isEmpty());
}

TEST_F(ViewItemTest, AnItemThatHasGoneHearsNothing) {
  const auto label = owner.make<UILabel>("label");
  {
    const auto passing = place<ViewItem>({0, 0, 1, 1});
    passing->setOutlet(QStringLiteral("label"));
    passing->setOwner(&owner);
  }
  label->setText("Hello");
  EXPECT_EQ(label->text(), "Hello");
}

TEST_F(ViewItemTest, TellsOwnerAndOutletOnce) {
  owner.make<UIView>("box");
  QSignalSpy owners(item.get(), &ViewItem::ownerChanged);
  QSignalSpy outlets(item.get(), &ViewItem::outletChanged);
  draw("box");
  draw("box");
  EXPECT_EQ(owners.count(), 1);
  EXPECT_EQ(outlets.count(), 1);
}

// --- What it takes from the view ---

TEST_F(ViewItemTest, IsAsOpaqueAsTheViewShows) {
  const auto view = owner.make<UIView>("box");
  draw("box");
  view->setAlpha(0.25);
  EXPECT_EQ(item->opacity(), 0.25);
}

TEST_F(ViewItemTest, IsHiddenAtAlpha0) {
  const auto view = owner.make<UIView>("box");
  draw("box");
  view->setAlpha(0);
  EXPECT_FALSE(item->isShown());
  EXPECT_FALSE(item->isVisible());
  view->setAlpha(0.01);
  EXPECT_TRUE(item->isVisible());
}

TEST_F(ViewItemTest, IsHiddenOnceTheViewIsRemoved) {
  const auto view = owner.make<UIView>("box");
  draw("box");
  view->removeFromSuperview();
  EXPECT_FALSE(item->isShown());
  EXPECT_FALSE(item->isVisible());
}

TEST_F(ViewItemTest, FollowsWhatIsShownAndNotWhereItGoes) {
  ManualTime time{std::make_shared<ManualQueue>()};
  const auto view = owner.make<UIView>("box");
  draw("box");
  animateWithDuration({.duration = 0.2, .curve = UIViewAnimationCurve::linear},
                      [&view] { view->setAlpha(0); });
  EXPECT_EQ(item->opacity(), 1);
  time.advance(0.1);
  EXPECT_NEAR(item->opacity(), 0.5, 0.02);
  EXPECT_TRUE(item->isVisible());
  time.advance(0.11);
  EXPECT_FALSE(item->isVisible());
}

TEST_F(ViewItemTest, IsScaledLikeTheView) {
  const auto view = owner.make<UIView>("box");
  draw("box");
  view->setState({.scaling = 1.5});
  EXPECT_EQ(item->scale(), 1.5);
}

TEST_F(ViewItemTest, IsDisabledWithItsButton) {
  const auto button = owner.make<UIButton>("button");
  draw("button");
  EXPECT_TRUE(item->isEnabled());
  button->setEnabled(false);
  EXPECT_FALSE(item->isEnabled());
  button->setEnabled(true);
  EXPECT_TRUE(item->isEnabled());
}

TEST_F(ViewItemTest, IsDisabledWhileTheViewTakesNoInput) {
  const auto view = owner.make<UIView>("box");
  draw("box");
  EXPECT_TRUE(item->isEnabled());
  view->setUserInteractionEnabled(false);
  EXPECT_FALSE(item->isEnabled());
}

TEST_F(ViewItemTest, ShowsTheTitleOfAButton) {
  owner.make<UIButton>("button")->setTitle("Accept");
  draw("button");
  EXPECT_EQ(item->text(), QStringLiteral("Accept"));
}

TEST_F(ViewItemTest, AnAbsentTextIsEmpty) {
  owner.make<UILabel>("label");
  draw("label");
  EXPECT_TRUE(item->text().isEmpty());
}

TEST_F(ViewItemTest, TakesTextAsUtf8) {
  owner.make<UILabel>("label")->setText("Caf\xC3\xA9");
  draw("label");
  EXPECT_EQ(item->text(), QStringLiteral("Caf\u00E9"));
}

TEST_F(ViewItemTest, AColourThatIsNotSetIsInvalid) {
  const auto label = owner.make<UILabel>("label");
  draw("label");
  EXPECT_FALSE(item->textColor().isValid());
  label->setTextColor(UIColor::yellowColor());
  EXPECT_EQ(item->textColor(), QColor(Qt::yellow));
}

TEST_F(ViewItemTest, AnAlignmentThatIsNotSetIsNone) {
  const auto label = owner.make<UILabel>("label");
  draw("label");
  EXPECT_EQ(item->textAlignment(), 0);
  label->setTextAlignment(NSTextAlignment::left);
  EXPECT_EQ(item->textAlignment(), Qt::AlignLeft);
  label->setTextAlignment(NSTextAlignment::center);
  EXPECT_EQ(item->textAlignment(), Qt::AlignHCenter);
  label->setTextAlignment(NSTextAlignment::right);
  EXPECT_EQ(item->textAlignment(), Qt::AlignRight);
}

TEST_F(ViewItemTest, AFontThatIsNotSetHas16Points) {
  const auto label = owner.make<UILabel>("label");
  draw("label");
  EXPECT_FALSE(item->hasTextFont());
  EXPECT_EQ(item->textFont(), Appearance::font(16));
  label->setFont(UIFont::systemFontOfSize(20));
  EXPECT_TRUE(item->hasTextFont());
  EXPECT_EQ(item->textFont().pixelSize(), 20);
}

TEST_F(ViewItemTest, AShadowHasTheCornersOfItsPathElseThoseOfTheView) {
  const auto view = owner.make<UIView>("card");
  draw("card");
  view->setCornerRadius(6);
  EXPECT_EQ(item->shadowRadius(), 6);
  view->setShadowPathRadius(16);
  EXPECT_EQ(item->shadowRadius(), 16);
}

TEST_F(ViewItemTest, PassesTheImageOn) {
  const auto view = owner.make<UIImageView>("picture");
  draw("picture");
  EXPECT_EQ(item->image().image, nullptr);
  const UIImageRef image = plainPicture(1, 1, kRed);
  view->setImage(image);
  EXPECT_EQ(item->image().image, image);
}

TEST_F(ViewItemTest, OffersWhatTheStoryboardMayDraw) {
  const auto view = owner.make<UIView>("box");
  draw("box");
  view->setState({.translation = {1, 2.5},
                  .cornerRadius = 20,
                  .shadowOpacity = 0.5,
                  .shadowOffset = {0, 3},
                  .layout = 0.75});
  EXPECT_EQ(item->translation(), QPointF(1, 2.5));
  EXPECT_EQ(item->cornerRadius(), 20);
  EXPECT_EQ(item->shadowOpacity(), 0.5);
  EXPECT_EQ(item->shadowOffset(), QPointF(0, 3));
  EXPECT_EQ(item->layoutProgress(), 0.75);
}

TEST_F(ViewItemTest, TellsEveryChangeOfTheView) {
  const auto label = owner.make<UILabel>("label");
  draw("label");
  QSignalSpy changes(item.get(), &ViewItem::viewChanged);
  label->setText("Hello");
  EXPECT_EQ(changes.count(), 1);
}

// --- What it reports ---

TEST_F(ViewItemTest, ReportsItsPlaceWhenItIsConnected) {
  const auto view = owner.make<UIView>("box");
  draw("box");
  EXPECT_EQ(view->frame(), (CGRect{{10, 20}, {30, 40}}));
}

TEST_F(ViewItemTest, ReportsEveryChangeOfItsPlace) {
  const auto view = owner.make<UIView>("box");
  draw("box");
  item->setX(15);
  EXPECT_EQ(view->frame(), (CGRect{{15, 20}, {30, 40}}));
  item->setSize({50, 60});
  EXPECT_EQ(view->frame(), (CGRect{{15, 20}, {50, 60}}));
}

// As when a window grows: the anchors move the item once more inside the change of its size.
TEST_F(ViewItemTest, ReportsThePlaceWhereItsAnchorsLeaveIt) {
  const auto view = owner.make<UIView>("box");
  QQmlEngine engine;
  QQmlComponent component(&engine);
  component.setData(R"(
import QtQuick
Item {
    width: 100; height: 100
    id: outer
    property Item inner: null
    onInnerChanged: inner.anchors.horizontalCenter = outer.horizontalCenter
})",
                    {});
  const std::unique_ptr<QQuickItem> outer(qobject_cast<QQuickItem*>(component.create()));
  ASSERT_NE(outer, nullptr) << component.errorString().toStdString();
  item->setParentItem(outer.get());
  draw("box");
  outer->setProperty("inner", QVariant::fromValue<QQuickItem*>(item.get()));
  for (const double width : {304.0, 152.0}) {
    outer->setWidth(width);
    item->setWidth(width / 2);
    EXPECT_EQ(item->x(), width / 4);
    EXPECT_EQ(view->frame(), (CGRect{{item->x(), item->y()}, {item->width(), item->height()}}));
  }
  item->setParentItem(nullptr);
}

// --- Where it is ---

TEST_F(ViewItemTest, TellsItsViewWhereItIsInTheWindow) {
  const auto view = owner.make<UIView>("box");
  draw("box");
  EXPECT_EQ(view->originInWindow(), (CGPoint{10, 20}));
  item->setX(35);
  EXPECT_EQ(view->originInWindow(), (CGPoint{35, 20}));
}

TEST_F(ViewItemTest, CountsEveryItemAroundIt) {
  const auto outer = place<QQuickItem>({5, 7, 100, 100});
  const auto view = owner.make<UIView>("box");
  item->setParentItem(outer.get());
  draw("box");
  EXPECT_EQ(view->originInWindow(), (CGPoint{15, 27}));
}

TEST_F(ViewItemTest, AViewOutlivesTheItemThatPlacedIt) {
  const auto view = owner.make<UIView>("box");
  {
    const auto passing = place<ViewItem>({60, 70, 1, 1});
    passing->setOutlet(QStringLiteral("box"));
    passing->setOwner(&owner);
    EXPECT_EQ(view->originInWindow(), (CGPoint{60, 70}));
  }
  EXPECT_EQ(view->originInWindow(), (CGPoint{60, 70}));  // from its frame now
}

// --- Hiding, controls and pictures ---

TEST_F(ViewItemTest, IsHiddenWithItsView) {
  const auto view = owner.make<UIView>("box");
  draw("box");
  view->setHidden(true);
  EXPECT_FALSE(item->isVisible());
  view->setHidden(false);
  EXPECT_TRUE(item->isVisible());
}

TEST_F(ViewItemTest, IsDisabledWithAnyControl) {
  const auto control = owner.make<UIControl>("control");
  draw("control");
  control->setEnabled(false);
  EXPECT_FALSE(item->isEnabled());
}

TEST_F(ViewItemTest, ShowsThePictureOfAButton) {
  const auto button = owner.make<UIButton>("button");
  draw("button");
  EXPECT_EQ(item->image().image, nullptr);
  const UIImageRef image = plainPicture(1, 1, kRed);
  button->setImage(image);
  EXPECT_EQ(item->image().image, image);
}

TEST_F(ViewItemTest, HearsWhatChangesInTheImageViewOfAButton) {
  const auto button = owner.make<UIButton>("button");
  draw("button");
  QSignalSpy changes(item.get(), &ViewItem::viewChanged);
  button->imageView().setContentMode(UIViewContentMode::scaleAspectFit);
  EXPECT_EQ(changes.count(), 1);
  EXPECT_TRUE(item->imageFits());
}

TEST_F(ViewItemTest, KnowsAPictureThatFits) {
  const auto view = owner.make<UIImageView>("picture");
  draw("picture");
  EXPECT_FALSE(item->imageFits());
  view->setContentMode(UIViewContentMode::scaleAspectFit);
  EXPECT_TRUE(item->imageFits());
}

TEST_F(ViewItemTest, OnlyATemplateHasATint) {
  const auto view = owner.make<UIImageView>("picture");
  draw("picture");
  view->setTintColor(UIColor::yellowColor());
  EXPECT_FALSE(item->imageTint().isValid());
  const UIImageRef image = plainPicture(1, 1, kRed);
  view->setImage(image);
  EXPECT_FALSE(item->imageTint().isValid());
  view->setImage(image->imageWithRenderingMode(UIImageRenderingMode::alwaysTemplate));
  EXPECT_EQ(item->imageTint(), QColor(Qt::yellow));
}

TEST_F(ViewItemTest, ATemplateWithoutATintTakesThatOfTheApp) {
  const auto view = owner.make<UIImageView>("picture");
  draw("picture");
  view->setImage(
      plainPicture(1, 1, kRed)->imageWithRenderingMode(UIImageRenderingMode::alwaysTemplate));
  EXPECT_EQ(item->imageTint(), Appearance::tint());
}

// --- Keyframes ---

TEST_F(ViewItemTest, ShowsTheOpacityOfKeyframes) {
  const auto view = owner.make<UIView>("box");
  draw("box");
  view->setKeyframeValues({.opacity = 0.25});
  EXPECT_EQ(item->opacity(), 0.25);
  view->setKeyframeValues({});
  EXPECT_EQ(item->opacity(), 1);
}

TEST_F(ViewItemTest, TheTransformOfKeyframesActsAboutTheCentre) {
  const auto view = owner.make<UIView>("box");
  draw("box");
  view->setKeyframeValues({.transform = CATransform3DMakeScale(2, 3, 1)});
  EXPECT_EQ(item->mapToScene({15, 20}), QPointF(25, 40));
  EXPECT_EQ(item->mapToScene({30, 40}), QPointF(55, 100));
  view->setKeyframeValues({});
  EXPECT_EQ(item->mapToScene({30, 40}), QPointF(40, 60));
}

TEST_F(ViewItemTest, TheTransformOfKeyframesStaysAboutTheCentreWhenTheItemGrows) {
  const auto view = owner.make<UIView>("box");
  draw("box");
  view->setKeyframeValues({.transform = CATransform3DMakeScale(2, 2, 1)});
  item->setSize({60, 80});
  EXPECT_EQ(item->mapToScene({30, 40}), QPointF(40, 60));
}

}  // namespace
}  // namespace kindora
