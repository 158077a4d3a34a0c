// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <memory>
#include <vector>

namespace kindora {

class UIViewController;

/// Controllers in drawing order, lowest first, as a list model: what is drawn comes and goes with
/// its row and is never made anew for a row that stays.
class ControllerList : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("owned by containers")
  Q_PROPERTY(int count READ count NOTIFY countChanged)

 public:
  using Item = std::shared_ptr<UIViewController>;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  [[nodiscard]] int count() const { return static_cast<int>(items_.size()); }
  [[nodiscard]] const std::vector<Item>& items() const { return items_; }
  void append(const Item& item);
  void remove(const Item& item);
  /// Makes the list hold just these; those that it holds already keep their rows where order
  /// allows.
  void assign(const std::vector<Item>& items);

 signals:
  void countChanged();

 private:
  std::vector<Item> items_;
};

}  // namespace kindora
