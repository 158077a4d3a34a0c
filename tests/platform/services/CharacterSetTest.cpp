// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/services/CharacterSet.h"

#include <gtest/gtest.h>

#include "platform/fakes/FakeServices.h"

namespace kindora {
namespace {

class CharacterSetTest : public ::testing::Test {
 protected:
  CharacterSetTest() { installFakeServices(); }
  CharacterSet set = CharacterSet::decimalDigitCharacterSet();
};

TEST_F(CharacterSetTest, HoldsTheDigitsOfEveryScript) {
  EXPECT_TRUE(set.characterIsMember(U'7'));
  EXPECT_TRUE(set.characterIsMember(U'\u0667'));
  EXPECT_FALSE(set.characterIsMember(U'a'));
  EXPECT_FALSE(set.characterIsMember(U'+'));
}

TEST_F(CharacterSetTest, HoldsEachCharacterThatWasAdded) {
  set.addCharactersInString("+\u00e9\U0001F4DE");
  EXPECT_TRUE(set.characterIsMember(U'+'));
  EXPECT_TRUE(set.characterIsMember(U'\u00e9'));
  EXPECT_TRUE(set.characterIsMember(U'\U0001F4DE'));
  EXPECT_FALSE(set.characterIsMember(U'#'));
}

}  // namespace
}  // namespace kindora
