// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A table of which a part is in sight.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <numeric>
#include <set>
#include <string>
#include <vector>

#include "tests/support/TableReader.h"
#include "toolkit/controllers/UITableView.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr double kHeader = 40;
constexpr double kRow = 60;
constexpr double kSeen = 480;
// As many rows as fit in what is seen and its margins, with parts at both ends.
constexpr int kMostCells = static_cast<int>((kSeen + 200) / kRow) + 2;

// The numbers in `rows`, the ticked ones with a tick; notes what it is asked.
class ManyRows final : public UITableViewDataSource {
 public:
  std::vector<int> rows;
  std::set<int> ticked;
  UITableView* table = nullptr;
  bool hasHeader = false;
  std::vector<int> asked;  // for their cells
  std::vector<std::string> calls;

  int numberOfSectionsInTableView() override { return 1; }
  int tableViewNumberOfRowsInSection(int /*section*/) override {
    return static_cast<int>(rows.size());
  }
  std::string tableViewTitleForHeaderInSection(int /*section*/) override {
    return hasHeader ? "Numbers" : "";
  }
  void tableViewWillDisplayHeaderViewForSection(UITableViewHeaderFooterView& /*view*/,
                                                int /*section*/) override {
    calls.emplace_back("header");
  }
  UITableViewCellRef tableViewCellForRowAtIndexPath(IndexPath path) override {
    const int number = numberAt(path);
    asked.push_back(number);
    note("cell", path);
    auto cell = table->dequeueReusableCell("cell");
    cell->setObjectName(QString::number(number));
    cell->setAccessoryType(ticked.contains(number) ? UITableViewCellAccessoryType::checkmark
                                                   : UITableViewCellAccessoryType::none);
    return cell;
  }
  const void* tableViewIdentityForRowAtIndexPath(IndexPath path) override {
    return &identities_.at(static_cast<std::size_t>(numberAt(path)));
  }
  bool tableViewShouldHighlightRowAtIndexPath(IndexPath path) override {
    note("highlight", path);
    return true;
  }
  bool tableViewCanEditRowAtIndexPath(IndexPath path) override {
    note("edit", path);
    return true;
  }
  std::string tableViewTitleForDeleteConfirmationButtonForRowAtIndexPath(IndexPath path) override {
    note("title", path);
    return "Delete";
  }

 private:
  [[nodiscard]] int numberAt(IndexPath path) const {
    return rows.at(static_cast<std::size_t>(path.row));
  }
  void note(const char* what, IndexPath path) {
    calls.push_back(what + std::string(" ") + std::to_string(path.row));
  }

  const std::vector<std::int8_t> identities_ = std::vector<std::int8_t>(20'000);
};

// Tells the table how high its rows are, as an item does.
class UITableViewSightTest : public ::testing::Test {
 protected:
  UITableViewSightTest() {
    source.table = &table;
    table.registerCell("cell", [this] {
      ++made;
      return std::make_shared<UITableViewCell>();
    });
    QObject::connect(&table, &UITableView::changed, &table, [this] { measure(); });
    QObject::connect(&table, &UITableView::shifted, &table, [this](double by) {
      offset += by;
      ++shifts;
    });
  }

  void list(int count) {
    source.rows.resize(static_cast<std::size_t>(count));
    std::iota(source.rows.begin(), source.rows.end(), 0);
    table.reloadData();
    scrollTo(offset);
  }
  void scrollTo(double y) {
    offset = y;
    table.setBounds({{0, y}, {320, kSeen}});
  }
  void scrollToRow(int row) { scrollTo(table.topOfRow(row)); }
  void animate() { table.reloadSections({0}, UITableViewRowAnimation::automatic); }
  [[nodiscard]] std::vector<int> shown() const {
    std::vector<int> numbers;
    for (const auto& [row, each] : table.shownRows()) {
      if (each.cell) numbers.push_back(each.cell->objectName().toInt());
    }
    return numbers;
  }
  // Of the row's upper edge below that of what is seen.
  [[nodiscard]] double placeOf(int row) const { return table.topOfRow(row) - offset; }
  [[nodiscard]] UITableViewCell* cell(int row) const {
    return table.cellForRowAtIndexPath({0, row}).get();
  }
  void measure() {
    std::map<int, double> heights;
    for (const auto& [row, each] : table.shownRows()) {
      heights[row] = !each.cell                                       ? kHeader
                     : high.contains(each.cell->objectName().toInt()) ? 2 * kRow
                                                                      : kRow;
    }
    table.setRowHeights(heights);
  }

  int made = 0;
  int shifts = 0;
  double offset = 0;
  std::set<int> high;  // numbers in rows of twice the height
  ManyRows source;
  UITableView table{source};
};

// --- How many cells ---

TEST_F(UITableViewSightTest, HasNoCellsBeforeItIsSeen) {
  source.rows = {0, 1, 2};
  table.reloadData();
  EXPECT_EQ(table.rowCount(), 3);
  EXPECT_THAT(source.asked, IsEmpty());
}

TEST_F(UITableViewSightTest, TenThousandRowsAskForNoMoreCellsThanFitInAndNearSight) {
  list(10'000);
  EXPECT_LE(source.asked.size(), static_cast<std::size_t>(kMostCells) + 3);
  EXPECT_EQ(shown().front(), 0);
  EXPECT_GE(shown().back(), 9);
  EXPECT_LE(shown().back(), 10);
}

TEST_F(UITableViewSightTest, KnowsHowHighAllRowsAreWithoutTheirCells) {
  list(10'000);
  EXPECT_EQ(table.contentHeight(), 10'000 * kRow);
  EXPECT_EQ(table.topOfRow(9'000), 9'000 * kRow);
}

TEST_F(UITableViewSightTest, ScrollingAsksForWhatComesAndNothingElse) {
  list(10'000);
  scrollToRow(5'000);
  source.asked.clear();
  scrollToRow(5'001);
  scrollToRow(5'003);
  EXPECT_THAT(source.asked, ElementsAre(5'010, 5'011, 5'012));
}

TEST_F(UITableViewSightTest, ScrollingThroughAllRowsMakesNoMoreCells) {
  list(10'000);
  scrollTo(1'000);
  const int before = made;
  for (double y = 1'000; y < table.contentHeight() - kSeen; y += 250) scrollTo(y);
  EXPECT_EQ(shown().back(), 9'999);
  EXPECT_LE(made, std::max(before, kMostCells) + 1);
}

TEST_F(UITableViewSightTest, GrowingAtTheTopAndShrinkingMakesNoMoreCells) {
  list(5'000);
  scrollTo(10'000);
  for (int i = 5'000; i < 5'100; ++i) {
    source.rows.insert(source.rows.begin(), i);
    animate();
  }
  const int before = made;
  while (source.rows.size() > 20) {
    source.rows.erase(source.rows.begin(), source.rows.begin() + 20);
    animate();
  }
  EXPECT_LE(made, before + kMostCells);
  EXPECT_LE(made, 2 * kMostCells);
}

TEST_F(UITableViewSightTest, ARowFarFromSightHasNoCell) {
  list(10'000);
  EXPECT_NE(cell(3), nullptr);
  EXPECT_EQ(cell(300), nullptr);
}

TEST_F(UITableViewSightTest, AReloadAsksOnlyForWhatIsInAndNearSight) {
  list(10'000);
  scrollToRow(5'000);
  source.asked.clear();
  table.reloadData();
  EXPECT_EQ(source.asked, shown());
}

// --- What the source is asked, in which order ---

TEST_F(UITableViewSightTest, AsksForRowAfterRowAndForEachInTurn) {
  source.hasHeader = true;
  list(2);
  source.calls.clear();
  table.reloadData();
  EXPECT_THAT(source.calls, ElementsAre("header", "cell 0", "highlight 0", "edit 0", "title 0",
                                        "cell 1", "highlight 1", "edit 1", "title 1"));
}

TEST_F(UITableViewSightTest, AHeaderThatScrollsBackIsDressedAgain) {
  source.hasHeader = true;
  list(1'000);
  scrollToRow(500);
  source.calls.clear();
  scrollTo(0);
  EXPECT_EQ(source.calls.front(), "header");
}

// --- A search ---

TEST_F(UITableViewSightTest, ALetterIsOneChange) {
  list(10'000);
  std::erase_if(source.rows, [](int number) { return number % 7 != 0; });
  source.asked.clear();
  TableEar ear(table);
  table.reloadData();
  EXPECT_EQ(ear.changes, 1);
  EXPECT_LE(source.asked.size(), static_cast<std::size_t>(kMostCells));
  EXPECT_EQ(shown().at(2), 14);
  EXPECT_EQ(table.contentHeight(), 1'429 * kRow);
}

TEST_F(UITableViewSightTest, AListThatIsFoundIsShownFromItsEndWhereItIsTooShort) {
  list(10'000);
  scrollToRow(9'000);
  source.rows = {1, 2, 3};
  table.reloadData();
  EXPECT_THAT(shown(), ElementsAre(1, 2, 3));
}

TEST_F(UITableViewSightTest, WhatIsFoundAgainKeepsItsCell) {
  list(10'000);
  const auto* before = cell(7);
  std::erase_if(source.rows, [](int number) { return number % 7 != 0; });
  table.reloadData();
  EXPECT_EQ(cell(1), before);
}

// --- Reuse ---

TEST_F(UITableViewSightTest, NoTickTravels) {
  source.ticked = {2};
  list(10'000);
  ASSERT_TRUE(cell(2)->hasCheckmark());
  for (double y = 0; y < 5'000; y += 50) {
    scrollTo(y);
    for (const auto& [row, each] : table.shownRows()) {
      EXPECT_EQ(each.cell->hasCheckmark(), row == 2);
    }
  }
  scrollTo(0);
  EXPECT_TRUE(cell(2)->hasCheckmark());
}

TEST_F(UITableViewSightTest, NoHighlightTravels) {
  list(10'000);
  table.setHighlighted(2, true);
  ASSERT_TRUE(cell(2)->isHighlighted());
  for (double y = 0; y < 2'000; y += 50) scrollTo(y);
  for (const auto& [row, each] : table.shownRows()) EXPECT_FALSE(each.cell->isHighlighted());
}

TEST_F(UITableViewSightTest, SelectionAndOpenRowAreRowsAndNoCells) {
  list(10'000);
  table.select(2);
  table.openRow(2);
  scrollToRow(5'000);
  EXPECT_EQ(table.indexPathForSelectedRow(), (IndexPath{0, 2}));
  EXPECT_EQ(table.editingRow(), 2);
}

TEST_F(UITableViewSightTest, ACellIsSettledOnceItStandsInItsRow) {
  list(10'000);
  std::vector<bool> settled;
  QObject::connect(&table, &UITableView::changed, &table, [&] {
    settled.push_back(table.shownRows().rbegin()->second.cell->isSettled());
  });
  scrollTo(600);
  EXPECT_FALSE(settled.front());
  for (const auto& [row, each] : table.shownRows()) EXPECT_TRUE(each.cell->isSettled());
}

TEST_F(UITableViewSightTest, TheRowWithTheKeyboardKeepsItsCellOutOfSight) {
  list(10'000);
  const auto* held = cell(2);
  table.holdRow(2);
  for (double y = 0; y < 5'000; y += 50) scrollTo(y);
  EXPECT_EQ(cell(2), held);
  EXPECT_EQ(held->objectName(), QStringLiteral("2"));
  table.holdRow(-1);
  EXPECT_EQ(cell(2), nullptr);
}

TEST_F(UITableViewSightTest, TheRowWithTheKeyboardIsHeldWhereverItMoves) {
  list(10'000);
  const auto* held = cell(2);
  table.holdRow(2);
  scrollToRow(5'000);
  source.rows.insert(source.rows.begin(), 15'000);
  table.reloadData();
  EXPECT_EQ(cell(3), held);
  source.rows.erase(source.rows.begin() + 3);
  table.reloadData();
  EXPECT_EQ(cell(3), nullptr);
}

// --- What is seen stays in its place ---

TEST_F(UITableViewSightTest, RowsThatComeAboveMoveNothingThatIsSeen) {
  list(10'000);
  scrollTo(5'000 * kRow + 10);
  source.rows.insert(source.rows.begin(), {15'000, 15'001});
  animate();
  EXPECT_EQ(placeOf(5'002), -10);
  EXPECT_EQ(cell(5'002)->objectName(), QStringLiteral("5000"));
  source.rows.erase(source.rows.begin(), source.rows.begin() + 5);
  animate();
  EXPECT_EQ(placeOf(4'997), -10);
}

TEST_F(UITableViewSightTest, AtTheTopNewRowsAreSeenComing) {
  source.hasHeader = true;
  list(100);
  source.rows.insert(source.rows.begin(), 15'000);
  animate();
  EXPECT_EQ(shifts, 0);
  EXPECT_EQ(placeOf(1), kHeader);
  EXPECT_TRUE(table.shownRows().at(1).isNew);
  EXPECT_FALSE(table.shownRows().at(2).isNew);
}

TEST_F(UITableViewSightTest, RowsThatTurnOutHigherAboveMoveNothingThatIsSeen) {
  high = {4'995, 4'996, 4'997, 4'998, 4'999};
  list(10'000);
  scrollToRow(5'000);
  EXPECT_EQ(placeOf(5'000), 0);
  EXPECT_EQ(table.topOfRow(5'000), 5'002 * kRow);  // the two in the margin have been seen
  scrollTo(offset - 200);
  EXPECT_EQ(placeOf(5'000), 200);
}

TEST_F(UITableViewSightTest, RowsKeepTheHeightThatWasSeen) {
  high = {3};
  list(1'000);
  scrollToRow(500);
  source.rows.push_back(1'000);
  table.reloadData();
  EXPECT_EQ(table.contentHeight(), 1'002 * kRow);
  EXPECT_EQ(placeOf(500), 0);
}

}  // namespace
}  // namespace kindora
