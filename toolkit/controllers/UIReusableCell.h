// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "toolkit/collection/ReusableCell.h"
#include "toolkit/view/OutletOwner.h"
#include "toolkit/view/UIView.h"

namespace kindora {

/// A cell for QML: its views and how it looks when pressed.
class UIReusableCell : public QObject, public OutletOwner, public ReusableCell {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cells come from tables and collections")

 public:
  UIReusableCell();

  [[nodiscard]] UIView& contentView() { return *contentView_; }
  [[nodiscard]] UIViewRef outlet(std::string_view name) override;

  Q_INVOKABLE void setHighlighted(bool highlighted, bool animated) override;

 signals:
  void lookChanged();

 private:
  UIViewRef contentView_ = std::make_shared<UIView>();
};

}  // namespace kindora
