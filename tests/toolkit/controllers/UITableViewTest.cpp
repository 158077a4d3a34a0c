// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UITableView.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/TableReader.h"

namespace kindora {
namespace {

using Told = std::vector<std::string>;

class TextCell final : public UITableViewCell {
 public:
  int timesAwoken = 0;
  std::string text;
  void awakeFromNib() override { ++timesAwoken; }
};

// A record of a list, the same when it is the same object.
struct Record {
  std::string text;
};
using RecordRef = std::shared_ptr<Record>;

RecordRef record(const std::string& text) { return std::make_shared<Record>(Record{text}); }

// Two sections of records.
class Source final : public UITableViewDataSource {
 public:
  std::array<std::vector<RecordRef>, 2> data;
  bool hasIdentities = true;
  UITableView* table = nullptr;
  int filled = 0;
  Told calls;

  int numberOfSectionsInTableView() override { return 2; }
  int tableViewNumberOfRowsInSection(int section) override {
    return static_cast<int>(of(section).size());
  }
  bool hasHeaders = true;
  std::string tableViewTitleForHeaderInSection(int section) override {
    if (!hasHeaders) return {};
    return section == 0 ? "first" : "second";
  }
  void tableViewWillDisplayHeaderViewForSection(UITableViewHeaderFooterView& view,
                                                int /*section*/) override {
    view.textLabel.lock()->setTextAlignment(NSTextAlignment::right);
  }
  UITableViewCellRef tableViewCellForRowAtIndexPath(IndexPath path) override {
    ++filled;
    auto cell = table->dequeueReusableCell("text");
    dynamic_cast<TextCell&>(*cell).text = at(path)->text;
    return cell;
  }
  const void* tableViewIdentityForRowAtIndexPath(IndexPath path) override {
    return hasIdentities ? at(path).get() : nullptr;
  }
  bool tableViewShouldHighlightRowAtIndexPath(IndexPath path) override {
    return at(path)->text != "dull";
  }
  void tableViewDidSelectRowAtIndexPath(IndexPath path) override { note("select", path); }
  bool tableViewCanEditRowAtIndexPath(IndexPath path) override { return path.section == 1; }
  std::string tableViewTitleForDeleteConfirmationButtonForRowAtIndexPath(IndexPath path) override {
    return "Remove " + at(path)->text;
  }
  void tableViewCommitEditingStyleForRowAtIndexPath(UITableViewCellEditingStyle style,
                                                    IndexPath path) override {
    if (style == UITableViewCellEditingStyle::deleteRow) note("delete", path);
  }

 private:
  std::vector<RecordRef>& of(int section) { return data.at(static_cast<std::size_t>(section)); }
  RecordRef& at(IndexPath path) { return of(path.section).at(static_cast<std::size_t>(path.row)); }
  void note(const std::string& what, IndexPath path) {
    calls.push_back(what + " " + std::to_string(path.section) + "," + std::to_string(path.row));
  }
};

// A table of [a b c] and [d e], all in sight.
class UITableViewTest : public ::testing::Test {
 protected:
  UITableViewTest() {
    source.table = &table;
    table.registerCell("text", [this] {
      ++made;
      return std::make_shared<TextCell>();
    });
    source.data = {{{a, b, c}, {d, e}}};
    table.reloadData();
  }

  [[nodiscard]] Told shown() const {
    Told lines;
    for (int row = 0; row < reader.count(); ++row) {
      lines.push_back(reader.isHeader(row) ? "# " + *reader.header(row)->textLabel.lock()->text()
                                           : reader.cell<TextCell>(row)->text);
    }
    return lines;
  }
  // Those that the last reload has added.
  [[nodiscard]] Told newRows() const {
    Told lines;
    for (int row = 0; row < reader.count(); ++row) {
      if (reader.row(row).isNew) lines.push_back(shown().at(static_cast<std::size_t>(row)));
    }
    return lines;
  }
  void reloadBoth() { table.reloadSections({0, 1}, UITableViewRowAnimation::automatic); }

  const RecordRef a = record("a");
  const RecordRef b = record("b");
  const RecordRef c = record("c");
  const RecordRef d = record("d");
  const RecordRef e = record("e");
  int made = 0;
  Source source;
  UITableView table{source};
  TableReader reader{table};
};

// --- What it shows ---

TEST_F(UITableViewTest, IsEmptyBeforeItsFirstReload) {
  const UITableView fresh(source);
  EXPECT_EQ(fresh.rowCount(), 0);
}

TEST_F(UITableViewTest, ListsEverySectionUnderItsHeader) {
  EXPECT_EQ(shown(), (Told{"# first", "a", "b", "c", "# second", "d", "e"}));
}

TEST_F(UITableViewTest, LetsTheSourceDressTheHeaders) {
  EXPECT_EQ(reader.header(0)->textLabel.lock()->textAlignment(), NSTextAlignment::right);
}

TEST_F(UITableViewTest, ARowHasACellAndAHeaderHasNone) {
  EXPECT_EQ(reader.cell(0), nullptr);
  EXPECT_EQ(&reader.row(0).view(), reader.header(0));
  EXPECT_EQ(reader.header(1), nullptr);
  EXPECT_EQ(&reader.row(1).view(), reader.cell(1));
}

TEST_F(UITableViewTest, TellsWhichRowsCanBeEditedAndHow) {
  EXPECT_FALSE(reader.row(0).canEdit);
  EXPECT_FALSE(reader.row(1).canEdit);
  EXPECT_EQ(reader.row(1).deleteTitle, "");
  EXPECT_TRUE(reader.row(5).canEdit);
  EXPECT_EQ(reader.row(5).deleteTitle, "Remove d");
}

// --- Cells ---

TEST_F(UITableViewTest, AwakensEachCellOnce) {
  const auto* cell = reader.cell<TextCell>(1);
  table.reloadData();
  table.reloadData();
  EXPECT_EQ(reader.cell<TextCell>(1), cell);
  EXPECT_EQ(cell->timesAwoken, 1);
}

TEST_F(UITableViewTest, MakesNoMoreCellsThanItShows) {
  for (int i = 0; i < 10; ++i) table.reloadData();
  EXPECT_EQ(made, 5);
}

TEST_F(UITableViewTest, ReusesTheCellsOfRowsThatLeft) {
  source.data[0] = {a};
  table.reloadData();
  source.data[0] = {a, record("f"), record("g")};
  table.reloadData();
  EXPECT_EQ(made, 5);
  EXPECT_EQ(shown(), (Told{"# first", "a", "f", "g", "# second", "d", "e"}));
}

TEST_F(UITableViewTest, NoTwoRowsShareACell) {
  source.data = {{{e, c, record("f")}, {a, record("g"), b, d}}};
  reloadBoth();
  std::vector<UITableViewCell*> cells;
  for (int row = 0; row < reader.count(); ++row) {
    if (!reader.isHeader(row)) cells.push_back(reader.cell(row));
  }
  std::ranges::sort(cells);
  EXPECT_EQ(std::ranges::adjacent_find(cells), cells.end());
  EXPECT_EQ(cells.size(), 7u);
}

TEST_F(UITableViewTest, ARecycledCellIsNoLongerPressed) {
  table.setHighlighted(3, true);
  const auto* pressed = reader.cell(3);
  ASSERT_TRUE(pressed->isHighlighted());
  table.reloadData();
  EXPECT_FALSE(pressed->isHighlighted());
}

TEST_F(UITableViewTest, AnUnregisteredKindStops) {
  EXPECT_DEATH(static_cast<void>(table.dequeueReusableCell("picture")),
               "fatal error: no cell is registered as \"picture\"");
}

// --- Reloading ---

TEST_F(UITableViewTest, ARowThatStaysIsFilledAgainAndNotReplaced) {
  const auto* cell = reader.cell(2);
  TableEar ear(table);
  source.data[0][1]->text = "B";
  reloadBoth();
  EXPECT_EQ(shown().at(2), "B");
  EXPECT_EQ(reader.cell(2), cell);
  EXPECT_FALSE(reader.row(2).isNew);
  EXPECT_EQ(ear.changes, 1);
}

TEST_F(UITableViewTest, ANewRowComesAndTheOthersStay) {
  const auto* cell = reader.cell(1);
  TableEar ear(table);
  source.data[0].insert(source.data[0].begin(), record("new"));
  reloadBoth();
  EXPECT_EQ(shown(), (Told{"# first", "new", "a", "b", "c", "# second", "d", "e"}));
  EXPECT_EQ(ear.changes, 1);
  EXPECT_EQ(newRows(), (Told{"new"}));
  EXPECT_EQ(reader.cell(2), cell);
}

TEST_F(UITableViewTest, ARowThatLeavesGoesAndTheOthersStay) {
  const auto* cell = reader.cell(3);
  TableEar ear(table);
  source.data[0] = {a, c};
  reloadBoth();
  EXPECT_EQ(shown(), (Told{"# first", "a", "c", "# second", "d", "e"}));
  EXPECT_EQ(ear.changes, 1);
  EXPECT_EQ(newRows(), (Told{}));
  EXPECT_EQ(reader.cell(2), cell);
}

TEST_F(UITableViewTest, ARowThatMovesIsKept) {
  const auto* cell = reader.cell(3);
  TableEar ear(table);
  source.data[0] = {c, a, b};
  reloadBoth();
  EXPECT_EQ(shown(), (Told{"# first", "c", "a", "b", "# second", "d", "e"}));
  EXPECT_EQ(ear.changes, 1);
  EXPECT_EQ(newRows(), (Told{}));
  EXPECT_EQ(reader.cell(1), cell);
}

TEST_F(UITableViewTest, ARecordThatChangesItsSectionIsAnotherRow) {
  source.data = {{{b, c}, {d, e, a}}};
  reloadBoth();
  EXPECT_EQ(shown(), (Told{"# first", "b", "c", "# second", "d", "e", "a"}));
  EXPECT_EQ(newRows(), (Told{"a"}));
}

TEST_F(UITableViewTest, EqualRecordsAreDifferentRows) {
  source.data[0] = {record("a"), b, c};
  reloadBoth();
  EXPECT_EQ(newRows(), (Told{"a"}));
}

TEST_F(UITableViewTest, ARecordMayBeListedTwice) {
  source.data[0] = {a, b, a};
  reloadBoth();
  EXPECT_EQ(shown(), (Told{"# first", "a", "b", "a", "# second", "d", "e"}));
}

TEST_F(UITableViewTest, OfARecordListedTwiceOneMayLeave) {
  source.data[0] = {a, b, a};
  reloadBoth();
  source.data[0] = {b, a};
  reloadBoth();
  EXPECT_EQ(shown(), (Told{"# first", "b", "a", "# second", "d", "e"}));
}

TEST_F(UITableViewTest, OfTheLastRecordListedTwiceOneMayLeave) {
  source.data[1] = {d, e, e, e};
  reloadBoth();
  source.data[1] = {e};
  reloadBoth();
  EXPECT_EQ(shown(), (Told{"# first", "a", "b", "c", "# second", "e"}));
}

TEST_F(UITableViewTest, ASectionMayBecomeEmptyAndFillAgain) {
  source.data[0].clear();
  reloadBoth();
  EXPECT_EQ(shown(), (Told{"# first", "# second", "d", "e"}));
  source.data[0] = {c};
  reloadBoth();
  EXPECT_EQ(shown(), (Told{"# first", "c", "# second", "d", "e"}));
}

TEST_F(UITableViewTest, RowsWithoutIdentityAreToldByTheirPlace) {
  source.hasIdentities = false;
  table.reloadData();
  const auto* cell = reader.cell(1);
  source.data[0] = {c, b};
  reloadBoth();
  EXPECT_EQ(shown(), (Told{"# first", "c", "b", "# second", "d", "e"}));
  EXPECT_EQ(newRows(), (Told{}));
  EXPECT_EQ(reader.cell(1), cell);
}

TEST_F(UITableViewTest, AnyListTurnsIntoAnyOther) {
  const std::vector<std::vector<RecordRef>> lists{
      {}, {a}, {b, a}, {a, b, c}, {c, b, a}, {b, b, a}, {a, c, a, c}, {e, d, c, b, a}};
  for (const auto& before : lists) {
    for (const auto& after : lists) {
      source.data[0] = before;
      reloadBoth();
      source.data[0] = after;
      reloadBoth();
      Told expected{"# first"};
      for (const auto& item : after) expected.push_back(item->text);
      expected.insert(expected.end(), {"# second", "d", "e"});
      ASSERT_EQ(shown(), expected);
    }
  }
}

TEST_F(UITableViewTest, ReloadingOneSectionLeavesTheOtherAlone) {
  source.data = {{{c}, {e}}};
  source.filled = 0;
  TableEar ear(table);
  table.reloadSections({1}, UITableViewRowAnimation::automatic);
  EXPECT_EQ(shown(), (Told{"# first", "a", "b", "c", "# second", "e"}));
  EXPECT_EQ(source.filled, 1);
  EXPECT_EQ(ear.changes, 1);
}

TEST_F(UITableViewTest, TellsWhetherItsChangesAreAnimated) {
  EXPECT_FALSE(table.animatesChanges());
  reloadBoth();
  EXPECT_TRUE(table.animatesChanges());
  table.reloadSections({0}, UITableViewRowAnimation::none);
  EXPECT_FALSE(table.animatesChanges());
  reloadBoth();
  table.reloadData();
  EXPECT_FALSE(table.animatesChanges());
}

TEST_F(UITableViewTest, TellsWithTheChangeWhetherItIsAnimated) {
  TableEar ear(table);
  reloadBoth();
  EXPECT_TRUE(ear.lastWasAnimated);
  table.reloadData();
  EXPECT_FALSE(ear.lastWasAnimated);
  EXPECT_EQ(ear.changes, 2);
}

// --- Selecting and pressing ---

TEST_F(UITableViewTest, SelectingTellsTheSource) {
  table.select(2);
  table.select(6);
  EXPECT_EQ(source.calls, (Told{"select 0,1", "select 1,1"}));
  EXPECT_EQ(table.indexPathForSelectedRow(), (IndexPath{1, 1}));
}

TEST_F(UITableViewTest, TheSelectionIsKnownWhenTheSourceHearsOfIt) {
  EXPECT_EQ(table.indexPathForSelectedRow(), std::nullopt);
  table.select(1);
  EXPECT_EQ(table.indexPathForSelectedRow(), (IndexPath{0, 0}));
}

TEST_F(UITableViewTest, HeadersAndStrangersCannotBeSelected) {
  for (const int row : {0, 4, -1, 7}) table.select(row);
  EXPECT_EQ(source.calls, (Told{}));
  EXPECT_EQ(table.indexPathForSelectedRow(), std::nullopt);
}

TEST_F(UITableViewTest, AFullReloadForgetsTheSelection) {
  table.select(1);
  table.reloadData();
  EXPECT_EQ(table.indexPathForSelectedRow(), std::nullopt);
}

TEST_F(UITableViewTest, PressingHighlightsTheCell) {
  table.setHighlighted(1, true);
  EXPECT_TRUE(reader.cell(1)->isHighlighted());
  table.setHighlighted(1, false);
  EXPECT_FALSE(reader.cell(1)->isHighlighted());
}

TEST_F(UITableViewTest, ARowThatDoesNothingIsNotHighlighted) {
  a->text = "dull";
  table.reloadData();
  EXPECT_FALSE(reader.row(1).highlights);
  EXPECT_TRUE(reader.row(2).highlights);
  table.setHighlighted(1, true);
  EXPECT_FALSE(reader.cell(1)->isHighlighted());
}

TEST_F(UITableViewTest, HeadersAndStrangersCannotBePressed) {
  for (const int row : {0, 4, -1, 7}) table.setHighlighted(row, true);
  for (const int row : {1, 2, 3, 5, 6}) EXPECT_FALSE(reader.cell(row)->isHighlighted());
}

// --- Swiping ---

TEST_F(UITableViewTest, OnlyARowThatCanBeEditedOpens) {
  table.openRow(1);
  EXPECT_EQ(table.editingRow(), -1);
  table.openRow(5);
  EXPECT_EQ(table.editingRow(), 5);
}

TEST_F(UITableViewTest, HeadersAndStrangersDoNotOpen) {
  for (const int row : {0, 4, -1, 7}) table.openRow(row);
  EXPECT_EQ(table.editingRow(), -1);
}

TEST_F(UITableViewTest, OpeningARowClosesTheOther) {
  table.openRow(5);
  table.openRow(6);
  EXPECT_EQ(table.editingRow(), 6);
}

TEST_F(UITableViewTest, TellsOnceThatARowOpened) {
  int changes = 0;
  QObject::connect(&table, &UITableView::editingRowChanged, [&changes] { ++changes; });
  table.openRow(5);
  table.openRow(5);
  EXPECT_EQ(changes, 1);
}

TEST_F(UITableViewTest, TheUserClosesTheOpenRow) {
  table.openRow(5);
  table.closeRow();
  EXPECT_EQ(table.editingRow(), -1);
}

TEST_F(UITableViewTest, APressOnAnyRowOnlyClosesTheOpenOne) {
  for (const int row : {5, 2, 6}) {
    table.openRow(5);
    table.setHighlighted(row, true);
    EXPECT_FALSE(reader.cell(row)->isHighlighted());
    table.select(row);
    EXPECT_EQ(table.editingRow(), -1);
    EXPECT_EQ(source.calls, (Told{}));
    EXPECT_EQ(table.indexPathForSelectedRow(), std::nullopt);
  }
}

TEST_F(UITableViewTest, EndingTheEditingClosesTheOpenRow) {
  table.openRow(5);
  table.setEditing(false, true);
  EXPECT_EQ(table.editingRow(), -1);
}

TEST_F(UITableViewTest, BeginningTheEditingOpensNothing) {
  table.setEditing(true, true);
  EXPECT_EQ(table.editingRow(), -1);
  table.openRow(5);
  table.setEditing(true, false);
  EXPECT_EQ(table.editingRow(), 5);
}

TEST_F(UITableViewTest, AReloadClosesTheOpenRow) {
  table.openRow(5);
  source.data[1] = {e};
  reloadBoth();
  EXPECT_EQ(table.editingRow(), -1);
}

TEST_F(UITableViewTest, PressingTheDeleteButtonAsksTheSource) {
  table.openRow(6);
  table.commitDelete(6);
  EXPECT_EQ(source.calls, (Told{"delete 1,1"}));
  EXPECT_EQ(table.editingRow(), 6);
  EXPECT_EQ(shown().back(), "e");
}

TEST_F(UITableViewTest, ARowThatCannotBeEditedIsNotDeleted) {
  for (const int row : {0, 1, 4, -1, 7}) table.commitDelete(row);
  EXPECT_EQ(source.calls, (Told{}));
}

// --- Sections without headers, and a view above all rows ---

TEST_F(UITableViewTest, ASectionWithoutATitleHasNoHeader) {
  source.hasHeaders = false;
  table.reloadData();
  EXPECT_EQ(shown(), (Told{"a", "b", "c", "d", "e"}));
}

TEST_F(UITableViewTest, WithoutHeadersRowsKeepTheirPaths) {
  source.hasHeaders = false;
  table.reloadData();
  table.select(3);
  EXPECT_EQ(source.calls, (Told{"select 1,0"}));
}

TEST_F(UITableViewTest, FindsTheCellThatShowsARow) {
  EXPECT_EQ(table.cellForRowAtIndexPath({0, 1}).get(), reader.cell(2));
  EXPECT_EQ(table.cellForRowAtIndexPath({1, 1}).get(), reader.cell(6));
}

TEST_F(UITableViewTest, FindsNoCellWhereThereIsNoRow) {
  EXPECT_EQ(table.cellForRowAtIndexPath({0, 3}), nullptr);
  EXPECT_EQ(table.cellForRowAtIndexPath({2, 0}), nullptr);
  EXPECT_EQ(table.cellForRowAtIndexPath({0, -1}), nullptr);
}

TEST_F(UITableViewTest, DeselectsTheSelectedRowOnly) {
  table.select(1);
  table.deselectRowAtIndexPath({1, 0}, true);
  EXPECT_EQ(table.indexPathForSelectedRow(), (IndexPath{0, 0}));
  table.deselectRowAtIndexPath({0, 0}, true);
  EXPECT_EQ(table.indexPathForSelectedRow(), std::nullopt);
}

TEST_F(UITableViewTest, HasNoHeaderViewUntilItGetsOne) {
  EXPECT_EQ(table.tableHeaderView(), nullptr);
  UISearchBar bar;
  int told = 0;
  QObject::connect(&table, &UITableView::tableHeaderViewChanged, [&told] { ++told; });
  table.setTableHeaderView(&bar);
  table.setTableHeaderView(&bar);
  EXPECT_EQ(table.tableHeaderView(), &bar);
  EXPECT_EQ(told, 1);
}

TEST_F(UITableViewTest, AHeaderViewIsNoRow) {
  UISearchBar bar;
  table.setTableHeaderView(&bar);
  EXPECT_EQ(reader.count(), 7);
}

}  // namespace
}  // namespace kindora
