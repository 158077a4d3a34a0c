// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/legacy/QavAlertView.h"

#include <utility>

#include "alerts/helpers/QavParallax.h"

namespace kindora {
namespace {

constexpr double kParallax = 15.75;  // points, both ways
constexpr double kCornerRadius = 7;  // points

// A handler may replace itself while it runs, so a copy is called.
template <typename... Arguments>
void tell(const std::function<void(Arguments...)>& handler, Arguments... arguments) {
  const std::function<void(Arguments...)> told = handler;
  if (told) told(arguments...);
}

// What the delegate answers, else the handler, else yes.
bool decided(std::optional<bool> byDelegate, const std::function<bool(int)>& handler,
             int buttonIndex) {
  if (byDelegate) return *byDelegate;
  const std::function<bool(int)> asked = handler;
  return asked ? asked(buttonIndex) : true;
}

}  // namespace

QavAlertViewAppearance& QavAlertView::appearance() {
  static QavAlertViewAppearance shared;
  return shared;
}

std::shared_ptr<QavAlertView> QavAlertView::initWithTitle(
    const Text& title, const Text& message, std::weak_ptr<QavAlertViewDelegate> delegate,
    const Text& cancelButtonTitle, const Titles& otherButtonTitles) {
  std::shared_ptr<QavAlertView> alert(new QavAlertView);
  alert->setTranslatesAutoresizingMaskIntoConstraints(false);
  qav_addParallax(*alert, {kParallax, kParallax});
  alert->setClipsToBounds(true);
  alert->setCornerRadius(kCornerRadius);
  alert->delegate_ = std::move(delegate);
  alert->alertBackgroundView_ = QavAlertViewBackgroundView::make();
  alert->alertContentView_ = QavAlertViewContentView::initWithTitle(title, message);
  alert->setAccessibility(UIAccessibilityRole::alert, title);
  alert->alertContentView_->setDelegate(alert);
  alert->alertContentView_->setCancelButtonTitle(cancelButtonTitle);
  for (const std::string& other : otherButtonTitles) alert->addButtonWithTitle(other);
  alert->alertContentView_->setAppearance(appearance());
  return alert;
}

std::shared_ptr<QavAlertView> QavAlertView::self() {
  return std::static_pointer_cast<QavAlertView>(shared_from_this());
}

void QavAlertView::setTitle(const Text& title) {
  alertContentView_->setTitle(title);
  setAccessibility(UIAccessibilityRole::alert, title);
}

void QavAlertView::setAttributedTitle(const std::optional<NSAttributedString>& title) {
  alertContentView_->setAttributedTitle(title);
  setAccessibility(UIAccessibilityRole::alert, this->title());
}

void QavAlertView::setAlertViewStyle(QavAlertViewStyle style) {
  alertViewStyle_ = style;
  alertContentView_->updateContentForStyle(style);
}

bool QavAlertView::alwaysShowsButtonsVertically() const {
  return alertContentView_->buttons().alwaysShowsButtonsVertically;
}

void QavAlertView::setAlwaysShowsButtonsVertically(bool vertically) {
  alertContentView_->setAlwaysShowsButtonsVertically(vertically);
}

void QavAlertView::setOwnAppearance(QavAlertViewAppearance appearance) {
  const QavAlertViewAppearance& own = ownAppearance();
  if (const auto& title = attributedTitle()) {
    if (title->hasFont()) appearance.titleLabelFont = own.titleLabelFont;
    if (title->hasForegroundColor()) appearance.titleLabelTextColor = own.titleLabelTextColor;
  }
  if (const auto& message = attributedMessage()) {
    if (message->hasFont()) appearance.messageLabelFont = own.messageLabelFont;
    if (message->hasForegroundColor()) appearance.messageLabelTextColor = own.messageLabelTextColor;
  }
  if (appearance != own) alertContentView_->setAppearance(appearance);
}

void QavAlertView::updateFirstOtherButton() {
  const auto asked = delegate();
  const auto enable = asked ? asked->alertViewShouldEnableFirstOtherButton(*this) : std::nullopt;
  if (enable) alertContentView_->setFirstOtherButtonEnabled(*enable);
}

bool QavAlertView::becomeFirstResponder() { return alertContentView_->becomeFirstResponder(); }

bool QavAlertView::resignFirstResponder() { return alertContentView_->resignFirstResponder(); }

// --- What the coordinator tells ---

void QavAlertView::willBePresented() {
  if (const auto told = delegate()) told->willPresentAlertView(*this);
}

void QavAlertView::wasPresented() {
  if (const auto told = delegate()) told->didPresentAlertView(*this);
  tell(didPresentHandler);
}

void QavAlertView::willBeDismissedWithButtonIndex(int index) {
  if (const auto told = delegate()) told->alertViewWillDismissWithButtonIndex(*this, index);
  tell(willDismissHandler, index);
}

void QavAlertView::wasDismissedWithButtonIndex(int index) {
  if (const auto told = delegate()) told->alertViewDidDismissWithButtonIndex(*this, index);
  tell(didDismissHandler, index);
}

// --- Tapping ---

void QavAlertView::alertContentViewDidTapButtonAtIndex(QavAlertViewContentView& /*contentView*/,
                                                       int buttonIndex) {
  tappedButtonAtIndex(buttonIndex);
}

bool QavAlertView::alertContentViewShouldDeselectButtonAtIndex(
    QavAlertViewContentView& /*contentView*/, int buttonIndex) {
  const auto asked = delegate();
  return decided(
      asked ? asked->alertViewShouldDeselectButtonAtIndex(*this, buttonIndex) : std::nullopt,
      shouldDeselectButtonHandler, buttonIndex);
}

void QavAlertView::tappedButtonAtIndex(int index) {
  if (const auto told = delegate()) told->alertViewClickedButtonAtIndex(*this, index);
  tell(clickedButtonHandler, index);
  if (!shouldDismiss(index)) return;
  // Until it is shown again: a second press would dismiss it a second time.
  setUserInteractionEnabled(false);
  dismissWithClickedButtonIndex(index, true);
}

bool QavAlertView::shouldDismiss(int buttonIndex) {
  const auto asked = delegate();
  return decided(
      asked ? asked->alertViewShouldDismissWithButtonIndex(*this, buttonIndex) : std::nullopt,
      shouldDismissHandler, buttonIndex);
}

}  // namespace kindora
