// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/alerts/AlertsViewController.h"

#include <memory>

#include "alerts/qt/AlertWindows.h"
#include "gallery/alerts/AlertDemoTableViewCell.h"
#include "gallery/alerts/CardAlertDemos.h"
#include "gallery/alerts/LegacyAlertDemos.h"

namespace kindora {
namespace {

constexpr std::string_view kDemoCell = "alertDemoCell";

AlertDemoSection declaredAlertDemos() {
  return {"Alerts in QML",
          {{"Declared alert", "Written with the page",
            [](const AlertStage& stage) { stage.openDeclaredAlert(); }}}};
}

}  // namespace

AlertsViewController::AlertsViewController()
    : sections_{cardAlertDemos(), legacyAlertDemos(), declaredAlertDemos()} {
  installAlertWindows();
  setTitle(QStringLiteral("Alerts"));
  tableView()->registerCell(kDemoCell, AlertDemoTableViewCell::fromPrototype);
}

void AlertsViewController::tell(const QString& outcome) {
  if (outcome_ == outcome) return;
  outcome_ = outcome;
  emit outcomeChanged();
}

void AlertsViewController::viewDidLoad() {
  UITableViewController::viewDidLoad();
  tableView()->reloadData();
}

const AlertDemoSection& AlertsViewController::section(int index) const {
  return sections_.at(static_cast<std::size_t>(index));
}

const AlertDemo& AlertsViewController::demoAt(IndexPath path) const {
  return section(path.section).demos.at(static_cast<std::size_t>(path.row));
}

int AlertsViewController::numberOfSectionsInTableView() {
  return static_cast<int>(sections_.size());
}

int AlertsViewController::tableViewNumberOfRowsInSection(int index) {
  return static_cast<int>(section(index).demos.size());
}

std::string AlertsViewController::tableViewTitleForHeaderInSection(int index) {
  return section(index).title;
}

UITableViewCellRef AlertsViewController::tableViewCellForRowAtIndexPath(IndexPath path) {
  auto cell = std::dynamic_pointer_cast<AlertDemoTableViewCell>(
      tableView()->dequeueReusableCell(kDemoCell));
  const AlertDemo& demo = demoAt(path);
  connected(cell->titleLabel)->setText(demo.title);
  connected(cell->detailLabel)->setText(demo.detail);
  return cell;
}

void AlertsViewController::tableViewDidSelectRowAtIndexPath(IndexPath path) {
  tableView()->deselectRowAtIndexPath(path, true);
  // An alert may outlive the page.
  const std::weak_ptr<AlertsViewController> page =
      std::static_pointer_cast<AlertsViewController>(shared_from_this());
  demoAt(path).show({.tell =
                         [page](const std::string& outcome) {
                           if (const auto open = page.lock())
                             open->tell(QString::fromStdString(outcome));
                         },
                     .openDeclaredAlert =
                         [page] {
                           if (const auto open = page.lock()) emit open->declaredAlertWanted();
                         }});
}

}  // namespace kindora
