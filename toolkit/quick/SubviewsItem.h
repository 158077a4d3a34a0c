// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/quick/DrawnSubviews.h"
#include "toolkit/quick/ViewItem.h"

namespace kindora {

/// Draws, inside a view that a storyboard knows, the subviews that its controller made in code, at
/// the places that their records say.
class SubviewsItem : public kindora::ViewItem {
  Q_OBJECT
  QML_ELEMENT
  /// True while one of them takes all input from what lies below it.
  Q_PROPERTY(bool covered READ isCovered NOTIFY viewChanged)

 public:
  explicit SubviewsItem(QQuickItem* parent = nullptr);
  ~SubviewsItem() override;

  [[nodiscard]] bool isCovered() const;

 protected:
  void viewDidChange() override;

 private:
  DrawnSubviews drawn_;
};

}  // namespace kindora
