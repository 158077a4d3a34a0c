// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A grid of signed bytes.
//
// Only the linear index y * max.x + x is checked, in machine words that wrap: an x beyond the row
// addresses a cell of the next one, and what lies beyond the last cell reads as 1 and ignores
// writes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

namespace kindora {

class JxMatrix final {
 public:
  /// Columns and rows.
  struct Max {
    std::size_t x = 0;
    std::size_t y = 0;
    friend constexpr bool operator==(const Max&, const Max&) = default;
  };

  /// A grid of maxX columns and maxY rows, all cells 0. Either may be 0.
  [[nodiscard]] static std::shared_ptr<JxMatrix> initWithMaxX(std::size_t maxX, std::size_t maxY);
  [[nodiscard]] static std::shared_ptr<JxMatrix> initWithMax(Max max);

  JxMatrix(const JxMatrix&) = delete;
  JxMatrix& operator=(const JxMatrix&) = delete;

  [[nodiscard]] std::int8_t valueForCoordinates(std::size_t x, std::size_t y) const;
  void setValue(std::int8_t value, std::size_t x, std::size_t y);
  void fillWithValue(std::int8_t value);
  [[nodiscard]] Max max() const { return max_; }

 private:
  explicit JxMatrix(Max max);
  [[nodiscard]] std::size_t count() const { return max_.x * max_.y; }

  std::unique_ptr<std::int8_t[]> data_;
  Max max_;
};

}  // namespace kindora
