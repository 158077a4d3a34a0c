// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/scratch/JxMatrix.h"

#include <algorithm>

namespace kindora {

JxMatrix::JxMatrix(Max max) : data_(new std::int8_t[max.x * max.y]), max_(max) { fillWithValue(0); }

std::shared_ptr<JxMatrix> JxMatrix::initWithMaxX(std::size_t maxX, std::size_t maxY) {
  return initWithMax({maxX, maxY});
}

std::shared_ptr<JxMatrix> JxMatrix::initWithMax(Max max) {
  return std::shared_ptr<JxMatrix>(new JxMatrix(max));
}

std::int8_t JxMatrix::valueForCoordinates(std::size_t x, std::size_t y) const {
  const std::size_t index = max_.x * y + x;
  return index < count() ? data_[index] : std::int8_t{1};
}

void JxMatrix::setValue(std::int8_t value, std::size_t x, std::size_t y) {
  const std::size_t index = max_.x * y + x;
  if (index < count()) data_[index] = value;
}

void JxMatrix::fillWithValue(std::int8_t value) { std::fill_n(data_.get(), count(), value); }

}  // namespace kindora
