// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <optional>
#include <vector>

namespace kindora {

/// Where the rows of a table stand, one below another, most of which nobody has seen yet. A row
/// whose height has not been told is as high as the first one of its kind that was; lengths in
/// points.
class RowStack final {
 public:
  struct Row {
    bool isHeader = false;
    std::optional<double> height;  ///< none before it has been seen
  };
  /// Rows from the first on, without the one that ends it.
  struct Run {
    int first = 0;
    int end = 0;
    [[nodiscard]] bool contains(int row) const { return row >= first && row < end; }
  };

  [[nodiscard]] const std::vector<Row>& rows() const { return rows_; }
  void setRows(std::vector<Row> rows);
  /// True when anything moved for it.
  bool setHeight(int row, double height);

  /// That of the row after the last one is where all end.
  [[nodiscard]] double top(int row) const { return tops_[static_cast<std::size_t>(row)]; }
  [[nodiscard]] double height() const { return tops_.back(); }
  /// The rows of which a part lies in that stretch.
  [[nodiscard]] Run rowsBetween(double top, double bottom) const;

 private:
  [[nodiscard]] double heightOf(const Row& row) const;
  void stack();

  std::vector<Row> rows_;
  std::vector<double> tops_{0};
  std::array<std::optional<double>, 2> usual_;  // of rows and of headers
};

}  // namespace kindora
