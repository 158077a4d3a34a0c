// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/quick/ViewItem.h"

#include "platform/FatalError.h"
#include "platform/qt/quick/Colors.h"
#include "platform/qt/toolkit/OutletOwner.h"
#include "platform/view/UIButton.h"
#include "platform/view/UIImageView.h"
#include "platform/view/UILabel.h"
#include "platform/view/UITextInput.h"

namespace kindora {

ViewItem::ViewItem(QQuickItem* parent) : QQuickItem(parent) {}

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
  QQuickItem::componentComplete();
  connectView();
}

void ViewItem::connectView() {
  subscription_ = {};
  view_.reset();
  if (auto* owner = dynamic_cast<OutletOwner*>(owner_)) {
    view_ = owner->outlet(outlet_.toStdString());
    if (!view_) fatalError("no outlet \"" + outlet_.toStdString() + "\"");
    subscription_ = view_->observe([this] { viewDidChange(); });
    view_->setFrame({{x(), y()}, {width(), height()}});
  }
  viewDidChange();
}

void ViewItem::viewDidChange() {
  if (view_) {
    setOpacity(view_->presentation().alpha);
    setScale(view_->presentation().scaling);
    const auto* button = dynamic_cast<const UIButton*>(view_.get());
    setEnabled(button != nullptr ? button->isEnabled() : view_->isUserInteractionEnabled());
  }
  setVisible(isShown());
  emit viewChanged();
}

void ViewItem::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  if (view_) view_->setFrame({{now.x(), now.y()}, {now.width(), now.height()}});
}

QString ViewItem::text() const {
  if (const auto* label = dynamic_cast<const UILabel*>(view_.get())) {
    return QString::fromStdString(label->text().value_or(""));
  }
  if (const auto* button = dynamic_cast<const UIButton*>(view_.get())) {
    return QString::fromStdString(button->title());
  }
  if (const auto* input = dynamic_cast<const UITextInput*>(view_.get())) {
    return QString::fromStdString(input->text());
  }
  return {};
}

QColor ViewItem::textColor() const {
  std::optional<UIColor> color;
  if (const auto* label = dynamic_cast<const UILabel*>(view_.get())) color = label->textColor();
  if (const auto* input = dynamic_cast<const UITextInput*>(view_.get())) color = input->textColor();
  return color ? toQColor(*color) : QColor();
}

bool ViewItem::isTextCentered() const {
  const auto* label = dynamic_cast<const UILabel*>(view_.get());
  return label != nullptr && label->textAlignment() == NSTextAlignment::center;
}

ImageHandle ViewItem::image() const {
  const auto* imageView = dynamic_cast<const UIImageView*>(view_.get());
  return {imageView != nullptr ? imageView->image() : nullptr};
}

bool ViewItem::isShown() const {
  return view_ && !view_->isRemoved() && view_->presentation().alpha > 0;
}

double ViewItem::shadowOpacity() const { return view_ ? view_->presentation().shadowOpacity : 0; }

QPointF ViewItem::shadowOffset() const {
  if (!view_) return {};
  const CGSize offset = view_->presentation().shadowOffset;
  return {offset.width, offset.height};
}

QPointF ViewItem::translation() const {
  if (!view_) return {};
  return {view_->presentation().translation.x, view_->presentation().translation.y};
}

double ViewItem::cornerRadius() const { return view_ ? view_->presentation().cornerRadius : 0; }

double ViewItem::layoutProgress() const { return view_ ? view_->presentation().layout : 0; }

}  // namespace kindora
