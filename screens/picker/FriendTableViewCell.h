// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/User.h"
#include "toolkit/controllers/UITableViewCell.h"
#include "toolkit/view/UIImageView.h"
#include "toolkit/view/UILabel.h"

namespace kindora {

/// A friend's row: picture and name, and a tick when the friend is chosen.
class FriendTableViewCell : public kindora::UITableViewCell {
  Q_OBJECT

 public:
  std::weak_ptr<UIImageView> friendImageView;
  std::weak_ptr<UILabel> nameLabel;

  /// A new cell with its outlets connected.
  [[nodiscard]] static std::shared_ptr<FriendTableViewCell> fromPrototype();

  /// Shows the user, who may have no picture.
  void setUser(const User& user);
};

}  // namespace kindora
