// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIStaticTableViewController.h"

#include <utility>

namespace kindora {

UIStaticTableViewController::UIStaticTableViewController(std::vector<std::string> sectionTitles)
    : sectionTitles_(std::move(sectionTitles)) {
  tableView()->reloadData();
}

QStringList UIStaticTableViewController::sectionTitles() const {
  QStringList titles;
  for (const auto& title : sectionTitles_) titles << QString::fromStdString(title);
  return titles;
}

void UIStaticTableViewController::pressRow(int section) {
  tableView()->select(2 * section + 1);  // each section is a header and a row
}

int UIStaticTableViewController::numberOfSectionsInTableView() {
  return static_cast<int>(sectionTitles_.size());
}

int UIStaticTableViewController::tableViewNumberOfRowsInSection(int /*section*/) { return 1; }

std::string UIStaticTableViewController::tableViewTitleForHeaderInSection(int section) {
  return sectionTitles_.at(static_cast<std::size_t>(section));
}

UITableViewCellRef UIStaticTableViewController::tableViewCellForRowAtIndexPath(IndexPath /*path*/) {
  return std::make_shared<UITableViewCell>();
}

}  // namespace kindora
