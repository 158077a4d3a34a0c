// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/fakes/FakeText.h"

#include <gtest/gtest.h>

namespace kindora {
namespace {

TEST(FakeText, FoldsTheCaseOfAscii) {
  EXPECT_EQ(FakeText().caseFolded("mARIA 42!"), "maria 42!");
  EXPECT_EQ(FakeText().caseFolded(""), "");
}

TEST(FakeText, FoldsOneLetterBeyondAsciiWhereverItStands) {
  EXPECT_EQ(FakeText().caseFolded("\u00c9mile \u00c9"), "\u00e9mile \u00e9");
}

TEST(FakeText, FoldingLeavesAccents) {
  EXPECT_NE(FakeText().caseFolded("\u00e9"), FakeText().caseFolded("e"));
}

}  // namespace
}  // namespace kindora
