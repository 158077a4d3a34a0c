// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/ShakeRecognizer.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <span>
#include <vector>

namespace kindora {
namespace {

using Time = ShakeRecognizer::Time;

// Feeds turning points that far apart in time; how many shakes were heard.
int shakes(ShakeRecognizer& recognizer, const std::vector<double>& values, Time step,
           Time start = Time(0)) {
  int heard = 0;
  Time now = start;
  for (const double value : values) {
    heard += recognizer.addSample(std::span(&value, 1), now) ? 1 : 0;
    now += step;
  }
  return heard;
}

TEST(ShakeRecognizer, HearsFourStrongSwings) {
  ShakeRecognizer recognizer(1, 40);
  EXPECT_EQ(shakes(recognizer, {0, 50, 0, 50, 0}, Time(80)), 1);
}

TEST(ShakeRecognizer, DoesNotHearThreeSwings) {
  ShakeRecognizer recognizer(1, 40);
  EXPECT_EQ(shakes(recognizer, {0, 50, 0, 50}, Time(80)), 0);
}

TEST(ShakeRecognizer, DoesNotHearWeakSwings) {
  ShakeRecognizer recognizer(1, 40);
  EXPECT_EQ(shakes(recognizer, {0, 39, 0, 39, 0, 39, 0, 39}, Time(80)), 0);
}

TEST(ShakeRecognizer, DoesNotHearSlowSwings) {
  ShakeRecognizer recognizer(1, 40);
  EXPECT_EQ(shakes(recognizer, {0, 50, 0, 50, 0, 50, 0}, Time(400)), 0);
}

TEST(ShakeRecognizer, DoesNotHearALongWayInOneDirection) {
  ShakeRecognizer recognizer(1, 40);
  EXPECT_EQ(shakes(recognizer, {0, 100, 200, 300, 400, 500, 600}, Time(80)), 0);
}

TEST(ShakeRecognizer, AddsUpSmallStepsInOneDirection) {
  ShakeRecognizer recognizer(1, 40);
  std::vector<double> values;
  for (int i = 0; i <= 40; ++i) values.push_back(30 * std::sin(i * 3.14159265358979 / 5));
  EXPECT_EQ(shakes(recognizer, values, Time(16)), 1);
}

// Turning points to and fro, as many as that.
std::vector<double> toAndFro(int turns) {
  std::vector<double> values{0};
  for (int i = 1; i <= turns; ++i) values.push_back(i % 2 == 0 ? 0 : 50);
  return values;
}

TEST(ShakeRecognizer, AHeartyShakeIsOne) {
  ShakeRecognizer recognizer(1, 40);
  EXPECT_EQ(shakes(recognizer, toAndFro(40), Time(80)), 1);
}

TEST(ShakeRecognizer, AShakeThatSlowsDownIsStillTheSame) {
  ShakeRecognizer recognizer(1, 40);
  EXPECT_EQ(shakes(recognizer, toAndFro(6), Time(80)), 1);
  EXPECT_EQ(shakes(recognizer, {50}, Time(80), Time(979)), 0);  // 499 after the last swing
  EXPECT_EQ(shakes(recognizer, toAndFro(6), Time(80), Time(1059)), 0);
}

TEST(ShakeRecognizer, HalfASecondOfRestEndsAShake) {
  ShakeRecognizer recognizer(1, 40);
  EXPECT_EQ(shakes(recognizer, toAndFro(6), Time(80)), 1);  // the last swing is at 480
  EXPECT_EQ(shakes(recognizer, toAndFro(6), Time(80), Time(980)), 1);
}

TEST(ShakeRecognizer, AShakeMayBeginWithPauses) {
  ShakeRecognizer recognizer(1, 40);
  EXPECT_EQ(shakes(recognizer, {0, 50, 0}, Time(80)), 0);  // the last swing is at 160
  EXPECT_EQ(shakes(recognizer, {50, 0}, Time(80), Time(860)), 1);
}

TEST(ShakeRecognizer, WeakMovementIsRest) {
  ShakeRecognizer recognizer(1, 40);
  EXPECT_EQ(shakes(recognizer, toAndFro(6), Time(80)), 1);
  EXPECT_EQ(shakes(recognizer, {0, 9, 0, 9, 0, 9, 0}, Time(80), Time(560)), 0);
  EXPECT_EQ(shakes(recognizer, toAndFro(4), Time(80), Time(1120)), 1);
}

TEST(ShakeRecognizer, TheAxesShakeTogether) {
  ShakeRecognizer recognizer(3, 40);
  int heard = 0;
  // Along each axis in turn, then along all of them.
  Time now(0);
  for (std::size_t axis = 0; axis < 4; ++axis) {
    for (const double value : toAndFro(8)) {
      std::array<double, 3> sample{};
      for (std::size_t i = 0; i < 3; ++i) sample[i] = axis == i || axis == 3 ? value : 0;
      heard += recognizer.addSample(sample, now) ? 1 : 0;
      now += Time(50);
    }
  }
  EXPECT_EQ(heard, 1);
}

TEST(ShakeRecognizer, ASwingAlongAnyAxisKeepsTheShakeGoing) {
  ShakeRecognizer recognizer(2, 40);
  const auto sample = [&recognizer](double x, double y, int at) {
    return recognizer.addSample(std::array{x, y}, Time(at));
  };
  int heard = 0;
  for (int i = 0; i <= 4; ++i) heard += sample(i % 2 == 0 ? 0 : 50, 0, 80 * i) ? 1 : 0;
  sample(0, 50, 700);
  sample(0, 0, 1100);
  for (int i = 0; i <= 6; ++i) heard += sample(i % 2 == 0 ? 0 : 50, 0, 1400 + 80 * i) ? 1 : 0;
  EXPECT_EQ(heard, 1);
}

TEST(ShakeRecognizer, ASampleThatLacksAnAxisStops) {
  ShakeRecognizer recognizer(3, 40);
  EXPECT_DEATH(recognizer.addSample(std::array{1.0, 2.0}, Time(0)),
               "fatal error: a sample needs a value for each axis");
}

TEST(ShakeRecognizer, HearsASecondShake) {
  ShakeRecognizer recognizer(1, 40);
  EXPECT_EQ(shakes(recognizer, {0, 50, 0, 50, 0}, Time(80)), 1);
  EXPECT_EQ(shakes(recognizer, {0, 50, 0, 50}, Time(80), Time(2000)), 0);
  EXPECT_EQ(shakes(recognizer, {0, 50, 0, 50, 0}, Time(80), Time(4000)), 1) << "after a rest";
}

}  // namespace
}  // namespace kindora
