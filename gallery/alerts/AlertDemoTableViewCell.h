// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/controllers/UITableViewCell.h"
#include "toolkit/view/UILabel.h"

namespace kindora {

/// The row of an alert: its name and a line about it.
class AlertDemoTableViewCell : public kindora::UITableViewCell {
  Q_OBJECT

 public:
  std::weak_ptr<UILabel> titleLabel;
  std::weak_ptr<UILabel> detailLabel;

  /// A new cell with its outlets connected.
  [[nodiscard]] static std::shared_ptr<AlertDemoTableViewCell> fromPrototype() {
    auto cell = std::make_shared<AlertDemoTableViewCell>();
    connectOutlet(cell->titleLabel, "titleLabel", cell->contentView());
    connectOutlet(cell->detailLabel, "detailLabel", cell->contentView());
    return cell;
  }
};

}  // namespace kindora
