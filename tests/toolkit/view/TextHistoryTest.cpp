// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/TextHistory.h"

#include <gtest/gtest.h>

namespace kindora {
namespace {

TEST(TextHistory, BeginsEmpty) {
  TextHistory history;
  EXPECT_FALSE(history.back({"a", {}}).has_value());
  EXPECT_FALSE(history.forth({"a", {}}).has_value());
}

TEST(TextHistory, GoesBackAndForthWithTheSelection) {
  TextHistory history;
  history.add({"a", {0, 1}}, {2, 0}, false);
  const auto before = history.back({"ab", {2, 0}});
  ASSERT_TRUE(before.has_value());
  EXPECT_EQ(before->text, "a");
  EXPECT_EQ(before->selection, (NSRange{0, 1}));
  const auto after = history.forth(*before);
  ASSERT_TRUE(after.has_value());
  EXPECT_EQ(after->text, "ab");
  EXPECT_EQ(after->selection, (NSRange{2, 0}));
}

TEST(TextHistory, ANewEditHasNoFuture) {
  TextHistory history;
  history.add({"", {}}, {1, 0}, false);
  static_cast<void>(history.back({"a", {1, 0}}));
  history.add({"", {}}, {1, 0}, false);
  EXPECT_FALSE(history.forth({"b", {}}).has_value());
}

TEST(TextHistory, TypingElsewhereOrAfterAnUndoIsAnEditOfItsOwn) {
  TextHistory history;
  history.add({"", {}}, {1, 0}, true);
  history.add({"a", {1, 0}}, {2, 0}, true);
  history.add({"ab", {0, 0}}, {1, 0}, true);
  EXPECT_EQ(history.back({"cab", {1, 0}})->text, "ab");
  history.add({"ab", {1, 0}}, {2, 0}, true);
  EXPECT_EQ(history.back({"axb", {2, 0}})->text, "ab");
  EXPECT_EQ(history.back({"ab", {1, 0}})->text, "");
}

TEST(TextHistory, ForgetsAll) {
  TextHistory history;
  history.add({"", {}}, {1, 0}, true);
  history.clear();
  EXPECT_FALSE(history.back({"a", {}}).has_value());
}

}  // namespace
}  // namespace kindora
