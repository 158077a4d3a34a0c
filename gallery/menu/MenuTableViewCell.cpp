// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/menu/MenuTableViewCell.h"

namespace kindora {

std::shared_ptr<MenuTableViewCell> MenuTableViewCell::fromPrototype() {
  auto cell = std::make_shared<MenuTableViewCell>();
  connectOutlet(cell->pictureView, "pictureView", cell->contentView());
  connectOutlet(cell->titleLabel, "titleLabel", cell->contentView());
  connectOutlet(cell->detailLabel, "detailLabel", cell->contentView());
  return cell;
}

}  // namespace kindora
