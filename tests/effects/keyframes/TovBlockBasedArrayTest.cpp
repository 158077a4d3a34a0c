// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/TovBlockBasedArray.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <thread>
#include <type_traits>

#include "effects/keyframes/TovSpringAnimation.h"
#include "tests/effects/keyframes/Values.h"

namespace kindora {
namespace {

NSValue squared(std::size_t index) { return number(static_cast<double>(index * index)); }

TEST(TovBlockBasedArray, MakesElementsByItsBlock) {
  const auto array = TovBlockBasedArray::arrayWithCount(4, squared);
  EXPECT_EQ(array->count(), 4U);
  EXPECT_EQ(array->objectAtIndex(3), number(9));
}

TEST(TovBlockBasedArray, BothMakersDoTheSame) {
  const auto array = TovBlockBasedArray::initWithCount(4, squared);
  EXPECT_EQ(array->count(), 4U);
  EXPECT_EQ(array->objectAtIndex(3), number(9));
}

TEST(TovBlockBasedArray, CallsItsBlockAtEveryAccess) {
  int calls = 0;
  const auto array = TovBlockBasedArray::arrayWithCount(4, [&calls](std::size_t) {
    ++calls;
    return NSValue();
  });
  EXPECT_EQ(calls, 0);
  (void)array->objectAtIndex(3);
  (void)array->objectAtIndex(3);
  EXPECT_EQ(calls, 2);
}

TEST(TovBlockBasedArray, HandsAnIndexPastItsCountToTheBlock) {
  std::vector<std::size_t> asked;
  const auto array = TovBlockBasedArray::arrayWithCount(2, [&asked](std::size_t index) {
    asked.push_back(index);
    return number(7);
  });
  EXPECT_EQ(array->objectAtIndex(2), number(7));
  constexpr auto kLast = std::numeric_limits<std::size_t>::max();
  EXPECT_EQ(array->objectAtIndex(kLast), number(7));
  EXPECT_THAT(asked, testing::ElementsAre(2U, kLast));
}

TEST(TovBlockBasedArray, KeepsACopyOfItsBlock) {
  TovElementBlock block = squared;
  const auto array = TovBlockBasedArray::arrayWithCount(4, block);
  block = nullptr;
  EXPECT_EQ(array->objectAtIndex(2), number(4));
}

TEST(TovBlockBasedArray, IsEmptyWithoutABlockAsInitialised) {
  const auto array = TovBlockBasedArray::init();
  EXPECT_EQ(array->count(), 0U);
  EXPECT_FALSE(array->block());
  EXPECT_EQ(array->begin(), array->end());
}

TEST(TovBlockBasedArrayDeathTest, ReadingWithoutABlockStops) {
  EXPECT_DEATH((void)TovBlockBasedArray::init()->objectAtIndex(0), "no block");
}

TEST(TovBlockBasedArray, AnswersObjectsByTheirIndex) {
  const std::array objects{number(5), number(6), number(7)};
  const auto array = TovBlockBasedArray::initWithObjects(objects, 2);
  EXPECT_EQ(array->count(), 2U);
  EXPECT_THAT(*array, testing::ElementsAre(number(5), number(6)));
}

TEST(TovBlockBasedArrayDeathTest, ObjectPastTheGivenOnesStops) {
  const std::array objects{number(5), number(6)};
  const auto array = TovBlockBasedArray::initWithObjects(objects, 2);
  EXPECT_DEATH((void)array->objectAtIndex(2), "beyond bounds");
}

TEST(TovBlockBasedArrayDeathTest, CountingMoreObjectsThanThereAreStops) {
  const std::array objects{number(5)};
  EXPECT_DEATH((void)TovBlockBasedArray::initWithObjects(objects, 2), "fewer objects");
}

TEST(TovBlockBasedArray, IsAnArrayLikeAnyOther) {
  const NSArrayRef array = TovBlockBasedArray::arrayWithCount(4, squared);
  EXPECT_THAT(*array, testing::ElementsAre(number(0), number(1), number(4), number(9)));
}

TEST(TovBlockBasedArray, CopyIsAnotherArrayOfItsClass) {
  const NSArrayRef array = TovBlockBasedArray::arrayWithCount(4, squared);
  const NSArrayRef copy = array->copy();
  EXPECT_NE(copy, array);
  ASSERT_NE(dynamic_cast<const TovBlockBasedArray*>(copy.get()), nullptr);
  EXPECT_EQ(copy->count(), 4U);
  EXPECT_EQ(copy->objectAtIndex(9), number(81));
}

TEST(TovBlockBasedArray, HasNoSubclassesThatACopyCouldLose) {
  static_assert(std::is_final_v<TovBlockBasedArray>);
}

TEST(TovBlockBasedArray, IsReadOnTwoThreadsAtOnce) {
  TovSpringAnimation spring;
  spring.setDuration(10);
  spring.setFromValue(NSValue::valueWithCATransform3D(CATransform3DMakeScale(1.2, 1.2, 1)));
  spring.setToValue(NSValue::valueWithCATransform3D(CATransform3DIdentity));
  const NSArrayRef values = spring.values();
  const auto sum = [&values] {
    double result = 0;
    for (const NSValue& value : *values) result += value.CATransform3DValue().m11;
    return result;
  };
  double other = 0;
  std::thread reader([&] { other = sum(); });
  const double own = sum();
  // The animation itself is free to change meanwhile.
  spring.setDamping(1);
  spring.setToValue({});
  reader.join();
  EXPECT_EQ(own, other);
  EXPECT_GT(own, 600);
}

}  // namespace
}  // namespace kindora
