// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/quick/FaceItem.h"

namespace kindora {

/// Lets a view be pressed that has a tap gesture recogniser, which hears of it.
class TapItem : public kindora::FaceItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(bool tappable READ isTappable NOTIFY viewChanged)

 public:
  using FaceItem::FaceItem;

  [[nodiscard]] bool isTappable() const;
  Q_INVOKABLE void tap();
  /// A finger rests on it, or does no more.
  Q_INVOKABLE void press(bool pressed);
};

}  // namespace kindora
