// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/curves/CurvesViewController.h"

#include <cmath>

#include "tests/gallery/GalleryFixture.h"

namespace kindora {
namespace {

class CurvesViewControllerTest : public GalleryFixture {
 protected:
  CurvesViewControllerTest() : screen(open<CurvesViewController>(kCurvesRow)) {
    screen.trackView.lock()->reportFrame({{0, 0}, {332, 48}});
    screen.ballView.lock()->reportFrame({{0, 0}, {32, 32}});
  }
  // How far the ball is shown from where it starts.
  [[nodiscard]] std::optional<double> shift() const {
    const auto& transform = screen.ballView.lock()->keyframeValues().transform;
    return transform ? std::optional(transform->m41) : std::nullopt;
  }

  CurvesViewController& screen;
};

TEST_F(CurvesViewControllerTest, TheFirstCurveOvershootsAndIsPlottedWhole) {
  EXPECT_GT(screen.highest(), 1.1);
  EXPECT_EQ(screen.lowest(), 0);
  EXPECT_EQ(screen.points().size(), 60);
  EXPECT_EQ(screen.points().front(), QPointF(0, 0));
  EXPECT_EQ(screen.points().back().x(), 1);
}

TEST_F(CurvesViewControllerTest, ASliderDrawsTheCurveAnewOnce) {
  int told = 0;
  QObject::connect(&screen, &CurvesViewController::curveChanged, &screen, [&] { ++told; });
  screen.duration()->setValue(0.5);
  EXPECT_EQ(told, 1);
  EXPECT_EQ(screen.points().size(), 30);
  EXPECT_EQ(screen.framesText(), QStringLiteral("30 frames in 0.5 s"));
  screen.duration()->setValue(0.5);
  screen.setKind(0);
  screen.setTiming(0);
  EXPECT_EQ(told, 1);
}

TEST_F(CurvesViewControllerTest, KindsAndTimingsThatAreNoneAreIgnored) {
  screen.setKind(2);
  screen.setKind(-1);
  screen.setTiming(4);
  screen.setTiming(-1);
  EXPECT_EQ(screen.kind(), 0);
  EXPECT_EQ(screen.timing(), 0);
}

TEST_F(CurvesViewControllerTest, NoSettingOfTheSlidersLeavesTheNumbers) {
  screen.setAllowsOverdamping(true);
  const auto ends = [](SliderSetting* slider) {
    return std::vector<double>{slider->minimum(), slider->maximum()};
  };
  for (const double duration : ends(screen.duration())) {
    screen.duration()->setValue(duration);
    for (const double damping : ends(screen.damping())) {
      screen.damping()->setValue(damping);
      for (const double mass : ends(screen.mass())) {
        screen.mass()->setValue(mass);
        for (const double stiffness : ends(screen.stiffness())) {
          screen.stiffness()->setValue(stiffness);
          for (const double velocity : ends(screen.velocity())) {
            screen.velocity()->setValue(velocity);
            for (const QPointF& point : screen.points()) {
              ASSERT_TRUE(std::isfinite(point.y())) << screen.character().toStdString();
            }
          }
        }
      }
    }
  }
}

TEST_F(CurvesViewControllerTest, TheBallGoesOnceFromTheBeginningToTheEndAndStays) {
  screen.setKind(1);
  screen.play();
  EXPECT_TRUE(screen.isPlaying());
  EXPECT_EQ(shift(), 0);
  time.advance(0.5);
  EXPECT_NEAR(shift().value(), 150, 5);
  time.advance(0.6);
  EXPECT_FALSE(screen.isPlaying());
  EXPECT_NEAR(shift().value(), 300, 6);
}

TEST_F(CurvesViewControllerTest, TheBallStaysOnTheTrackWhenItOvershoots) {
  screen.damping()->setValue(2);
  screen.play();
  double farthest = 0;
  for (int i = 0; i < 100; ++i) {
    time.advance(0.01);
    farthest = std::max(farthest, shift().value());
  }
  EXPECT_GT(farthest, 290);
  EXPECT_LE(farthest, 300.001);
}

TEST_F(CurvesViewControllerTest, ANewSettingPutsTheBallBack) {
  screen.play();
  time.advance(0.3);
  screen.mass()->setValue(2);
  EXPECT_FALSE(screen.isPlaying());
  EXPECT_EQ(shift(), std::nullopt);
}

TEST_F(CurvesViewControllerTest, PlayingAgainBeginsAnew) {
  screen.setKind(1);
  screen.play();
  time.advance(0.5);
  screen.play();
  EXPECT_TRUE(screen.isPlaying());
  EXPECT_EQ(shift(), 0);
}

}  // namespace
}  // namespace kindora
