// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQuickItem>

namespace kindora {

/// Holds the one item that draws a window. Covered, it stays in sight, but neither the pointer nor
/// the keyboard nor the accessibility tree reaches into it. What it holds must be accessible itself
/// to be found while it is not covered.
class WindowLayer : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(bool covered READ isCovered WRITE setCovered NOTIFY coveredChanged)

 public:
  explicit WindowLayer(QQuickItem* parent = nullptr);

  [[nodiscard]] bool isCovered() const { return covered_; }
  void setCovered(bool covered);

 signals:
  void coveredChanged();

 private:
  bool covered_ = false;
};

}  // namespace kindora
