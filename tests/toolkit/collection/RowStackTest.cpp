// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/collection/RowStack.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace kindora {
namespace {

constexpr double kHeader = 30;
constexpr double kRow = 50;

// A header and that many rows, which nobody has seen.
RowStack unseen(int rows) {
  std::vector<RowStack::Row> all(static_cast<std::size_t>(rows) + 1);
  all.front().isHeader = true;
  RowStack stack;
  stack.setRows(std::move(all));
  return stack;
}

RowStack seen(int rows) {
  RowStack stack = unseen(rows);
  stack.setHeight(0, kHeader);
  stack.setHeight(1, kRow);
  return stack;
}

std::pair<int, int> between(const RowStack& stack, double top, double bottom) {
  const RowStack::Run run = stack.rowsBetween(top, bottom);
  return {run.first, run.end};
}

TEST(RowStack, NoRowsHaveNoHeight) {
  const RowStack stack;
  EXPECT_EQ(stack.height(), 0);
  EXPECT_EQ(between(stack, -100, 100), std::pair(0, 0));
}

TEST(RowStack, RowsThatNobodyHasSeenHaveSomeHeight) { EXPECT_GT(unseen(3).top(3), 0); }

TEST(RowStack, TheFirstRowSeenTellsHowHighTheOthersAre) {
  const RowStack stack = seen(1000);
  EXPECT_EQ(stack.top(1), kHeader);
  EXPECT_EQ(stack.top(3), kHeader + 2 * kRow);
  EXPECT_EQ(stack.height(), kHeader + 1000 * kRow);
}

TEST(RowStack, ARowThatIsHigherMovesThoseBelowIt) {
  RowStack stack = seen(3);
  EXPECT_TRUE(stack.setHeight(2, 80));
  EXPECT_EQ(stack.top(2), kHeader + kRow);
  EXPECT_EQ(stack.top(3), kHeader + kRow + 80);
}

TEST(RowStack, ARowThatIsAsHighAsItWasTakenForMovesNothing) {
  RowStack stack = seen(3);
  EXPECT_FALSE(stack.setHeight(2, kRow));
  EXPECT_FALSE(stack.setHeight(2, kRow));
}

TEST(RowStack, ARowThatWasSeenKeepsItsHeight) {
  RowStack stack = seen(3);
  stack.setHeight(3, 80);
  stack.setHeight(1, 60);
  EXPECT_EQ(stack.height(), kHeader + 60 + kRow + 80);
}

TEST(RowStack, NewRowsAreAsHighAsThoseBefore) {
  RowStack stack = seen(3);
  stack.setRows({{.isHeader = true, .height = {}}, {}, {.isHeader = false, .height = 10}});
  EXPECT_EQ(stack.height(), kHeader + kRow + 10);
}

TEST(RowStack, FindsTheRowsOfAStretch) {
  const RowStack stack = seen(10);
  EXPECT_EQ(between(stack, 0, 30), std::pair(0, 1));
  EXPECT_EQ(between(stack, 0, 31), std::pair(0, 2));
  EXPECT_EQ(between(stack, 30, 130), std::pair(1, 3));
  EXPECT_EQ(between(stack, 29, 131), std::pair(0, 4));
  EXPECT_EQ(between(stack, -50, 0), std::pair(0, 0));
  EXPECT_EQ(between(stack, 500, 9000), std::pair(10, 11));
  EXPECT_EQ(between(stack, 530, 9000), std::pair(11, 11));
}

}  // namespace
}  // namespace kindora
