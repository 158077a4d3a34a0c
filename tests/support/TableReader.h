// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/controllers/UITableView.h"

namespace kindora {

/// Reads a table as a list view does: row by row, by the names of the roles.
class TableReader final {
 public:
  explicit TableReader(const UITableView& table) : table_(table) {}

  [[nodiscard]] QVariant value(int row, const char* role) const {
    return table_.data(table_.index(row), table_.roleNames().key(role));
  }
  [[nodiscard]] bool isHeader(int row) const { return value(row, "isHeader").toBool(); }
  /// Null for a header.
  template <typename Cell = UITableViewCell>
  [[nodiscard]] Cell* cell(int row) const {
    return dynamic_cast<Cell*>(value(row, "cell").value<UITableViewCell*>());
  }
  /// Null for a row.
  [[nodiscard]] UITableViewHeaderFooterView* header(int row) const {
    return value(row, "header").value<UITableViewHeaderFooterView*>();
  }
  [[nodiscard]] int count() const { return table_.rowCount(); }

 private:
  const UITableView& table_;
};

/// Counts what a table tells those who draw it.
class TableEar final {
 public:
  explicit TableEar(UITableView& table) {
    QObject::connect(&table, &QAbstractItemModel::rowsInserted, &context_, [this] { ++inserted; });
    QObject::connect(&table, &QAbstractItemModel::rowsRemoved, &context_, [this] { ++removed; });
    QObject::connect(&table, &QAbstractItemModel::rowsMoved, &context_, [this] { ++moved; });
    QObject::connect(&table, &QAbstractItemModel::dataChanged, &context_, [this] { ++changed; });
    QObject::connect(&table, &QAbstractItemModel::modelReset, &context_, [this] { ++reset; });
  }
  [[nodiscard]] int total() const { return inserted + removed + moved + changed + reset; }

  int inserted = 0;
  int removed = 0;
  int moved = 0;
  int changed = 0;
  int reset = 0;

 private:
  QObject context_;
};

}  // namespace kindora
