// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/SpringTiming.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace kindora {
namespace {

constexpr double kStep = 0.001;  // seconds

struct Spring {
  const char* name;
  UISpring spring;
  double duration;
};

class SpringTimingTest : public ::testing::TestWithParam<Spring> {
 protected:
  [[nodiscard]] static double at(double seconds) {
    return springProgress(GetParam().spring, GetParam().duration, seconds);
  }
};

TEST_P(SpringTimingTest, BeginsAt0) { EXPECT_NEAR(at(0), 0, 1e-12); }

TEST_P(SpringTimingTest, HasAllButArrivedAtItsEnd) {
  EXPECT_NEAR(at(GetParam().duration), 1, 0.03);
}

TEST_P(SpringTimingTest, StaysWhereItHasArrived) {
  for (const double times : {2.0, 5.0, 100.0}) {
    EXPECT_NEAR(at(times * GetParam().duration), 1, 1e-4) << times;
  }
}

TEST_P(SpringTimingTest, SetsOutAtItsInitialVelocity) {
  EXPECT_NEAR(at(1e-7) / 1e-7, GetParam().spring.initialVelocity, 0.01);
}

TEST_P(SpringTimingTest, MovesWithoutLeaps) {
  for (double t = 0; t < GetParam().duration; t += kStep) {
    EXPECT_LT(std::abs(at(t + kStep) - at(t)), 0.1) << t;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Springs, SpringTimingTest,
    ::testing::Values(Spring{"Lively", {.dampingRatio = 0.5}, 1},
                      Spring{"Settling", {.dampingRatio = 0.75}, 1},
                      Spring{"Critical", {.dampingRatio = 1}, 1},
                      Spring{"CriticalAndPushed", {.dampingRatio = 1, .initialVelocity = 10}, 1.5},
                      Spring{
                          "LivelyAndPushedBack", {.dampingRatio = 0.5, .initialVelocity = -5}, 1},
                      Spring{"Tough", {.dampingRatio = 2}, 1},
                      Spring{"ToughAndPushed", {.dampingRatio = 3, .initialVelocity = 4}, 0.5},
                      Spring{"AllButCritical", {.dampingRatio = 0.999999}, 1},
                      Spring{"BarelyTough", {.dampingRatio = 1.000001}, 1},
                      Spring{"Slow", {.dampingRatio = 0.5}, 60}),
    [](const auto& instance) { return std::string(instance.param.name); });

double highest(const UISpring& spring) {
  double most = 0;
  for (double t = 0; t < 2; t += kStep) most = std::max(most, springProgress(spring, 1, t));
  return most;
}

TEST(SpringTiming, ARatioBelow1Overshoots) {
  EXPECT_GT(highest({.dampingRatio = 0.75}), 1.01);
  EXPECT_GT(highest({.dampingRatio = 0.5}), highest({.dampingRatio = 0.75}));
}

TEST(SpringTiming, OvershootsByAsMuchAsItsRatioSays) {
  // The first peak of a damped swing that is released at rest: e^(-pi z / sqrt(1 - z^2)) beyond.
  for (const double ratio : {0.3, 0.5, 0.75}) {
    const double expected = 1 + std::exp(-M_PI * ratio / std::sqrt(1 - ratio * ratio));
    EXPECT_NEAR(highest({.dampingRatio = ratio}), expected, 1e-4) << ratio;
  }
}

TEST(SpringTiming, ARatioOf1OrMoreApproachesWithoutTurning) {
  for (const double ratio : {1.0, 1.5, 10.0}) {
    for (double t = 0; t < 2; t += kStep) {
      EXPECT_GE(springProgress({.dampingRatio = ratio}, 1, t + kStep),
                springProgress({.dampingRatio = ratio}, 1, t))
          << ratio << " at " << t;
    }
    EXPECT_LE(highest({.dampingRatio = ratio}), 1) << ratio;
  }
}

TEST(SpringTiming, TheCurveIsTheSameOnEitherSideOfCritical) {
  for (const double t : {0.1, 0.3, 0.7}) {
    const double critical = springProgress({.dampingRatio = 1}, 1, t);
    EXPECT_NEAR(springProgress({.dampingRatio = 1 - 1e-7}, 1, t), critical, 1e-5);
    EXPECT_NEAR(springProgress({.dampingRatio = 1 + 1e-7}, 1, t), critical, 5e-3);
  }
}

TEST(SpringTiming, TheDurationOnlyStretchesTheCurve) {
  for (const double part : {0.1, 0.5, 0.9}) {
    EXPECT_NEAR(springProgress({.dampingRatio = 0.5}, 3, 3 * part),
                springProgress({.dampingRatio = 0.5}, 1, part), 1e-12);
  }
}

TEST(SpringTiming, ARatioOf0OrLessStillSettles) {
  for (const double ratio : {0.0, -1.0}) {
    EXPECT_NEAR(springProgress({.dampingRatio = ratio}, 1, 3), 1, 1e-6) << ratio;
    EXPECT_EQ(springProgress({.dampingRatio = ratio}, 1, 0.3),
              springProgress({.dampingRatio = 0.01}, 1, 0.3));
  }
}

}  // namespace
}  // namespace kindora
