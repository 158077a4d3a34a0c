// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQuickItem>

namespace kindora {

/// Holds one item over which something else may lie: a window, or a page. Covered, it stays in
/// sight, but neither the pointer nor the keyboard nor the accessibility tree reaches into it. What
/// it holds must be accessible itself to be found while it is not covered.
class CoverableItem : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(bool covered READ isCovered WRITE setCovered NOTIFY coveredChanged)

 public:
  explicit CoverableItem(QQuickItem* parent = nullptr);

  [[nodiscard]] bool isCovered() const { return covered_; }
  void setCovered(bool covered);

 signals:
  void coveredChanged();

 private:
  bool covered_ = false;
};

}  // namespace kindora
