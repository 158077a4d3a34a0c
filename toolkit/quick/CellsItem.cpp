// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/CellsItem.h"

#include "platform/FatalError.h"

namespace kindora {

void CellsItem::setDelegate(QQmlComponent* delegate) {
  if (delegate_ == delegate) return;
  delegate_ = delegate;
  forgetItems();
  emit delegateChanged();
  if (isComponentComplete()) draw();
}

void CellsItem::setVisibleSize(QSizeF size) {
  if (visibleSize_ == size) return;
  visibleSize_ = size;
  emit visibleSizeChanged();
  tellView();
}

void CellsItem::setContentY(double contentY) {
  if (contentY_ == contentY) return;
  contentY_ = contentY;
  emit contentYChanged();
  tellView();
}

void CellsItem::componentComplete() {
  QQuickItem::componentComplete();
  tellView();
  draw();
}

QQuickItem& CellsItem::itemOf(const QObject& cell, const QVariantMap& properties) {
  std::unique_ptr<QQuickItem>& item = items_[&cell];
  if (!item) {
    item.reset(qobject_cast<QQuickItem*>(
        delegate_->createWithInitialProperties(properties, delegate_->creationContext())));
    if (!item) fatalError("the delegate makes no item: " + delegate_->errorString().toStdString());
  }
  return *item;
}

}  // namespace kindora
