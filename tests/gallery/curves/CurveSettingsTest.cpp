// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/curves/CurveSettings.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kindora {
namespace {

TEST(CurveSettings, AFrameIsASixtiethOfASecond) {
  EXPECT_EQ(curveFrames({.duration = 1}).size(), 60U);
  EXPECT_EQ(curveFrames({.kind = CurveKind::tween, .duration = 0.1}).size(), 6U);
}

TEST(CurveSettings, ASpringOvershootsBelowCriticalDampingAlone) {
  const auto highest = [](double damping) {
    double most = 0;
    for (const double value : curveFrames({.duration = 2, .damping = damping})) {
      most = std::max(most, value);
    }
    return most;
  };
  EXPECT_GT(highest(5), 1.3);
  EXPECT_LE(highest(20), 1);
}

TEST(CurveSettings, OverdampingCountsWhenItIsAllowed) {
  CurveSettings settings{.damping = 40};
  const std::vector<double> critical = curveFrames({.damping = 20});
  EXPECT_EQ(curveFrames(settings), critical);
  settings.allowsOverdamping = true;
  EXPECT_LT(curveFrames(settings)[10], critical[10]);
}

TEST(CurveSettings, EveryTimingStartsAtTheBeginningAndRunsTowardsTheEnd) {
  for (std::size_t i = 0; i < curveTimings().size(); ++i) {
    const auto frames = curveFrames({.kind = CurveKind::tween, .timing = i});
    EXPECT_NEAR(frames.front(), 0, 1e-9) << curveTimings()[i].name;
    EXPECT_NEAR(frames.back(), 1, 0.06) << curveTimings()[i].name;
  }
}

TEST(CurveSettings, TimingsDiffer) {
  const auto middle = [](std::size_t timing) {
    return curveFrames({.kind = CurveKind::tween, .timing = timing})[30];
  };
  EXPECT_NEAR(middle(0), 0.5, 1e-9);
  EXPECT_LT(middle(1), 0.4);
  EXPECT_GT(middle(2), 0.6);
  EXPECT_GT(middle(3), 1);
}

TEST(CurveSettings, SaysHowASpringIsDamped) {
  const auto character = [](CurveSettings settings) { return curveCharacter(settings); };
  EXPECT_EQ(character({.damping = 10}), "Underdamped, decays within 1.4 s");
  EXPECT_EQ(character({.damping = 20}), "Critically damped, decays within 0.7 s");
  EXPECT_EQ(character({.damping = 0}), "Undamped, never at rest");
  EXPECT_EQ(character({.damping = 30}), "Damped no more than critically, decays within 0.5 s");
  EXPECT_EQ(character({.damping = 30, .allowsOverdamping = true}),
            "Overdamped, decays within 0.5 s");
}

TEST(CurveSettingsDeathTest, StopsWithoutATiming) {
  EXPECT_DEATH((void)curveFrames({.kind = CurveKind::tween, .timing = 99}), "timing");
}

}  // namespace
}  // namespace kindora
