// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>
#include <string>
#include <vector>

#include "toolkit/controllers/UITableViewController.h"

namespace kindora {

/// A table whose rows stand in the storyboard, one in each section. Their views are the
/// controller's own outlets, so the cells know none.
class UIStaticTableViewController : public kindora::UITableViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")
  Q_PROPERTY(QStringList sectionTitles READ sectionTitles CONSTANT)

 public:
  explicit UIStaticTableViewController(std::vector<std::string> sectionTitles);

  [[nodiscard]] QStringList sectionTitles() const;
  /// The user pressed the row of a section.
  Q_INVOKABLE void pressRow(int section);

  int numberOfSectionsInTableView() override;
  int tableViewNumberOfRowsInSection(int section) override;
  std::string tableViewTitleForHeaderInSection(int section) override;
  UITableViewCellRef tableViewCellForRowAtIndexPath(IndexPath path) override;

 private:
  std::vector<std::string> sectionTitles_;
};

}  // namespace kindora
