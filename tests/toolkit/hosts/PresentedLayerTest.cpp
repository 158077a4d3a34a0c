// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/toolkit/hosts/HostFixture.h"
#include "toolkit/controllers/UIAlertController.h"

namespace kindora {
namespace {

const QString kPage = QStringLiteral("Page");

// What a screen presents.
class PresentedLayerTest : public HostFixture {
 protected:
  void present(const UIViewControllerRef& controller) {
    presented = controller;
    base->presentViewController(presented, true);
    drawHost("PresentedLayer", presented.get());
  }
  [[nodiscard]] bool covers() const { return host->property("covers").toBool(); }

  const UIViewControllerRef base = screen(QStringLiteral("base"));
  UIViewControllerRef presented;
};

TEST_F(PresentedLayerTest, APageRisesFromBelowAndThenCovers) {
  present(screen(kPage));
  EXPECT_EQ(place(found(kPage)).top(), kHeight);
  time.advance(0.2);
  EXPECT_LT(place(found(kPage)).top(), kHeight);
  EXPECT_FALSE(covers());
  time.advance(0.5);
  EXPECT_EQ(place(found(kPage)), QRectF(0, 0, kWidth, kHeight));
  EXPECT_TRUE(covers());
}

TEST_F(PresentedLayerTest, WithoutMotionAPageFadesIn) {
  looks->change({.reducedMotion = true});
  present(screen(kPage));
  QQuickItem* page = found(kPage)->parentItem();
  EXPECT_EQ(place(page).top(), 0);
  EXPECT_EQ(page->opacity(), 0);
  time.advance(0.5);
  EXPECT_EQ(page->opacity(), 1);
  EXPECT_TRUE(covers());
}

TEST_F(PresentedLayerTest, APageThatLeavesCoversNoLonger) {
  present(screen(kPage));
  time.advance(0.5);
  presented->dismissViewController(true);
  time.advance(0.1);
  EXPECT_FALSE(covers());
  EXPECT_GT(place(found(kPage)).top(), 0);
}

TEST_F(PresentedLayerTest, AnAlertStandsStillAndNeverCovers) {
  present(
      makeViewController<UIAlertController>("Title", std::nullopt, UIAlertControllerStyle::alert));
  const QQuickItem* card = found(QStringLiteral("alertCard"));
  ASSERT_NE(card, nullptr);
  const QPointF middle = place(card).center();
  time.advance(0.5);
  EXPECT_EQ(place(card).center(), middle);
  EXPECT_FALSE(covers());
}

TEST_F(PresentedLayerTest, UnderAnotherItTakesNoPresses) {
  present(screen(kPage));
  time.advance(0.5);
  clickAt({160, 240});
  EXPECT_EQ(found(kPage)->property("presses").toInt(), 1);
  host->setProperty("covered", true);
  clickAt({160, 240});
  EXPECT_EQ(found(kPage)->property("presses").toInt(), 1);
  host->setProperty("covered", false);
  clickAt({160, 240});
  EXPECT_EQ(found(kPage)->property("presses").toInt(), 2);
}

}  // namespace
}  // namespace kindora
