// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/ViewItem.h"

#include "platform/FatalError.h"
#include "toolkit/controllers/Colors.h"
#include "toolkit/controllers/UIApplication.h"
#include "toolkit/quick/Appearance.h"
#include "toolkit/view/OutletOwner.h"
#include "toolkit/view/UIButton.h"
#include "toolkit/view/UIImageView.h"
#include "toolkit/view/UILabel.h"
#include "toolkit/view/UITextInput.h"

namespace kindora {

QColor templateTint(const UIImageView& view) {
  if (!view.image() || view.image()->renderingMode() != UIImageRenderingMode::alwaysTemplate) {
    return {};
  }
  return toQColor(view.tintColor(Appearance::tintColor()));
}

ViewItem::ViewItem(QQuickItem* parent) : QQuickItem(parent) {
  connect(UIApplication::sharedApplication(), &UIApplication::tintColorChanged, this,
          &ViewItem::windowTintDidChange);
}

ViewItem::~ViewItem() { leave(); }

void ViewItem::leave() {
  if (view_) view_->removeRenderer(*this);
}

void ViewItem::windowTintDidChange() {
  if (imageView() != nullptr && templateTint(*imageView()).isValid()) emit viewChanged();
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

void ViewItem::setRecord(const ViewHandle& record) {
  if (record_ == record.view) return;
  record_ = record.view;
  emit recordChanged();
  if (isComponentComplete()) connectView();
}

void ViewItem::componentComplete() {
  QQuickItem::componentComplete();
  connectView();
}

void ViewItem::connectView() {
  subscription_ = {};
  leave();
  view_ = record_;
  if (record_) {
    subscription_ = view_->observe([this] { viewDidChange(); });
  } else if (auto* owner = dynamic_cast<OutletOwner*>(owner_)) {
    view_ = owner->outlet(outlet_.toStdString());
    if (!view_) fatalError("no outlet \"" + outlet_.toStdString() + "\"");
    subscription_ = view_->observe([this] { viewDidChange(); });
    view_->reportFrame({{x(), y()}, {width(), height()}});
    view_->setRenderer(*this);
  }
  viewDidChange();
}

std::optional<CGPoint> ViewItem::originInWindow() const {
  const QPointF origin = mapToScene({0, 0});
  return CGPoint{origin.x(), origin.y()};
}

void ViewItem::viewDidChange() {
  if (record_) {
    emit viewChanged();
    return;
  }
  if (view_) {
    setOpacity(view_->presentation().alpha);
    setScale(view_->presentation().scaling);
    keyframeTransform_.set(view_->keyframeValues().transform, *this);
    const auto* control = dynamic_cast<const UIControl*>(view_.get());
    setEnabled(view_->isUserInteractionEnabled() && (control == nullptr || control->isEnabled()));
  }
  setVisible(isShown());
  emit viewChanged();
}

void ViewItem::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  if (!view_ || record_) return;
  // Not the argument: anchors may have moved the item again meanwhile.
  view_->reportFrame({{x(), y()}, {width(), height()}});
  keyframeTransform_.set(view_->keyframeValues().transform, *this);  // about the new centre
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

bool ViewItem::hasTextFont() const {
  const auto* label = dynamic_cast<const UILabel*>(view_.get());
  return label != nullptr && label->font().has_value();
}

QFont ViewItem::textFont() const {
  return hasTextFont() ? resolvedFont(*static_cast<const UILabel&>(*view_).font())
                       : Appearance::font(16);
}

int ViewItem::textAlignment() const {
  const auto* label = dynamic_cast<const UILabel*>(view_.get());
  if (label == nullptr || !label->textAlignment()) return 0;
  switch (*label->textAlignment()) {
    case NSTextAlignment::left:
      return Qt::AlignLeft;
    case NSTextAlignment::center:
      return Qt::AlignHCenter;
    case NSTextAlignment::right:
      return Qt::AlignRight;
  }
  return 0;
}

ImageHandle ViewItem::image() const {
  const UIImageView* picture = imageView();
  return {picture != nullptr ? picture->image() : nullptr};
}

QColor ViewItem::imageTint() const {
  const UIImageView* picture = imageView();
  return picture != nullptr ? templateTint(*picture) : QColor();
}

bool ViewItem::imageFits() const {
  const UIImageView* picture = imageView();
  return picture != nullptr && picture->contentMode() == UIViewContentMode::scaleAspectFit;
}

const UIImageView* ViewItem::imageView() const {
  const auto* button = dynamic_cast<const UIButton*>(view_.get());
  return button != nullptr ? &button->imageView() : dynamic_cast<const UIImageView*>(view_.get());
}

bool ViewItem::isShown() const {
  return view_ && !view_->isRemoved() && !view_->isHidden() && view_->presentation().alpha > 0;
}

double ViewItem::shadowOpacity() const { return view_ ? view_->presentation().shadowOpacity : 0; }

QPointF ViewItem::shadowOffset() const {
  if (!view_) return {};
  const CGSize offset = view_->presentation().shadowOffset;
  return {offset.width, offset.height};
}

double ViewItem::shadowRadius() const {
  if (!view_) return 0;
  return view_->shadowPathRadius() >= 0 ? view_->shadowPathRadius() : cornerRadius();
}

QPointF ViewItem::translation() const {
  if (!view_) return {};
  return {view_->presentation().translation.x, view_->presentation().translation.y};
}

double ViewItem::cornerRadius() const { return view_ ? view_->presentation().cornerRadius : 0; }

QString ViewItem::spoken() const {
  return view_ ? QString::fromStdString(view_->accessibilityLabel().value_or("")) : QString();
}

bool ViewItem::isHeading() const {
  return view_ && view_->accessibilityRole() == UIAccessibilityRole::header;
}

bool ViewItem::isAnnounced() const {
  return view_ && view_->accessibilityRole() == UIAccessibilityRole::alert;
}

double ViewItem::layoutProgress() const { return view_ ? view_->presentation().layout : 0; }

}  // namespace kindora
