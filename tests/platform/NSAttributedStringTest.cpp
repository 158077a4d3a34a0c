// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/NSAttributedString.h"

#include <gmock/gmock.h>

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Part = NSAttributedString::Run;

const NSTextAttributes kRed{.foregroundColor = UIColor::redColor()};
const NSTextAttributes kBold{.font = UIFont::boldSystemFontOfSize(17)};

TEST(NSAttributedString, PlainTextIsOneRunWithoutAttributes) {
  const NSAttributedString text("abc");
  EXPECT_EQ(text.string(), "abc");
  EXPECT_THAT(text.runs(), ElementsAre(Part{{0, 3}, {}}));
  EXPECT_FALSE(text.hasFont());
  EXPECT_FALSE(text.hasForegroundColor());
}

TEST(NSAttributedString, AnEmptyTextHasNoRuns) {
  EXPECT_THAT(NSAttributedString("", kRed).runs(), IsEmpty());
  EXPECT_EQ(NSAttributedString("", kRed), NSAttributedString());
}

TEST(NSAttributedString, RunsAreCountedInUtf16Units) {
  NSAttributedString text("a\U0001F600", kRed);
  text.append("b");
  EXPECT_THAT(text.runs(), ElementsAre(Part{{0, 3}, kRed}, Part{{3, 1}, {}}));
}

TEST(NSAttributedString, NeighboursOfOneLookAreOneRun) {
  NSAttributedString text("a", kRed);
  text.append("b", kRed).append("c", kBold);
  EXPECT_THAT(text.runs(), ElementsAre(Part{{0, 2}, kRed}, Part{{2, 1}, kBold}));
}

TEST(NSAttributedString, FindsAnAttributeWhereverItIs) {
  NSAttributedString text("plain ");
  text.append("red", kRed);
  EXPECT_TRUE(text.hasForegroundColor());
  EXPECT_FALSE(text.hasFont());
  text.append("bold", kBold);
  EXPECT_TRUE(text.hasFont());
}

}  // namespace
}  // namespace kindora
