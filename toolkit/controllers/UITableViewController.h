// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/controllers/UITableView.h"
#include "toolkit/controllers/UIViewController.h"

namespace kindora {

/// A screen that is one table, and the table's data source. Going back closes an open row first.
class UITableViewController : public kindora::UIViewController, public UITableViewDataSource {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")
  Q_PROPERTY(kindora::UITableView* tableView READ tableView CONSTANT)

 public:
  [[nodiscard]] UITableView* tableView() { return &tableView_; }
  bool goBack() override {
    if (tableView_.editingRow() < 0) return UIViewController::goBack();
    tableView_.closeRow();
    return true;
  }

 private:
  UITableView tableView_{*this};
};

}  // namespace kindora
