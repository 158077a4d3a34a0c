// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string_view>

#include "toolkit/controllers/UITableViewCell.h"
#include "toolkit/view/UILabel.h"

namespace kindora {

inline constexpr std::string_view kPlaceholderCell = "placeholderCell";

/// The one row of a section that has nothing to show: a message.
class PlaceholderTableViewCell : public kindora::UITableViewCell {
  Q_OBJECT

 public:
  std::weak_ptr<UILabel> messageLabel;

  /// A new cell with its outlet connected.
  [[nodiscard]] static std::shared_ptr<PlaceholderTableViewCell> fromPrototype() {
    auto cell = std::make_shared<PlaceholderTableViewCell>();
    connectOutlet(cell->messageLabel, "messageLabel", cell->contentView());
    return cell;
  }
};

}  // namespace kindora
