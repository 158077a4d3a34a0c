// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/qt/ScratchImageViewItem.h"

#include <QSignalSpy>
#include <QTest>
#include <cmath>

#include "platform/fakes/ManualQueue.h"
#include "tests/support/ManualTime.h"
#include "tests/support/QuickFixture.h"

namespace kindora {
namespace {

// Keeps what it is told.
class ProgressEar final : public JxScratchImageViewDelegate {
 public:
  std::vector<double> heard;
  void jxScratchImageView(JxScratchImageView& /*view*/, double progress) override {
    heard.push_back(progress);
  }
};

// A red cover of 80 x 80 points at (10, 10), two pixels a point, under a brush of 4 points.
class ScratchImageViewItemTest : public QuickFixture {
 protected:
  ScratchImageViewItemTest() {
    cover->setImage(plainPicture(160, 160, kRed), 8);
    cover->setDelegate(ear);
    item->setOutlet(QStringLiteral("cover"));
    item->setOwner(&owner);
  }

  // Whether the cover is gone there, in points of the item.
  [[nodiscard]] bool isErased(std::size_t x, std::size_t y) const {
    return cover->image()->raster().pixel(2 * x, 2 * y).alpha == 0;
  }

  // In points of the item.
  void mouse(QEvent::Type type, QPointF at, Qt::MouseButton button = Qt::LeftButton,
             Qt::MouseButtons buttons = Qt::LeftButton) {
    const QPointF inWindow = item->mapToScene(at);
    QMouseEvent event(type, inWindow, inWindow, button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
  }
  void press(QPointF at) { mouse(QEvent::MouseButtonPress, at); }
  void drag(QPointF to) { mouse(QEvent::MouseMove, to, Qt::NoButton); }
  void release(QPointF at) { mouse(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton); }
  [[nodiscard]] QPoint place(QPointF at) const { return item->mapToScene(at).toPoint(); }

  using QuickFixture::place;
  Owner owner;
  const std::shared_ptr<ProgressEar> ear = std::make_shared<ProgressEar>();
  const std::shared_ptr<JxScratchImageView> cover = owner.make<JxScratchImageView>("cover");
  const std::unique_ptr<ScratchImageViewItem> item =
      QuickFixture::place<ScratchImageViewItem>({10, 10, 80, 80});
};

// --- Drawing ---

TEST_F(ScratchImageViewItemTest, DrawsTheCoverInItsPlace) {
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(11, 11), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(88, 88), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(5, 50), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(94, 50), QColor(Qt::white));
}

TEST_F(ScratchImageViewItemTest, WhatIsScratchedAwayShowsWhatLiesBelow) {
  EXPECT_EQ(pixel(50, 50), QColor(Qt::red));
  press({40, 40});
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(60, 50), QColor(Qt::red));
}

TEST_F(ScratchImageViewItemTest, EveryPartOfTheCoverIsDrawnAnewWhenItIsScratched) {
  EXPECT_EQ(pixel(50, 50), QColor(Qt::red));
  for (const QPointF at : {QPointF{10, 10}, {70, 10}, {10, 70}, {70, 70}, {32, 32}}) {
    press(at);
    release(at);
    const QPoint here = place(at);
    EXPECT_EQ(pixel(here.x(), here.y()), QColor(Qt::white)) << at.x() << ", " << at.y();
  }
}

TEST_F(ScratchImageViewItemTest, WithoutACoverItDrawsNothing) {
  cover->setImage(nullptr, 8);
  EXPECT_EQ(pixel(50, 50), QColor(Qt::white));
}

TEST_F(ScratchImageViewItemTest, DrawsANewCover) {
  EXPECT_EQ(pixel(50, 50), QColor(Qt::red));
  cover->setImage(plainPicture(40, 40, kBlue), 8);
  EXPECT_EQ(pixel(50, 50), QColor(Qt::blue));
  EXPECT_EQ(pixel(88, 88), QColor(Qt::blue));
}

TEST_F(ScratchImageViewItemTest, RoundedCornersAreTransparent) {
  item->setRadius(20);
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(12, 12), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(87, 87), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(87, 12), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(12, 87), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(50, 12), QColor(Qt::red));
}

TEST_F(ScratchImageViewItemTest, ARadiusSetLaterRoundsWhatIsDrawn) {
  EXPECT_EQ(pixel(12, 12), QColor(Qt::red));
  QSignalSpy changes(item.get(), &ScratchImageViewItem::radiusChanged);
  item->setRadius(20);
  item->setRadius(20);
  EXPECT_EQ(pixel(12, 12), QColor(Qt::white));
  EXPECT_EQ(changes.count(), 1);
}

TEST_F(ScratchImageViewItemTest, StretchesTheCoverOverItsSize) {
  item->setSize({40, 80});
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(48, 88), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(55, 50), QColor(Qt::white));
}

TEST_F(ScratchImageViewItemTest, WithoutASizeItDrawsNothing) {
  item->setSize({0, 80});
  EXPECT_EQ(pixel(10, 50), QColor(Qt::white));
}

// --- Mouse ---

TEST_F(ScratchImageViewItemTest, APressErasesUnderThePointer) {
  press({20, 30});
  EXPECT_TRUE(isErased(20, 30));
  EXPECT_FALSE(isErased(20, 40));
  EXPECT_EQ(ear->heard.size(), 1u);
}

TEST_F(ScratchImageViewItemTest, ADragErasesTheWayFromThePress) {
  press({20, 30});
  drag({60, 30});
  for (const std::size_t x : {20u, 30u, 40u, 50u, 60u}) EXPECT_TRUE(isErased(x, 30)) << x;
}

TEST_F(ScratchImageViewItemTest, EveryDragGoesOnFromTheLast) {
  press({20, 20});
  drag({60, 20});
  drag({60, 60});
  EXPECT_TRUE(isErased(60, 40));
  EXPECT_FALSE(isErased(40, 40));
}

TEST_F(ScratchImageViewItemTest, APressStartsANewWay) {
  press({20, 20});
  release({20, 20});
  press({60, 20});
  drag({60, 60});
  EXPECT_FALSE(isErased(40, 20));
  EXPECT_TRUE(isErased(60, 40));
}

TEST_F(ScratchImageViewItemTest, ReleasingErasesNothing) {
  press({20, 20});
  release({60, 60});
  EXPECT_FALSE(isErased(60, 60));
  EXPECT_FALSE(isErased(40, 40));
}

TEST_F(ScratchImageViewItemTest, AMoveWithoutAPressErasesNothing) {
  mouse(QEvent::MouseMove, {40, 40}, Qt::NoButton, Qt::NoButton);
  EXPECT_FALSE(isErased(40, 40));
  EXPECT_TRUE(ear->heard.empty());
}

TEST_F(ScratchImageViewItemTest, OtherButtonsEraseNothing) {
  mouse(QEvent::MouseButtonPress, {40, 40}, Qt::RightButton, Qt::RightButton);
  EXPECT_FALSE(isErased(40, 40));
}

TEST_F(ScratchImageViewItemTest, ADragBeyondItsEdgeGoesOn) {
  press({70, 40});
  drag({200, 40});
  EXPECT_TRUE(isErased(78, 40));
  drag({70, 10});
  EXPECT_TRUE(isErased(70, 10));
}

TEST_F(ScratchImageViewItemTest, TheEventsOfADragWithoutAMoveAreNoHarm) {
  press({40, 40});
  const std::size_t reports = ear->heard.size();
  for (int i = 0; i < 3; ++i) drag({40, 40});
  EXPECT_FALSE(isErased(50, 50));
  EXPECT_LE(ear->heard.size(), reports + 1);
}

TEST_F(ScratchImageViewItemTest, ErasesUnderThePointerWhenItIsScaled) {
  item->setTransformOrigin(QQuickItem::TopLeft);
  item->setScale(0.5);
  press({60, 60});
  EXPECT_TRUE(isErased(60, 60));
  EXPECT_FALSE(isErased(30, 30));
}

TEST_F(ScratchImageViewItemTest, KeepsTheMouseForItself) {
  press({40, 40});
  EXPECT_TRUE(item->keepMouseGrab());
}

TEST_F(ScratchImageViewItemTest, WhenItIsNotShownItErasesNothing) {
  cover->setAlpha(0);
  press({40, 40});
  EXPECT_FALSE(isErased(40, 40));
}

TEST_F(ScratchImageViewItemTest, WithoutACoverEveryPressIsReported) {
  cover->setImage(nullptr, 8);
  press({40, 40});
  ASSERT_EQ(ear->heard.size(), 1u);
  EXPECT_TRUE(std::isinf(ear->heard[0]));
}

TEST_F(ScratchImageViewItemTest, WithoutAViewItLeavesThePointerAlone) {
  item->setOwner(nullptr);
  item->setVisible(true);
  press({40, 40});
  drag({60, 60});
  EXPECT_TRUE(ear->heard.empty());
}

// --- Fingers ---

class ScratchImageViewItemTouchTest : public ScratchImageViewItemTest {
 protected:
  ScratchImageViewItemTouchTest() {
    window.show();
    QCoreApplication::processEvents();
  }
  ~ScratchImageViewItemTouchTest() override { delete screen_; }

  QTest::QTouchEventSequence touch() { return QTest::touchEvent(&window, screen_, false); }
  QPointingDevice* screen_ = QTest::createTouchDevice();
};

TEST_F(ScratchImageViewItemTouchTest, AFingerErasesWhereItComesDown) {
  touch().press(0, place({20, 30})).commit();
  EXPECT_TRUE(isErased(20, 30));
  EXPECT_FALSE(isErased(20, 40));
}

TEST_F(ScratchImageViewItemTouchTest, AFingerErasesItsWay) {
  touch().press(0, place({20, 20})).commit();
  touch().move(0, place({60, 20})).commit();
  touch().move(0, place({60, 60})).commit();
  EXPECT_TRUE(isErased(40, 20));
  EXPECT_TRUE(isErased(60, 40));
  EXPECT_FALSE(isErased(40, 40));
}

TEST_F(ScratchImageViewItemTouchTest, EachFingerGoesItsOwnWay) {
  touch().press(0, place({10, 20})).press(1, place({10, 60})).commit();
  touch().move(0, place({40, 20})).move(1, place({40, 60})).commit();
  touch().move(0, place({70, 20})).move(1, place({70, 60})).commit();
  EXPECT_TRUE(isErased(25, 20));
  EXPECT_TRUE(isErased(55, 20));
  EXPECT_TRUE(isErased(25, 60));
  EXPECT_TRUE(isErased(55, 60));
  EXPECT_FALSE(isErased(40, 40));
  EXPECT_FALSE(isErased(55, 40));
}

TEST_F(ScratchImageViewItemTouchTest, TheFingersOfAnEventAreOneReport) {
  touch().press(0, place({10, 20})).press(1, place({70, 60})).commit();
  EXPECT_EQ(ear->heard.size(), 1u);
}

TEST_F(ScratchImageViewItemTouchTest, FingersThatComeAreReportedBeforeThoseThatMove) {
  touch().press(0, place({10, 20})).commit();
  ear->heard.clear();
  touch().press(1, place({70, 70})).move(0, place({40, 60})).commit();
  ASSERT_EQ(ear->heard.size(), 2u);
  const double cell = 1.0 / 100;  // ten by ten cells
  EXPECT_NEAR(ear->heard[0], 2 * cell, 1e-12);
  EXPECT_TRUE(isErased(70, 70));
  EXPECT_TRUE(isErased(25, 40));
}

TEST_F(ScratchImageViewItemTouchTest, AFingerThatRestsErasesNothing) {
  touch().press(0, place({20, 20})).press(1, place({60, 60})).commit();
  cover->setImage(plainPicture(160, 160, kBlue), 8);
  touch().stationary(0).move(1, place({60, 70})).commit();
  EXPECT_FALSE(isErased(20, 20));
  EXPECT_TRUE(isErased(60, 65));
}

TEST_F(ScratchImageViewItemTouchTest, LiftingAFingerErasesNothing) {
  touch().press(0, place({20, 20})).commit();
  cover->setImage(plainPicture(160, 160, kBlue), 8);
  touch().release(0, place({20, 20})).commit();
  EXPECT_FALSE(isErased(20, 20));
}

TEST_F(ScratchImageViewItemTouchTest, AFingerThatComesBackStartsANewWay) {
  touch().press(0, place({20, 20})).commit();
  touch().release(0, place({20, 20})).commit();
  touch().press(0, place({60, 20})).commit();
  touch().move(0, place({60, 60})).commit();
  EXPECT_FALSE(isErased(40, 20));
  EXPECT_FALSE(isErased(40, 40));
  EXPECT_TRUE(isErased(60, 40));
}

TEST_F(ScratchImageViewItemTouchTest, KeepsTheFingersForItself) {
  touch().press(0, place({20, 20})).commit();
  EXPECT_TRUE(item->keepTouchGrab());
}

// --- By itself ---

class ScratchImageViewItemScratchAwayTest : public ScratchImageViewItemTest {
 protected:
  ~ScratchImageViewItemScratchAwayTest() override { time.advance(2); }
  ManualTime time{std::make_shared<ManualQueue>()};
};

TEST_F(ScratchImageViewItemScratchAwayTest, EndsWithTheWholeCoverGone) {
  item->scratchAway();
  time.advance(2);
  std::size_t left = 0;
  for (const Rgba8 color : cover->image()->raster().pixels()) {
    if (color.alpha != 0) ++left;
  }
  EXPECT_LT(left, 160u * 160u / 100u);
}

TEST_F(ScratchImageViewItemScratchAwayTest, ReportsMoreThanTheRevealNeeds) {
  item->scratchAway();
  time.advance(2);
  ASSERT_FALSE(ear->heard.empty());
  EXPECT_GT(ear->heard.back(), 0.7);
}

TEST_F(ScratchImageViewItemScratchAwayTest, GoesOverTheCoverBitByBit) {
  item->scratchAway();
  time.advance(0.5);
  EXPECT_TRUE(isErased(40, 2));
  EXPECT_FALSE(isErased(40, 78));
}

TEST_F(ScratchImageViewItemScratchAwayTest, AskedAgainItGoesOnAsItWas) {
  item->scratchAway();
  time.advance(0.9);
  const double reached = ear->heard.back();
  item->scratchAway();
  time.advance(0.1);
  EXPECT_GE(ear->heard.back(), reached);
  EXPECT_FALSE(isErased(40, 78));
  time.advance(0.85);
  EXPECT_TRUE(isErased(40, 78));
}

TEST_F(ScratchImageViewItemScratchAwayTest, StopsWhenItIsToldTo) {
  item->scratchAway();
  time.advance(0.9);
  const std::size_t heard = ear->heard.size();
  item->stopScratchingAway();
  time.advance(1);
  EXPECT_EQ(ear->heard.size(), heard);
  EXPECT_FALSE(isErased(40, 78));
  item->scratchAway();
  time.advance(2);
  EXPECT_TRUE(isErased(40, 78));
}

TEST_F(ScratchImageViewItemScratchAwayTest, WorksWithoutACover) {
  cover->setImage(nullptr, 8);
  item->scratchAway();
  time.advance(0.5);
  ASSERT_FALSE(ear->heard.empty());
  EXPECT_TRUE(std::isinf(ear->heard.back()));
}

TEST_F(ScratchImageViewItemScratchAwayTest, WithoutAViewItDoesNothing) {
  item->setOwner(nullptr);
  item->scratchAway();
  time.advance(2);
  EXPECT_TRUE(ear->heard.empty());
}

}  // namespace
}  // namespace kindora
