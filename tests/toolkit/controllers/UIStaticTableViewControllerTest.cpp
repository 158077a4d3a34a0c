// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIStaticTableViewController.h"

#include "tests/toolkit/controllers/ToolkitFixture.h"

namespace kindora {
namespace {

class Form final : public UIStaticTableViewController {
 public:
  Form() : UIStaticTableViewController({"Name", "Age"}) {}
  void tableViewDidSelectRowAtIndexPath(IndexPath path) override { selected.push_back(path); }
  std::vector<IndexPath> selected;
};

TEST(UIStaticTableViewController, HasARowInEachSection) {
  const auto form = makeViewController<Form>();
  EXPECT_EQ(form->sectionTitles(), (QStringList{QStringLiteral("Name"), QStringLiteral("Age")}));
  EXPECT_EQ(form->numberOfSectionsInTableView(), 2);
  EXPECT_EQ(form->tableViewNumberOfRowsInSection(1), 1);
  EXPECT_EQ(form->tableViewTitleForHeaderInSection(1), "Age");
  EXPECT_EQ(form->tableView()->rowCount(), 4);
}

TEST(UIStaticTableViewController, APressSelectsTheRowOfItsSection) {
  const auto form = makeViewController<Form>();
  form->pressRow(1);
  EXPECT_EQ(form->selected, (std::vector<IndexPath>{{1, 0}}));
  EXPECT_EQ(form->tableView()->indexPathForSelectedRow(), (IndexPath{1, 0}));
}

TEST(UIStaticTableViewController, APressOnNoSectionDoesNothing) {
  const auto form = makeViewController<Form>();
  form->pressRow(2);
  EXPECT_TRUE(form->selected.empty());
}

TEST(UIStaticTableViewController, OnlyTheRowThatIsSelectedIsDeselected) {
  const auto form = makeViewController<Form>();
  form->pressRow(0);
  form->tableView()->deselectRowAtIndexPath({1, 0}, true);
  EXPECT_EQ(form->tableView()->indexPathForSelectedRow(), (IndexPath{0, 0}));
  form->tableView()->deselectRowAtIndexPath({0, 0}, true);
  EXPECT_EQ(form->tableView()->indexPathForSelectedRow(), std::nullopt);
}

}  // namespace
}  // namespace kindora
