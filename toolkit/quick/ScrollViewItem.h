// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointF>
#include <QSizeF>

#include "toolkit/quick/FaceItem.h"
#include "toolkit/view/UIScrollView.h"

namespace kindora {

/// Joins a scroll view with the item that the user scrolls: each follows the other. What has the
/// keyboard inside is scrolled into sight.
class ScrollViewItem : public kindora::FaceItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QSizeF contentSize READ contentSize NOTIFY viewChanged)
  Q_PROPERTY(QPointF contentOffset READ contentOffset NOTIFY viewChanged)
  Q_PROPERTY(bool scrollable READ isScrollable NOTIFY viewChanged)
  /// Where the subviews are drawn.
  Q_PROPERTY(QQuickItem* content MEMBER content_)

 public:
  using FaceItem::FaceItem;

  [[nodiscard]] QSizeF contentSize() const;
  [[nodiscard]] QPointF contentOffset() const;
  /// Whether there is more than fits.
  [[nodiscard]] bool isScrollable() const;
  [[nodiscard]] QQuickItem* content() const { return content_; }
  /// The user has scrolled there, perhaps for a while beyond the end.
  Q_INVOKABLE void scrolled(double x, double y);

 signals:
  /// The scroll view's own offset is to be shown.
  void offsetReset();

 protected:
  void viewDidChange() override;
  void geometryChange(const QRectF& now, const QRectF& before) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;

 private:
  [[nodiscard]] UIScrollView* scrollView() const;
  void revealFocus();

  QQuickItem* content_ = nullptr;
  CGPoint shown_;
  QMetaObject::Connection focusChanges_;
};

}  // namespace kindora
