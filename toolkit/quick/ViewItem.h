// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>

#include "toolkit/quick/KeyframeTransform.h"
#include "toolkit/quick/ViewLookItem.h"
#include "toolkit/view/UIViewRenderer.h"

namespace kindora {

/// Draws the view that an outlet names: takes alpha, scale, input and presence from it, offers the
/// rest as properties, and reports to it the place that the storyboard gives to the item. Stops
/// when the owner has no such outlet.
class ViewItem : public kindora::ViewLookItem, private UIViewRenderer {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QObject* owner READ owner WRITE setOwner NOTIFY ownerChanged REQUIRED)
  Q_PROPERTY(QString outlet READ outlet WRITE setOutlet NOTIFY outletChanged REQUIRED)

 public:
  using ViewLookItem::ViewLookItem;
  ~ViewItem() override;

  [[nodiscard]] QObject* owner() const { return owner_; }
  void setOwner(QObject* owner);
  [[nodiscard]] const QString& outlet() const { return outlet_; }
  void setOutlet(const QString& outlet);

 signals:
  void ownerChanged();
  void outletChanged();

 protected:
  void componentComplete() override;
  void geometryChange(const QRectF& now, const QRectF& before) override;
  void viewDidChange() override;

 private:
  [[nodiscard]] std::optional<CGPoint> originInWindow() const override;
  void leave();
  void connectView();

  QObject* owner_ = nullptr;
  QString outlet_;
  KeyframeTransform keyframeTransform_;
};

}  // namespace kindora
