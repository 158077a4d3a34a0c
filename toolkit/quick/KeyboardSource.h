// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQuickItem>

#include "platform/KeyboardNotification.h"

namespace kindora {

/// Fills the windows' area, watches the keyboard on the screen and posts the keyboard's
/// notifications. A keyboard of no size, as some systems report it, counts as none.
class KeyboardSource : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT

 public:
  explicit KeyboardSource(QQuickItem* parent = nullptr);

  /// The keyboard will be in that rectangle of the scene, or out of sight.
  void keyboardMoves(const QRectF& sceneRect, bool visible);

 protected:
  void geometryChange(const QRectF& now, const QRectF& before) override;

 private:
  void readInputMethod();
  void post();
  [[nodiscard]] CGRect endFrame() const;

  QRectF sceneRect_;  // null while there is no keyboard
  CGRect posted_;
  bool up_ = false;
};

}  // namespace kindora
