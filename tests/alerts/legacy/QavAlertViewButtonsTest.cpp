// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/legacy/QavAlertViewButtons.h"

#include <gtest/gtest.h>

#include <ostream>

namespace kindora {
namespace {

struct Row {
  const char* name;
  bool cancel;
  std::optional<int> cancelIndex;  // set, where there is one
  int others;
  bool vertical;
  int expectedCancelIndex;
  int number;
  int firstOther;
  bool sideBySide;
  int suggested;
  std::vector<int> otherRows;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

const char* const kTitles[] = {"Zero", "One", "Two"};

class QavAlertViewButtonsTable : public testing::TestWithParam<Row> {
 protected:
  static QavAlertViewButtons make(const Row& row) {
    QavAlertViewButtons buttons;
    if (row.cancel) buttons.setCancelButtonTitle("Cancel");
    for (int i = 0; i < row.others; ++i) buttons.addButtonWithTitle(kTitles[i]);
    if (row.cancelIndex) buttons.setCancelButtonIndex(*row.cancelIndex);
    buttons.alwaysShowsButtonsVertically = row.vertical;
    return buttons;
  }
};

TEST_P(QavAlertViewButtonsTable, GivesEachButtonItsIndex) {
  const Row& row = GetParam();
  const QavAlertViewButtons buttons = make(row);
  EXPECT_EQ(buttons.cancelButtonIndex(), row.expectedCancelIndex);
  EXPECT_EQ(buttons.numberOfButtons(), row.number);
  EXPECT_EQ(buttons.firstOtherButtonIndex(), row.firstOther);
  EXPECT_EQ(buttons.areSideBySide(), row.sideBySide);
  EXPECT_EQ(buttons.suggestedButtonIndex(), row.suggested);
  ASSERT_EQ(buttons.numberOfOtherRows(), static_cast<int>(row.otherRows.size()));
  for (int i = 0; i < buttons.numberOfOtherRows(); ++i) {
    EXPECT_EQ(buttons.buttonIndexOfOtherRow(i), row.otherRows[static_cast<std::size_t>(i)]);
  }
}

TEST_P(QavAlertViewButtonsTable, WhatAButtonShowsIsTheTitleAtItsIndex) {
  const QavAlertViewButtons buttons = make(GetParam());
  if (buttons.numberOfButtons() > 0) {
    EXPECT_EQ(buttons.suggestedTitle(), buttons.buttonTitleAtIndex(buttons.suggestedButtonIndex()));
  }
  for (int i = 0; i < buttons.numberOfOtherRows(); ++i) {
    EXPECT_EQ(buttons.titleOfOtherRow(i),
              buttons.buttonTitleAtIndex(buttons.buttonIndexOfOtherRow(i)));
  }
}

constexpr std::nullopt_t kUnset = std::nullopt;

INSTANTIATE_TEST_SUITE_P(
    , QavAlertViewButtonsTable,
    testing::Values(Row{"CancelAlone", true, kUnset, 0, false, 0, 1, 1, false, 0, {}},
                    Row{"CancelAndOne", true, kUnset, 1, false, 0, 2, 1, true, 1, {0}},
                    Row{"CancelAndOneStacked", true, kUnset, 1, true, 0, 2, 1, false, 0, {1}},
                    Row{"CancelAndTwo", true, kUnset, 2, false, 0, 3, 1, false, 0, {1, 2}},
                    Row{"CancelAndThree", true, kUnset, 3, false, 0, 4, 1, false, 0, {1, 2, 3}},
                    Row{"One", false, kUnset, 1, false, -1, 1, 0, false, 0, {}},
                    Row{"Two", false, kUnset, 2, false, -1, 2, 0, true, 1, {0}},
                    Row{"TwoStacked", false, kUnset, 2, true, -1, 2, 0, false, 1, {0}},
                    Row{"Three", false, kUnset, 3, false, -1, 3, 0, false, 2, {0, 1}},
                    Row{"None", false, kUnset, 0, false, -1, 0, 0, false, -1, {}},
                    Row{"CancelMovedToOne", true, 1, 3, false, 1, 4, 1, false, 1, {0, 2, 3}},
                    Row{"CancelMovedToTheEnd", true, 3, 3, false, 3, 4, 1, false, 3, {0, 1, 2}},
                    Row{"CancelMovedBesideOne", true, 1, 1, false, 1, 2, 1, true, 1, {0}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(QavAlertViewButtons, RepeatedTitleAnswersTheIndexOfTheFirst) {
  QavAlertViewButtons buttons;
  buttons.setCancelButtonTitle("Cancel");
  EXPECT_EQ(buttons.addButtonWithTitle("A"), 1);
  EXPECT_EQ(buttons.addButtonWithTitle("B"), 2);
  EXPECT_EQ(buttons.addButtonWithTitle("A"), 1);
  EXPECT_EQ(buttons.numberOfButtons(), 4);
}

TEST(QavAlertViewButtons, CancelTitleLeavesAnIndexThatWasSet) {
  QavAlertViewButtons buttons;
  buttons.setCancelButtonIndex(2);
  buttons.setCancelButtonTitle("Cancel");
  EXPECT_EQ(buttons.cancelButtonIndex(), 2);
}

TEST(QavAlertViewButtons, NoTitleIsNoCancelButtonAndAnEmptyOneIs) {
  QavAlertViewButtons buttons;
  buttons.setCancelButtonTitle(std::nullopt);
  EXPECT_EQ(buttons.cancelButtonIndex(), QavAlertViewButtons::kNoCancelButton);
  EXPECT_EQ(buttons.numberOfButtons(), 0);
  buttons.setCancelButtonTitle("");
  EXPECT_EQ(buttons.cancelButtonIndex(), 0);
  EXPECT_EQ(buttons.numberOfButtons(), 1);
}

TEST(QavAlertViewButtons, IndexWithoutAButtonHasNoTitle) {
  QavAlertViewButtons buttons;
  buttons.setCancelButtonTitle("Cancel");
  buttons.addButtonWithTitle("A");
  EXPECT_EQ(buttons.buttonTitleAtIndex(-1), std::nullopt);
  EXPECT_EQ(buttons.buttonTitleAtIndex(0), "Cancel");
  EXPECT_EQ(buttons.buttonTitleAtIndex(1), "A");
  EXPECT_EQ(buttons.buttonTitleAtIndex(2), std::nullopt);
}

}  // namespace
}  // namespace kindora
