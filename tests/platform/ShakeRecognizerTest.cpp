// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/ShakeRecognizer.h"

#include <gtest/gtest.h>

#include <cmath>
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
    heard += recognizer.addSample(value, now) ? 1 : 0;
    now += step;
  }
  return heard;
}

TEST(ShakeRecognizer, HearsFourStrongSwings) {
  ShakeRecognizer recognizer(40);
  EXPECT_EQ(shakes(recognizer, {0, 50, 0, 50, 0}, Time(80)), 1);
}

TEST(ShakeRecognizer, DoesNotHearThreeSwings) {
  ShakeRecognizer recognizer(40);
  EXPECT_EQ(shakes(recognizer, {0, 50, 0, 50}, Time(80)), 0);
}

TEST(ShakeRecognizer, DoesNotHearWeakSwings) {
  ShakeRecognizer recognizer(40);
  EXPECT_EQ(shakes(recognizer, {0, 39, 0, 39, 0, 39, 0, 39}, Time(80)), 0);
}

TEST(ShakeRecognizer, DoesNotHearSlowSwings) {
  ShakeRecognizer recognizer(40);
  EXPECT_EQ(shakes(recognizer, {0, 50, 0, 50, 0, 50, 0}, Time(400)), 0);
}

TEST(ShakeRecognizer, DoesNotHearALongWayInOneDirection) {
  ShakeRecognizer recognizer(40);
  EXPECT_EQ(shakes(recognizer, {0, 100, 200, 300, 400, 500, 600}, Time(80)), 0);
}

TEST(ShakeRecognizer, AddsUpSmallStepsInOneDirection) {
  ShakeRecognizer recognizer(40);
  std::vector<double> values;
  for (int i = 0; i <= 40; ++i) values.push_back(30 * std::sin(i * 3.14159265358979 / 5));
  EXPECT_GE(shakes(recognizer, values, Time(16)), 1);
}

TEST(ShakeRecognizer, StartsAnewAfterAShake) {
  ShakeRecognizer recognizer(40);
  EXPECT_EQ(shakes(recognizer, {0, 50, 0, 50, 0, 50, 0}, Time(80)), 1);
}

TEST(ShakeRecognizer, HearsASecondShake) {
  ShakeRecognizer recognizer(40);
  EXPECT_EQ(shakes(recognizer, {0, 50, 0, 50, 0}, Time(80)), 1);
  EXPECT_EQ(shakes(recognizer, {0, 50, 0, 50}, Time(80), Time(2000)), 0);
  EXPECT_EQ(shakes(recognizer, {0, 50, 0, 50, 0}, Time(80), Time(4000)), 1) << "after a rest";
}

}  // namespace
}  // namespace kindora
