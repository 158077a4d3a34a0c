// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/controllers/UITableViewCell.h"
#include "toolkit/view/UILabel.h"

namespace kindora {

/// A country's row: its name and its calling code, and a tick when it is the chosen one.
class CountryTableViewCell : public kindora::UITableViewCell {
  Q_OBJECT

 public:
  std::weak_ptr<UILabel> nameLabel;
  std::weak_ptr<UILabel> codeLabel;

  /// A new cell with its outlets connected.
  [[nodiscard]] static std::shared_ptr<CountryTableViewCell> fromPrototype() {
    auto cell = std::make_shared<CountryTableViewCell>();
    connectOutlet(cell->nameLabel, "nameLabel", cell->contentView());
    connectOutlet(cell->codeLabel, "codeLabel", cell->contentView());
    return cell;
  }
};

}  // namespace kindora
