// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <vector>

namespace kindora {

class UIWindow;

/// The visible windows in drawing order, lowest first, as a list model.
class WindowList : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("owned by the application")

 public:
  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  [[nodiscard]] const std::vector<UIWindow*>& items() const { return items_; }
  /// Puts the window, new or not, above all others of its level or a lower one. A row that is there
  /// moves.
  void raise(UIWindow& window);
  void remove(UIWindow& window);

 private:
  std::vector<UIWindow*> items_;
};

}  // namespace kindora
