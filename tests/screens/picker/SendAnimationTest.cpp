// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/picker/SendAnimation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "platform/fakes/FakeServices.h"
#include "tests/support/ManualTime.h"
#include "toolkit/controllers/Screen.h"
#include "toolkit/view/SpringTiming.h"
#include "toolkit/view/UIImageView.h"

namespace kindora {
namespace {

constexpr CGRect kWindow{{0, 0}, {390, 844}};
constexpr CGPoint kMiddle{195, 422};

// Plays over a window of 390 x 844 points.
class SendAnimationTest : public ::testing::Test {
 protected:
  SendAnimationTest() { window->reportFrame(kWindow); }
  ~SendAnimationTest() override { time.advance(6); }

  void run() {
    SendAnimation::run(window, picture, [this] { ++completed; });
  }
  // Moves to that many seconds after the start.
  void until(double seconds) {
    time.advance(seconds - elapsed_);
    elapsed_ = seconds;
  }
  void runUntil(double seconds) {
    run();
    until(seconds);
  }

  [[nodiscard]] UIView& overlay() const { return *window->subviews().at(0); }
  [[nodiscard]] UIView& stage() const { return *overlay().subviews().at(0); }
  [[nodiscard]] UIView& card() const { return *stage().subviews().at(0); }
  [[nodiscard]] UIView& container() const { return *card().subviews().at(0); }
  // From the lowest.
  [[nodiscard]] UIImageView& page(std::size_t index) const {
    return dynamic_cast<UIImageView&>(*container().subviews().at(index));
  }
  // In the window, where it settles.
  [[nodiscard]] CGPoint centreOfCard() const {
    const CGPoint origin = card().originInWindow();
    return centerOf({origin, card().frame().size});
  }
  [[nodiscard]] double darkness() const { return overlay().presentation().backgroundColor.alpha; }
  // How far the card is from where it settles.
  [[nodiscard]] double height() const { return -card().presentation().translation.y; }
  [[nodiscard]] double scale() const { return card().presentation().scaling; }

  const FakeServices fakes = installFakeServices();
  ManualTime time{fakes.mainQueue};
  const UIViewRef window = std::make_shared<UIView>();
  UIImageRef picture = UIImage::imageWithRaster(Raster(2, 2));
  int completed = 0;

 private:
  double elapsed_ = 0;
};

// --- What is built ---

TEST_F(SendAnimationTest, LaysATransparentBlackOverEverything) {
  run();
  EXPECT_EQ(overlay().frame(), kWindow);
  EXPECT_EQ(overlay().presentation().backgroundColor, (UIColor{0, 0, 0, 0}));
  EXPECT_TRUE(hasCoveringSubview(*window));
}

TEST_F(SendAnimationTest, TheOverlayFollowsTheWindow) {
  run();
  window->reportFrame({{0, 0}, {600, 400}});
  EXPECT_EQ(overlay().frame(), (CGRect{{0, 0}, {600, 400}}));
}

TEST_F(SendAnimationTest, ItsCardIsASquareOf250PointsInTheMiddle) {
  run();
  EXPECT_EQ(card().frame().size, (CGSize{250, 250}));
  EXPECT_EQ(centreOfCard(), kMiddle);
}

TEST_F(SendAnimationTest, ItsCardStaysInTheMiddleOfAnotherSize) {
  runUntil(1.1);
  window->reportFrame({{0, 0}, {600, 400}});
  EXPECT_EQ(centreOfCard(), (CGPoint{300, 200}));
  EXPECT_EQ(card().frame().size, (CGSize{250, 250}));
}

TEST_F(SendAnimationTest, ItsCardSettlesWhileTheSizeChanges) {
  runUntil(0.1);
  const double before = height();
  window->reportFrame({{0, 0}, {600, 400}});
  EXPECT_EQ(height(), before);
  until(1.01);
  EXPECT_EQ(height(), 0);
  EXPECT_EQ(centreOfCard(), (CGPoint{300, 200}));
}

TEST_F(SendAnimationTest, ItsCardCastsAShadowThatIsDrawnThroughABitmap) {
  run();
  EXPECT_EQ(card().state().shadowOpacity, 0.5);
  EXPECT_TRUE(card().shouldRasterize());
  EXPECT_EQ(card().rasterizationScale(), mainScreenScale());
  EXPECT_FALSE(card().clipsToBounds());
}

TEST_F(SendAnimationTest, ThePictureIsCutToRoundedCorners) {
  run();
  EXPECT_EQ(container().state().cornerRadius, 20);
  EXPECT_TRUE(container().clipsToBounds());
  EXPECT_EQ(container().frame(), (CGRect{{0, 0}, {250, 250}}));
}

TEST_F(SendAnimationTest, ThePictureFillsTheCard) {
  run();
  EXPECT_EQ(page(0).image(), picture);
  EXPECT_EQ(page(0).frame(), (CGRect{{0, 0}, {250, 250}}));
  EXPECT_EQ(page(0).contentMode(), UIViewContentMode::scaleAspectFill);
  EXPECT_TRUE(page(0).clipsToBounds());
}

TEST_F(SendAnimationTest, WithoutAPictureTheCardIsEmpty) {
  picture = nullptr;
  run();
  EXPECT_EQ(page(0).image(), nullptr);
  until(5);
  EXPECT_EQ(completed, 1);
}

// --- Second by second ---

TEST_F(SendAnimationTest, DarkensWithinHalfASecond) {
  runUntil(0.25);
  EXPECT_NEAR(darkness(), 0.125, 0.01);
  until(0.505);
  EXPECT_EQ(darkness(), 0.25);
}

TEST_F(SendAnimationTest, TheCardSettlesOnASpringWithinOneSecond) {
  run();
  const double from = height();
  EXPECT_LT(from, -kWindow.size.height / 2);
  for (const double seconds : {0.1, 0.4, 0.8}) {
    until(seconds);
    const double way = springProgress({.dampingRatio = 0.75}, 1, seconds);
    EXPECT_NEAR(height(), from * (1 - way), 8) << seconds;
  }
  until(1.005);
  EXPECT_EQ(card().presentation().translation, (CGPoint{0, 0}));
  EXPECT_EQ(scale(), 1);
}

TEST_F(SendAnimationTest, TheCoverComesAfterOneSecond) {
  runUntil(0.99);
  EXPECT_EQ(container().subviews().size(), 1u);
  until(1.005);
  ASSERT_EQ(container().subviews().size(), 2u);
  EXPECT_EQ(page(1).image(), fakes.bundle->imageNamed("scratchImage"));
  EXPECT_EQ(page(1).frame(), (CGRect{{0, 0}, {250, 250}}));
}

TEST_F(SendAnimationTest, TheCoverIsLaidLikeAPageOverThePicture) {
  runUntil(1.5);
  EXPECT_EQ(page(0).image(), picture);
  EXPECT_NEAR(page(1).presentation().curl, 0.5, 0.02);
  EXPECT_EQ(page(1).presentation().alpha, 1);
  EXPECT_EQ(page(0).presentation().alpha, 1);
}

TEST_F(SendAnimationTest, TheCoverLiesAfterTwoSecondsAndThePictureGoes) {
  runUntil(1.99);
  EXPECT_LT(page(1).presentation().curl, 1);
  until(2.01);
  ASSERT_EQ(container().subviews().size(), 1u);
  EXPECT_EQ(page(0).image(), fakes.bundle->imageNamed("scratchImage"));
  EXPECT_EQ(page(0).presentation().curl, 1);
}

TEST_F(SendAnimationTest, WithoutACoverPictureItGoesOn) {
  fakes.bundle->setMissing("scratchImage");
  runUntil(5);
  EXPECT_EQ(completed, 1);
}

TEST_F(SendAnimationTest, RestsAQuarterOfASecondOnceWrapped) {
  runUntil(2.25);
  EXPECT_EQ(scale(), 1);
  EXPECT_EQ(height(), 0);
  until(2.3);
  EXPECT_NE(scale(), 1);
}

TEST_F(SendAnimationTest, ThenBouncesForOneSecond) {
  runUntil(2.26);
  double least = 1;
  for (int i = 0; i < 98; ++i) {
    until(2.26 + 0.01 * i);
    least = std::min(least, scale());
  }
  until(3.265);
  EXPECT_LT(least, scale() - 0.01);  // it overshot
}

TEST_F(SendAnimationTest, ThenGathersWayForAFifthOfASecond) {
  runUntil(3.25);
  EXPECT_EQ(height(), 0);
  until(3.44);
  EXPECT_LT(height(), -10);
}

TEST_F(SendAnimationTest, ThenFliesOutOfSightForOneAndAHalfSeconds) {
  runUntil(3.6);
  EXPECT_GT(height(), 100);
  until(4.9);
  EXPECT_GT(height() - 125, kWindow.size.height / 2);  // even its lower edge
  EXPECT_LT(darkness(), 0.01);
}

TEST_F(SendAnimationTest, StaysDarkUntilTheCardFlies) {
  run();
  for (const double seconds : {0.6, 1.5, 2.5, 3.4}) {
    until(seconds);
    EXPECT_EQ(darkness(), 0.25) << seconds;
  }
}

TEST_F(SendAnimationTest, EndsAfter495Seconds) {
  runUntil(4.94);
  EXPECT_EQ(completed, 0);
  EXPECT_EQ(window->subviews().size(), 1u);
  until(4.97);
  EXPECT_EQ(completed, 1);
  EXPECT_TRUE(window->subviews().empty());
}

TEST_F(SendAnimationTest, TheOverlayHasGoneWhenItCompletes) {
  bool there = true;
  SendAnimation::run(window, picture, [&] { there = !window->subviews().empty(); });
  until(5);
  EXPECT_FALSE(there);
}

TEST_F(SendAnimationTest, CompletesOnceAndLeavesNothing) {
  run();
  const std::weak_ptr<UIView> gone = window->subviews().front();
  until(20);
  EXPECT_EQ(completed, 1);
  EXPECT_TRUE(gone.expired());
}

}  // namespace
}  // namespace kindora
