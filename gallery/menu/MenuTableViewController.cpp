// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/menu/MenuTableViewController.h"

#include <utility>

#include "gallery/menu/MenuTableViewCell.h"
#include "platform/services/Services.h"

namespace kindora {
namespace {

constexpr std::string_view kMenuCell = "menuCell";

}  // namespace

MenuTableViewController::MenuTableViewController(const QString& title, std::vector<MenuRow> rows)
    : rows_(std::move(rows)) {
  setTitle(title);
  tableView()->registerCell(kMenuCell, MenuTableViewCell::fromPrototype);
}

void MenuTableViewController::viewDidLoad() {
  UITableViewController::viewDidLoad();
  tableView()->reloadData();
}

const MenuRow& MenuTableViewController::rowAt(IndexPath path) const {
  return rows_.at(static_cast<std::size_t>(path.row));
}

int MenuTableViewController::tableViewNumberOfRowsInSection(int /*section*/) {
  return static_cast<int>(rows_.size());
}

UITableViewCellRef MenuTableViewController::tableViewCellForRowAtIndexPath(IndexPath path) {
  auto cell =
      std::dynamic_pointer_cast<MenuTableViewCell>(tableView()->dequeueReusableCell(kMenuCell));
  const MenuRow& row = rowAt(path);
  connected(cell->pictureView)->setImage(services().bundle->imageNamed(row.imageName));
  connected(cell->titleLabel)->setText(row.title);
  connected(cell->detailLabel)->setText(row.detail);
  return cell;
}

void MenuTableViewController::tableViewDidSelectRowAtIndexPath(IndexPath path) {
  tableView()->deselectRowAtIndexPath(path, true);
  performSegueWithIdentifier(rowAt(path).segue);
}

}  // namespace kindora
