// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/inprogress/MedalFlight.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/fakes/FakeServices.h"
#include "toolkit/view/UIControl.h"

namespace kindora {
namespace {

constexpr CGPoint kFrom{100, 400};
constexpr CGPoint kTo{300, 600};

// --- Where the tab is ---

class MedalFlightTabTest : public ::testing::Test {
 protected:
  template <typename View = UIControl>
  void add(CGRect frame) {
    const auto view = std::make_shared<View>();
    view->setFrame(frame);
    bar->addSubview(view);
  }
  void addTabs(const std::vector<double>& places) {
    for (const double x : places) add({{x, 1}, {100, 48}});
  }
  [[nodiscard]] CGRect frame(int index) const { return frameForTabInTabBar(*bar, index); }

  const FakeServices fakes = installFakeServices();
  const UIViewRef bar = std::make_shared<UIView>();
};

TEST_F(MedalFlightTabTest, IsTheFrameOfTheControlOfThatIndex) {
  addTabs({0, 100, 200});
  EXPECT_EQ(frame(1), (CGRect{{100, 1}, {100, 48}}));
}

TEST_F(MedalFlightTabTest, CountsFromLeftToRightWhateverTheOrderOfTheSubviews) {
  std::vector<double> places{0, 100, 200};
  do {
    for (const auto& tab : std::vector(bar->subviews())) tab->removeFromSuperview();
    addTabs(places);
    EXPECT_EQ(frame(0).origin.x, 0);
    EXPECT_EQ(frame(1).origin.x, 100);
    EXPECT_EQ(frame(2).origin.x, 200);
  } while (std::ranges::next_permutation(places).found);
}

TEST_F(MedalFlightTabTest, CountsPlacesAsNumbersAndNotAsTexts) {
  addTabs({100, 20, -3});
  EXPECT_EQ(frame(0).origin.x, -3);
  EXPECT_EQ(frame(1).origin.x, 20);
  EXPECT_EQ(frame(2).origin.x, 100);
}

TEST_F(MedalFlightTabTest, ViewsThatAreNoControlsAreNoTabs) {
  add<UIView>({{0, 0}, {300, 1}});
  addTabs({150, 0});
  add<UIView>({{50, 0}, {10, 10}});
  EXPECT_EQ(frame(1).origin.x, 150);
}

TEST_F(MedalFlightTabTest, ControlsInsideASubviewAreNoTabs) {
  addTabs({0, 150});
  const auto inner = std::make_shared<UIControl>();
  inner->setFrame({{75, 0}, {1, 1}});
  bar->subviews().front()->addSubview(inner);
  EXPECT_EQ(frame(1).origin.x, 150);
}

TEST_F(MedalFlightTabTest, ATabInTheSamePlaceIsATabAllTheSame) {
  addTabs({40, 40});
  EXPECT_EQ(frame(1).origin.x, 40);
}

TEST_F(MedalFlightTabTest, ABarWithoutControlsGivesTheZeroRectangleAndSaysSo) {
  add<UIView>({{5, 5}, {300, 1}});
  EXPECT_EQ(frame(1), CGRect{});
  EXPECT_EQ(fakes.console->lines(), (std::vector<std::string>{"Oh no"}));
}

TEST_F(MedalFlightTabTest, ABarWithTabsSaysNothing) {
  addTabs({0, 100});
  static_cast<void>(frame(1));
  EXPECT_THAT(fakes.console->lines(), ::testing::IsEmpty());
}

TEST_F(MedalFlightTabTest, AnIndexBeyondTheTabsStops) {
  addTabs({0});
  EXPECT_DEATH(static_cast<void>(frame(1)), "fatal error: there is no tab 1");
}

TEST_F(MedalFlightTabTest, ANegativeIndexStops) {
  addTabs({0, 100});
  EXPECT_DEATH(static_cast<void>(frame(-1)), "fatal error: there is no tab -1");
}

// --- The flight ---

TEST(MedalFlight, EndsInTheMiddleOfTheTabsBottomEdge) {
  EXPECT_EQ(medalDestination({{195, 0}, {195, 49}}), (CGPoint{292.5, 49}));
  EXPECT_EQ(medalDestination({{10, 20}, {30, 40}}), (CGPoint{25, 60}));
}

TEST(MedalFlight, ThePeakHeightIsTheControlPointsOwnYAndNotAnOffset) {
  const auto path = bezierPathForFlyFromPoint(kFrom, kTo, 300);
  EXPECT_EQ(path->curves(), (std::vector<UIBezierPath::QuadCurve>{{kFrom, {200, 300}, kTo}}));
}

TEST(MedalFlight, TheControlPointIsHalfwayToTheLeftToo) {
  const auto path = bezierPathForFlyFromPoint({300, 10}, {-100, 700}, -90);
  EXPECT_EQ(path->curves().front().control, (CGPoint{100, -90}));
}

TEST(MedalFlight, IsAnArcAboveTheStraightLine) {
  const CGPoint middle = *bezierPathForFlyFromPoint(kFrom, kTo, 300)->pointAt(0.5);
  EXPECT_LT(middle.y, kFrom.y + (middle.x - kFrom.x) - 50);
}

TEST(MedalFlight, RisesAboveItsStartBeforeItDescends) {
  const auto path = bezierPathForFlyFromPoint({195, 300}, {292, 844}, 200);
  double highest = 300;
  for (int i = 0; i <= 1000; ++i) highest = std::min(highest, path->pointAt(i / 1000.0)->y);
  EXPECT_LT(highest, 290);
  EXPECT_GT(highest, 200);  // the control point pulls the curve, which does not reach it
}

TEST(MedalFlight, LastsOneSecondGainsSpeedAndStaysAtItsEnd) {
  const auto animation = animationForFlyFromPoint(kFrom, kTo, 300);
  EXPECT_EQ(animation->duration(), 1.0);
  EXPECT_EQ(animation->repeatCount(), 1);
  EXPECT_EQ(animation->timingFunction(), CAMediaTimingFunction::easeIn());
  EXPECT_EQ(animation->calculationMode(), CAAnimationCalculationMode::cubic);
  EXPECT_EQ(animation->fillMode(), CAMediaTimingFillMode::forwards);
  EXPECT_FALSE(animation->isRemovedOnCompletion());
}

TEST(MedalFlight, NamesNoKeyPathAndNoDelegate) {
  const auto animation = animationForFlyFromPoint(kFrom, kTo, 300);
  EXPECT_EQ(animation->keyPath(), std::nullopt);
  EXPECT_EQ(animation->delegate(), nullptr);
  EXPECT_EQ(animation->values(), nullptr);
}

TEST(MedalFlight, FollowsThatArc) {
  EXPECT_EQ(*animationForFlyFromPoint(kFrom, kTo, 300)->path(),
            *bezierPathForFlyFromPoint(kFrom, kTo, 300));
}

// --- The number in the bubble ---

struct Bubble {
  const char* name;
  std::optional<std::string_view> before;
  const char* after;
};

class MedalFlightBubbleTest : public ::testing::TestWithParam<Bubble> {};

TEST_P(MedalFlightBubbleTest, CountsOneMore) {
  EXPECT_EQ(raisedBadgeValue(GetParam().before), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(
    Bubbles, MedalFlightBubbleTest,
    ::testing::Values(Bubble{"Absent", std::nullopt, "1"}, Bubble{"Empty", "", "1"},
                      Bubble{"Zero", "0", "1"}, Bubble{"Three", "3", "4"},
                      Bubble{"Nine", "9", "10"}, Bubble{"ALetter", "x", "1"},
                      Bubble{"DigitsAndALetter", "3x", "1"}, Bubble{"ALetterAndDigits", "x3", "1"},
                      Bubble{"AFraction", "3.5", "1"}, Bubble{"Hexadecimal", "0x3", "1"},
                      Bubble{"LeadingZeros", "007", "8"}, Bubble{"ABlankBefore", " 3", "1"},
                      Bubble{"ABlankAfter", "3 ", "1"}, Bubble{"APlusSign", "+3", "4"},
                      Bubble{"APlusSignAlone", "+", "1"}, Bubble{"AMinusSignAlone", "-", "1"},
                      Bubble{"TwoSigns", "+-3", "1"}, Bubble{"TwoPlusSigns", "++3", "1"},
                      Bubble{"MinusOne", "-1", "0"}, Bubble{"MinusTen", "-10", "-9"},
                      Bubble{"TheLargestOf64Bits", "9223372036854775807", "9223372036854775808"},
                      Bubble{"TheSmallestOf64Bits", "-9223372036854775808", "-9223372036854775807"},
                      Bubble{"TooLarge", "9223372036854775808", "1"},
                      Bubble{"TooSmall", "-9223372036854775809", "1"}),
    [](const auto& instance) { return std::string(instance.param.name); });

}  // namespace
}  // namespace kindora
