// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/grid/ColorCell.h"

#include <string>

namespace kindora {

std::shared_ptr<ColorCell> ColorCell::fromPrototype() {
  auto cell = std::make_shared<ColorCell>();
  connectOutlet(cell->numberLabel, "numberLabel", cell->contentView());
  return cell;
}

void ColorCell::setNumberAndColor(int number, const QColor& color) {
  connected(numberLabel)->setText(std::to_string(number));
  if (color_ == color) return;
  color_ = color;
  emit lookChanged();
}

}  // namespace kindora
