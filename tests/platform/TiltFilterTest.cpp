// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/TiltFilter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace kindora {
namespace {

using namespace std::chrono_literals;

// Held upright and turned by that many degrees: the right side down, the upper side down.
std::array<double, 3> held(double right, double down) {
  const double a = right * std::numbers::pi / 180;
  const double b = (90 - down) * std::numbers::pi / 180;
  return {-9.81 * std::sin(a), 9.81 * std::cos(a) * std::sin(b), 9.81 * std::cos(a) * std::cos(b)};
}

TiltFilter::Tilt hold(TiltFilter& filter, const std::array<double, 3>& sample,
                      std::chrono::milliseconds time) {
  TiltFilter::Tilt tilt;
  for (auto passed = 0ms; passed < time; passed += 20ms) tilt = filter.addSample(sample, 20ms);
  return tilt;
}

TEST(TiltFilter, HowItIsHeldAtFirstIsUsual) {
  TiltFilter filter;
  EXPECT_EQ(filter.addSample(held(20, 30), 0ms), TiltFilter::Tilt{});
}

TEST(TiltFilter, TheRightSideDownIsPositive) {
  TiltFilter filter;
  hold(filter, held(0, 0), 200ms);
  const TiltFilter::Tilt tilt = hold(filter, held(15, 0), 600ms);
  EXPECT_NEAR(tilt.horizontal, 0.5, 0.08);
  EXPECT_NEAR(tilt.vertical, 0, 0.01);
}

TEST(TiltFilter, TheUpperSideDownIsPositive) {
  TiltFilter filter;
  hold(filter, held(0, 40), 200ms);
  const TiltFilter::Tilt tilt = hold(filter, held(0, 55), 600ms);
  EXPECT_NEAR(tilt.vertical, 0.5, 0.08);
  EXPECT_NEAR(tilt.horizontal, 0, 0.01);
}

TEST(TiltFilter, StopsAtOne) {
  TiltFilter filter;
  hold(filter, held(0, 0), 200ms);
  EXPECT_EQ(hold(filter, held(-80, 0), 1s).horizontal, -1);
}

TEST(TiltFilter, OneTremblingSampleCountsLittle) {
  TiltFilter filter;
  hold(filter, held(0, 0), 200ms);
  EXPECT_LT(filter.addSample(held(15, 0), 20ms).horizontal, 0.1);
}

TEST(TiltFilter, LearnsHowItIsHeldNow) {
  TiltFilter filter;
  hold(filter, held(0, 0), 200ms);
  EXPECT_GT(hold(filter, held(15, 0), 1s).horizontal, 0.3);
  EXPECT_LT(hold(filter, held(15, 0), 60s).horizontal, 0.01);
}

TEST(TiltFilter, FreeFallTellsNothing) {
  TiltFilter filter;
  EXPECT_EQ(filter.addSample({0, 0, 0}, 20ms), TiltFilter::Tilt{});
  hold(filter, held(0, 0), 200ms);
  const TiltFilter::Tilt before = hold(filter, held(15, 0), 600ms);
  EXPECT_EQ(filter.addSample({0, 0.1, 0}, 20ms), before);
}

TEST(TiltFilter, FaceDownIsNoJump) {
  TiltFilter filter;
  hold(filter, held(0, -89), 200ms);  // the screen looks down
  const TiltFilter::Tilt tilt = hold(filter, held(0, -91), 600ms);
  EXPECT_NEAR(tilt.vertical, -0.06, 0.03);
}

}  // namespace
}  // namespace kindora
