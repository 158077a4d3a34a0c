// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/ViewItem.h"

#include "platform/FatalError.h"
#include "toolkit/view/OutletOwner.h"
#include "toolkit/view/UIControl.h"

namespace kindora {

ViewItem::~ViewItem() { leave(); }

void ViewItem::leave() {
  if (view()) view()->removeRenderer(*this);
}

void ViewItem::setOwner(QObject* owner) {
  if (owner_ == owner) return;
  owner_ = owner;
  emit ownerChanged();
  if (isComponentComplete()) connectView();
}

void ViewItem::setOutlet(const QString& outlet) {
  if (outlet_ == outlet) return;
  outlet_ = outlet;
  emit outletChanged();
  if (isComponentComplete()) connectView();
}

void ViewItem::componentComplete() {
  ViewLookItem::componentComplete();
  connectView();
}

void ViewItem::connectView() {
  leave();
  UIViewRef named;
  if (auto* owner = dynamic_cast<OutletOwner*>(owner_)) {
    named = owner->outlet(outlet_.toStdString());
    if (!named) fatalError("no outlet \"" + outlet_.toStdString() + "\"");
    named->reportFrame({{x(), y()}, {width(), height()}});
    named->setRenderer(*this);
  }
  show(named);
}

std::optional<CGPoint> ViewItem::originInWindow() const {
  const QPointF origin = mapToScene({0, 0});
  return CGPoint{origin.x(), origin.y()};
}

void ViewItem::viewDidChange() {
  if (view()) {
    setOpacity(view()->presentation().alpha);
    setScale(view()->presentation().scaling);
    keyframeTransform_.set(view()->keyframeValues().transform, *this);
    const auto* control = dynamic_cast<const UIControl*>(view().get());
    setEnabled(view()->isUserInteractionEnabled() && (control == nullptr || control->isEnabled()));
  }
  setVisible(isShown());
  ViewLookItem::viewDidChange();
}

void ViewItem::geometryChange(const QRectF& now, const QRectF& before) {
  ViewLookItem::geometryChange(now, before);
  if (!view()) return;
  // Not the argument: anchors may have moved the item again meanwhile.
  view()->reportFrame({{x(), y()}, {width(), height()}});
  keyframeTransform_.set(view()->keyframeValues().transform, *this);  // about the new centre
}

}  // namespace kindora
