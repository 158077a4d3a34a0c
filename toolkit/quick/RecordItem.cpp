// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/RecordItem.h"

#include <utility>

#include "toolkit/quick/CodeViewItem.h"
#include "toolkit/quick/QtViewServices.h"

namespace kindora {

RecordItem::RecordItem(QQuickItem* parent) : QQuickItem(parent) { ensureViewServices(); }

RecordItem::~RecordItem() { leave(); }

void RecordItem::leave() {
  if (drawn_) retire(std::move(drawn_));
  if (view_) view_->removeRenderer(*this);
}

void RecordItem::setRecord(const ViewHandle& record) {
  if (view_ == record.view) return;
  leave();
  view_ = record.view;
  if (view_) {
    view_->setRenderer(*this);
    place();
    drawn_ = std::make_unique<CodeViewItem>(view_, this);
  }
  emit recordChanged();
}

std::optional<CGPoint> RecordItem::originInWindow() const {
  const QPointF origin = mapToScene({0, 0});
  return CGPoint{origin.x(), origin.y()};
}

void RecordItem::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  place();
}

void RecordItem::place() {
  if (!view_) return;
  // A QML item has no size until its bindings have run.
  if (width() > 0 && height() > 0) view_->setFrame({{0, 0}, {width(), height()}});
  polish();
}

void RecordItem::updatePolish() {
  if (view_) view_->layoutIfNeeded();
}

}  // namespace kindora
