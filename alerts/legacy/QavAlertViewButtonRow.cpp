// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/legacy/QavAlertViewButtonRow.h"

#include "alerts/helpers/QavAutoLayout.h"
#include "toolkit/view/UITapGestureRecognizer.h"

namespace kindora {
namespace {

constexpr UIColor kHighlight{0, 0, 0, 0.12};
constexpr double kTitleInset = 8;  // points

}  // namespace

std::shared_ptr<QavAlertViewButtonRow> QavAlertViewButtonRow::withTitle(const std::string& title) {
  std::shared_ptr<QavAlertViewButtonRow> row(new QavAlertViewButtonRow);
  const auto& label = row->textLabel_;
  label->setText(title);
  label->setTextAlignment(NSTextAlignment::center);
  label->setTranslatesAutoresizingMaskIntoConstraints(false);
  row->addSubview(label);
  qav_alignEdgesWithSuperview(label, UIRectEdge::left | UIRectEdge::right,
                              {.left = kTitleInset, .right = -kTitleInset});
  qav_verticallyCenterInSuperview(label);
  row->setAccessibility(UIAccessibilityRole::button, title);
  const auto recognizer = std::make_shared<UITapGestureRecognizer>();
  recognizer->action = [weak = std::weak_ptr(row)](UIView&) {
    const auto alive = weak.lock();
    if (alive && alive->isEnabled() && alive->tapped) alive->tapped();
  };
  recognizer->pressedChanged = [weak = std::weak_ptr(row)](UIView&, bool pressed) {
    if (const auto alive = weak.lock()) alive->showHighlight(pressed || alive->selected_);
  };
  row->setTapGestureRecognizer(recognizer);
  return row;
}

void QavAlertViewButtonRow::setEnabled(bool enabled) {
  textLabel_->setEnabled(enabled);
  tapGestureRecognizer()->enabled = enabled;
  setUserInteractionEnabled(enabled);
}

void QavAlertViewButtonRow::setSelected(bool selected) {
  selected_ = selected;
  showHighlight(selected);
}

void QavAlertViewButtonRow::showHighlight(bool highlighted) {
  setBackgroundColor(highlighted ? kHighlight : UIColor::clearColor());
}

}  // namespace kindora
