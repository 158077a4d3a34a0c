// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/CAKeyframeAnimation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <type_traits>

namespace kindora {
namespace {

class Delegate final : public CAAnimationDelegate {
 public:
  void animationDidStop(CAKeyframeAnimation& /*animation*/, bool /*finished*/) override {}
};

TEST(CAKeyframeAnimation, StartsWithThePlatformsDefaults) {
  const CAKeyframeAnimation animation;
  EXPECT_EQ(animation.keyPath(), std::nullopt);
  EXPECT_EQ(animation.duration(), 0);
  EXPECT_EQ(animation.values(), nullptr);
  EXPECT_EQ(animation.path(), nullptr);
  EXPECT_EQ(animation.fillMode(), CAMediaTimingFillMode::removed);
  EXPECT_TRUE(animation.isRemovedOnCompletion());
  EXPECT_EQ(animation.repeatCount(), 0);
  EXPECT_EQ(animation.calculationMode(), CAAnimationCalculationMode::linear);
  EXPECT_EQ(animation.timingFunction(), std::nullopt);
  EXPECT_EQ(animation.delegate(), nullptr);
}

TEST(CAKeyframeAnimation, KeepsTheValuesItIsGiven) {
  CAKeyframeAnimation animation;
  const NSArrayRef values = NSArray::arrayWithObjects({NSValue::numberWithDouble(1)});
  animation.setValues(values);
  EXPECT_EQ(animation.values(), values);
}

TEST(CAKeyframeAnimation, DoesNotOwnItsDelegate) {
  CAKeyframeAnimation animation;
  auto delegate = std::make_shared<Delegate>();
  animation.setDelegate(delegate);
  EXPECT_EQ(animation.delegate(), delegate);
  delegate.reset();
  EXPECT_EQ(animation.delegate(), nullptr);
}

TEST(CAKeyframeAnimation, CopyHasAllSettings) {
  CAKeyframeAnimation animation;
  const auto delegate = std::make_shared<Delegate>();
  const NSArrayRef values = NSArray::arrayWithObjects({NSValue::numberWithDouble(1)});
  const auto path = std::make_shared<UIBezierPath>();
  animation.setKeyPath("position");
  animation.setDuration(1.5);
  animation.setValues(values);
  animation.setPath(path);
  animation.setFillMode(CAMediaTimingFillMode::forwards);
  animation.setRemovedOnCompletion(false);
  animation.setRepeatCount(2);
  animation.setCalculationMode(CAAnimationCalculationMode::cubic);
  animation.setTimingFunction(CAMediaTimingFunction::easeIn());
  animation.setDelegate(delegate);

  const auto copy = animation.copy();
  EXPECT_EQ(copy->keyPath(), "position");
  EXPECT_EQ(copy->duration(), 1.5);
  EXPECT_EQ(copy->values(), values);
  EXPECT_EQ(copy->path(), path);
  EXPECT_EQ(copy->fillMode(), CAMediaTimingFillMode::forwards);
  EXPECT_FALSE(copy->isRemovedOnCompletion());
  EXPECT_EQ(copy->repeatCount(), 2);
  EXPECT_EQ(copy->calculationMode(), CAAnimationCalculationMode::cubic);
  EXPECT_EQ(copy->timingFunction(), CAMediaTimingFunction::easeIn());
  EXPECT_EQ(copy->delegate(), delegate);
}

TEST(CAKeyframeAnimation, CopyGoesItsOwnWay) {
  CAKeyframeAnimation animation;
  const auto copy = animation.copy();
  copy->setDuration(2);
  EXPECT_EQ(animation.duration(), 0);
}

TEST(CAKeyframeAnimation, IsNotCopiedThroughABaseReference) {
  static_assert(!std::is_copy_constructible_v<CAKeyframeAnimation>);
  static_assert(!std::is_copy_assignable_v<CAKeyframeAnimation>);
}

TEST(CAKeyframeAnimation, TellsObserversOfEachSetting) {
  CAKeyframeAnimation animation;
  std::vector<std::string> told;
  std::vector<Subscription> subscriptions;
  for (const char* key :
       {"keyPath", "duration", "values", "path", "fillMode", "removedOnCompletion", "repeatCount",
        "calculationMode", "timingFunction", "delegate"}) {
    subscriptions.push_back(animation.addObserver(key, [&told, key] { told.emplace_back(key); }));
  }
  animation.setKeyPath("opacity");
  animation.setDuration(1);
  animation.setValues(nullptr);
  animation.setPath(nullptr);
  animation.setFillMode(CAMediaTimingFillMode::forwards);
  animation.setRemovedOnCompletion(false);
  animation.setRepeatCount(1);
  animation.setCalculationMode(CAAnimationCalculationMode::cubic);
  animation.setTimingFunction(std::nullopt);
  animation.setDelegate({});
  EXPECT_THAT(told, testing::ElementsAre("keyPath", "duration", "values", "path", "fillMode",
                                         "removedOnCompletion", "repeatCount", "calculationMode",
                                         "timingFunction", "delegate"));
}

}  // namespace
}  // namespace kindora
