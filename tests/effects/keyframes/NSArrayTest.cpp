// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/NSArray.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kindora {
namespace {

const NSValue kOne = NSValue::numberWithDouble(1);
const NSValue kTwo = NSValue::numberWithDouble(2);

TEST(NSArray, HoldsItsObjectsInOrder) {
  const NSArrayRef array = NSArray::arrayWithObjects({kTwo, kOne});
  EXPECT_EQ(array->count(), 2U);
  EXPECT_EQ(array->objectAtIndex(0), kTwo);
  EXPECT_EQ(array->objectAtIndex(1), kOne);
  EXPECT_THAT(*array, testing::ElementsAre(kTwo, kOne));
}

TEST(NSArray, MayBeEmpty) {
  const NSArrayRef array = NSArray::arrayWithObjects({});
  EXPECT_EQ(array->count(), 0U);
  EXPECT_EQ(array->begin(), array->end());
}

TEST(NSArray, CopyHoldsTheSameObjects) {
  const NSArrayRef array = NSArray::arrayWithObjects({kTwo, kOne});
  const NSArrayRef copy = array->copy();
  EXPECT_NE(copy, array);
  EXPECT_THAT(*copy, testing::ElementsAre(kTwo, kOne));
}

TEST(NSArrayDeathTest, IndexPastTheEndStops) {
  EXPECT_DEATH((void)NSArray::arrayWithObjects({kOne})->objectAtIndex(1), "beyond bounds");
}

}  // namespace
}  // namespace kindora
