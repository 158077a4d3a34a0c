// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/toolkit/hosts/TableFixture.h"
#include "toolkit/controllers/UISearchController.h"

namespace kindora {
namespace {

using TableListTest = TableFixture;

TEST_F(TableListTest, IsAListThatBearsTheScreensTitle) {
  show();
  EXPECT_EQ(role(QStringLiteral("Names")), QAccessible::List);
}

TEST_F(TableListTest, RowsStandBelowEachOtherUnderTheirHeading) {
  show();
  EXPECT_EQ(role(QStringLiteral("Friends")), QAccessible::Heading);
  EXPECT_EQ(row("Anna"), QRectF(0, 44, 320, 60));
  EXPECT_EQ(row("Bob"), QRectF(0, 112, 320, 60));
  EXPECT_EQ(row("Cleo"), QRectF(0, 180, 320, 60));
}

TEST_F(TableListTest, ARowThatGoesLetsTheOthersCloseUp) {
  show();
  controller->names.pop_back();
  table().reloadSections({0}, UITableViewRowAnimation::automatic);
  static_cast<void>(drawn());  // the list begins to move its rows with the next frame
  time.advance(1);
  EXPECT_EQ(spoken(QStringLiteral("Cleo")), nullptr);
  controller->names.assign({"Zoe", "Anna"});
  table().reloadData();
  static_cast<void>(drawn());
  time.advance(1);
  EXPECT_EQ(row("Zoe").top(), 44);
  EXPECT_EQ(row("Anna").top(), 112);
}

TEST_F(TableListTest, ASearchBarStandsAboveAllRowsAsWideAsTheTable) {
  UISearchController search;
  search.searchBar()->setFrame({{0, 0}, {0, 44}});
  table().setTableHeaderView(search.searchBar());
  show();
  host->setWidth(300);
  const QQuickItem* field = found(QStringLiteral("searchField"));
  ASSERT_NE(field, nullptr);
  EXPECT_LT(place(field).bottom(), 44);
  EXPECT_NEAR(place(field).right(), 300, 40);
  EXPECT_EQ(row("Anna").top(), 88);
  host->setWidth(240);
  EXPECT_NEAR(place(field).right(), 240, 40);
  host.reset();
}

TEST_F(TableListTest, ScrollingClosesTheOpenRow) {
  controller->names.assign(20, "Somebody");
  controller->names.front() = "Anna";
  controller->editable = {0};
  show();
  table().openRow(1);
  time.advance(0.5);
  ASSERT_EQ(table().editingRow(), 1);
  drag({200, 400}, {200, 300});
  EXPECT_EQ(table().editingRow(), -1);
}

}  // namespace
}  // namespace kindora
