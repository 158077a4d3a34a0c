// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UITableViewController.h"

#include "tests/toolkit/controllers/ToolkitFixture.h"
#include "toolkit/controllers/UINavigationController.h"

namespace kindora {
namespace {

class OneRow final : public UITableViewController {
 public:
  OneRow() {
    tableView()->registerCell("cell", [] { return std::make_shared<UITableViewCell>(); });
    tableView()->reloadData();
  }
  int numberOfSectionsInTableView() override { return 1; }
  int tableViewNumberOfRowsInSection(int /*section*/) override { return 1; }
  UITableViewCellRef tableViewCellForRowAtIndexPath(IndexPath /*path*/) override {
    return tableView()->dequeueReusableCell("cell");
  }
  bool tableViewCanEditRowAtIndexPath(IndexPath /*path*/) override { return true; }
};

using UITableViewControllerTest = ToolkitFixture;

TEST_F(UITableViewControllerTest, GoingBackClosesTheOpenRowFirst) {
  const auto screen = makeViewController<OneRow>();
  const auto navigation = makeViewController<UINavigationController>(screen);
  EXPECT_FALSE(navigation->goBack());
  screen->tableView()->openRow(0);
  EXPECT_TRUE(navigation->goBack());
  EXPECT_EQ(screen->tableView()->editingRow(), -1);
  EXPECT_FALSE(navigation->goBack());
}

}  // namespace
}  // namespace kindora
