// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "toolkit/controllers/UITableViewController.h"

namespace kindora {

/// One demonstration in a list of them.
struct MenuRow {
  std::string title;
  std::string detail;     ///< one short line
  std::string imageName;  ///< of a square picture
  std::string segue;      ///< the way to its page
};

/// A list of demonstrations, each of which opens a page.
class MenuTableViewController : public kindora::UITableViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")

 public:
  MenuTableViewController(const QString& title, std::vector<MenuRow> rows);

  [[nodiscard]] const std::vector<MenuRow>& rows() const { return rows_; }

  void viewDidLoad() override;
  int numberOfSectionsInTableView() override { return 1; }
  int tableViewNumberOfRowsInSection(int section) override;
  UITableViewCellRef tableViewCellForRowAtIndexPath(IndexPath path) override;
  void tableViewDidSelectRowAtIndexPath(IndexPath path) override;

 private:
  [[nodiscard]] const MenuRow& rowAt(IndexPath path) const;

  std::vector<MenuRow> rows_;
};

}  // namespace kindora
