// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "gallery/alerts/AlertDemo.h"
#include "toolkit/controllers/UITableViewController.h"

namespace kindora {

/// A list of alerts. Each row shows one, and a line tells how the last one ended.
class AlertsViewController : public kindora::UITableViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")
  Q_PROPERTY(QString outcome READ outcome NOTIFY outcomeChanged)

 public:
  AlertsViewController();

  [[nodiscard]] const std::vector<AlertDemoSection>& sections() const { return sections_; }
  [[nodiscard]] const QString& outcome() const { return outcome_; }
  /// The page's own alert ended.
  Q_INVOKABLE void tell(const QString& outcome);

  void viewDidLoad() override;
  int numberOfSectionsInTableView() override;
  int tableViewNumberOfRowsInSection(int section) override;
  std::string tableViewTitleForHeaderInSection(int section) override;
  UITableViewCellRef tableViewCellForRowAtIndexPath(IndexPath path) override;
  void tableViewDidSelectRowAtIndexPath(IndexPath path) override;

 signals:
  void outcomeChanged();
  /// The row of the alert that the page declares was chosen.
  void declaredAlertWanted();

 private:
  [[nodiscard]] const AlertDemoSection& section(int index) const;
  [[nodiscard]] const AlertDemo& demoAt(IndexPath path) const;

  std::vector<AlertDemoSection> sections_;
  QString outcome_ = QStringLiteral("Choose an alert.");
};

}  // namespace kindora
