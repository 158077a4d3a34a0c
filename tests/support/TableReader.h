// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/controllers/UITableView.h"

namespace kindora {

/// Reads a table row by row, all of which it brings into sight.
class TableReader final {
 public:
  explicit TableReader(UITableView& table) : table_(table) {
    table.setBounds({{0, 0}, {320, 1e9}});
  }

  [[nodiscard]] const UITableView::Shown& row(int row) const { return table_.shownRows().at(row); }
  [[nodiscard]] bool isHeader(int index) const { return header(index) != nullptr; }
  /// Null for a header.
  template <typename Cell = UITableViewCell>
  [[nodiscard]] Cell* cell(int index) const {
    return dynamic_cast<Cell*>(row(index).cell.get());
  }
  /// Null for a row.
  [[nodiscard]] UITableViewHeaderFooterView* header(int index) const {
    return row(index).header.get();
  }
  [[nodiscard]] int count() const { return table_.rowCount(); }

 private:
  const UITableView& table_;
};

/// Counts what a table tells those who draw it.
class TableEar final {
 public:
  explicit TableEar(UITableView& table) {
    QObject::connect(&table, &UITableView::changed, &context_, [this](bool animated) {
      ++changes;
      lastWasAnimated = animated;
    });
  }

  int changes = 0;
  bool lastWasAnimated = false;

 private:
  QObject context_;
};

}  // namespace kindora
