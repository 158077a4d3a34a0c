// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/picker/FriendTableViewCell.h"

namespace kindora {

std::shared_ptr<FriendTableViewCell> FriendTableViewCell::fromPrototype() {
  auto cell = std::make_shared<FriendTableViewCell>();
  connectOutlet(cell->friendImageView, "friendImageView", cell->contentView());
  connectOutlet(cell->nameLabel, "nameLabel", cell->contentView());
  return cell;
}

void FriendTableViewCell::setUser(const User& user) {
  connected(friendImageView)->setImage(user.picture);
  connected(nameLabel)->setText(user.name);
}

}  // namespace kindora
