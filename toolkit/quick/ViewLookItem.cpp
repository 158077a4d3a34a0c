// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/ViewLookItem.h"

#include <utility>

#include "platform/services/ViewServices.h"
#include "toolkit/controllers/Colors.h"
#include "toolkit/controllers/UIApplication.h"
#include "toolkit/quick/Appearance.h"
#include "toolkit/quick/QtViewServices.h"
#include "toolkit/view/ThemeValues.h"
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

ViewLookItem::ViewLookItem(QQuickItem* parent) : QQuickItem(parent) {
  connect(UIApplication::sharedApplication(), &UIApplication::tintColorChanged, this,
          &ViewLookItem::windowTintDidChange);
  ensureViewServices();
  looks_ = viewServices().looks->observe([this] { looksDidChange(); });
}

void ViewLookItem::show(UIViewRef view) {
  subscription_ = {};
  view_ = std::move(view);
  if (view_) subscription_ = view_->observe([this] { viewDidChange(); });
  viewDidChange();
}

void ViewLookItem::looksDidChange() {
  // Texts may have other sizes now.
  if (view_) view_->invalidateIntrinsicContentSize();
  viewDidChange();
}

void ViewLookItem::windowTintDidChange() {
  if (imageView() != nullptr && templateTint(*imageView()).isValid()) emit viewChanged();
}

QString ViewLookItem::text() const {
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

QColor ViewLookItem::textColor() const {
  std::optional<UIColor> color;
  if (const auto* label = dynamic_cast<const UILabel*>(view_.get())) color = label->textColor();
  if (const auto* input = dynamic_cast<const UITextInput*>(view_.get())) color = input->textColor();
  return color ? toQColor(theme::drawnText(*color)) : QColor();
}

bool ViewLookItem::hasTextFont() const {
  const auto* label = dynamic_cast<const UILabel*>(view_.get());
  return label != nullptr && label->font().has_value();
}

UIFont ViewLookItem::chosenFont() const {
  return hasTextFont() ? *static_cast<const UILabel&>(*view_).font()
                       : UIFont{"AvenirNext-Medium", theme::kCalloutSize};
}

QFont ViewLookItem::textFont() const { return resolvedFont(chosenFont()); }

QFont ViewLookItem::unscaledTextFont() const { return resolvedFont(chosenFont().unscaled()); }

int ViewLookItem::textAlignment() const {
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

ImageHandle ViewLookItem::image() const {
  const UIImageView* picture = imageView();
  return {picture != nullptr ? picture->image() : nullptr};
}

QColor ViewLookItem::imageTint() const {
  const UIImageView* picture = imageView();
  return picture != nullptr ? templateTint(*picture) : QColor();
}

bool ViewLookItem::imageFits() const {
  const UIImageView* picture = imageView();
  return picture != nullptr && picture->contentMode() == UIViewContentMode::scaleAspectFit;
}

const UIImageView* ViewLookItem::imageView() const {
  const auto* button = dynamic_cast<const UIButton*>(view_.get());
  return button != nullptr ? &button->imageView() : dynamic_cast<const UIImageView*>(view_.get());
}

bool ViewLookItem::isShown() const {
  return view_ && !view_->isRemoved() && !view_->isHidden() && view_->presentation().alpha > 0;
}

double ViewLookItem::shadowOpacity() const {
  return view_ ? view_->presentation().shadowOpacity : 0;
}

QPointF ViewLookItem::shadowOffset() const {
  if (!view_) return {};
  const CGSize offset = view_->presentation().shadowOffset;
  return {offset.width, offset.height};
}

double ViewLookItem::shadowRadius() const {
  if (!view_) return 0;
  return view_->shadowPathRadius() >= 0 ? view_->shadowPathRadius() : cornerRadius();
}

QPointF ViewLookItem::translation() const {
  if (!view_) return {};
  return {view_->presentation().translation.x, view_->presentation().translation.y};
}

double ViewLookItem::cornerRadius() const { return view_ ? view_->presentation().cornerRadius : 0; }

QString ViewLookItem::spoken() const {
  return view_ ? QString::fromStdString(view_->accessibilityLabel().value_or("")) : QString();
}

bool ViewLookItem::isHeading() const {
  return view_ && view_->accessibilityRole() == UIAccessibilityRole::header;
}

bool ViewLookItem::isAnnounced() const {
  return view_ && view_->accessibilityRole() == UIAccessibilityRole::alert;
}

double ViewLookItem::layoutProgress() const { return view_ ? view_->presentation().layout : 0; }

}  // namespace kindora
