// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/controllers/UITableViewCell.h"
#include "toolkit/view/UIImageView.h"
#include "toolkit/view/UILabel.h"

namespace kindora {

/// A way to a demonstration: its picture, its name, and a line about it.
class MenuTableViewCell : public kindora::UITableViewCell {
  Q_OBJECT

 public:
  std::weak_ptr<UIImageView> pictureView;
  std::weak_ptr<UILabel> titleLabel;
  std::weak_ptr<UILabel> detailLabel;

  /// A new cell with its outlets connected.
  [[nodiscard]] static std::shared_ptr<MenuTableViewCell> fromPrototype();
};

}  // namespace kindora
