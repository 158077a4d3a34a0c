// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/QavAlertController.h"

#include <algorithm>
#include <any>
#include <utility>

#include "alerts/card/QavAlertControllerDefaultVisualStyle.h"
#include "alerts/legacy/QavAlertView.h"
#include "alerts/qt/AlertWindows.h"
#include "alerts/qt/CurrentViewController.h"
#include "alerts/qt/LegacyBridge.h"
#include "alerts/qt/ProcessInfo.h"
#include "alerts/qt/QavAlertControllerTextFieldViewController.h"
#include "alerts/qt/QavAlertControllerTransitioningDelegate.h"
#include "platform/KeyboardNotification.h"

namespace kindora {
namespace {

std::optional<NSAttributedString> attributed(const std::optional<NSAttributedString>& text,
                                             const std::optional<std::string>& plain) {
  if (text || !plain) return text;
  return NSAttributedString(*plain);
}

}  // namespace

// --- Making ---

QavAlertController::QavAlertController(QavAlertControllerStyle style)
    : preferredStyle_(style),
      visualStyle_(std::make_shared<QavAlertControllerDefaultVisualStyle>()),
      transitioningDelegate_(std::make_shared<QavAlertControllerTransitioningDelegate>()) {
  installAlertWindows();
  setModalPresentationStyle(UIModalPresentationStyle::custom);
  setTransitioningDelegate(transitioningDelegate_);
}

QavAlertController::~QavAlertController() = default;

QavAlertControllerRef QavAlertController::alertControllerWithTitle(
    const std::optional<std::string>& title, const std::optional<std::string>& message,
    QavAlertControllerStyle preferredStyle) {
  auto controller = makeViewController<QavAlertController>(preferredStyle);
  controller->initWithTitle(title, message);
  return controller;
}

QavAlertControllerRef QavAlertController::alertControllerWithAttributedTitle(
    const std::optional<NSAttributedString>& attributedTitle,
    const std::optional<NSAttributedString>& attributedMessage,
    QavAlertControllerStyle preferredStyle) {
  auto controller = makeViewController<QavAlertController>(preferredStyle);
  controller->initWithAttributedTitle(attributedTitle, attributedMessage);
  return controller;
}

void QavAlertController::initWithTitle(const std::optional<std::string>& title,
                                       const std::optional<std::string>& message) {
  setTitle(title);
  content_.message = message;
  createAlert();
}

void QavAlertController::initWithAttributedTitle(const std::optional<NSAttributedString>& title,
                                                 const std::optional<NSAttributedString>& message) {
  content_.attributedTitle = title;
  content_.attributedMessage = message;
  createAlert();
}

void QavAlertController::createAlert() {
  alert_ =
      QavAlertControllerView::withTitle(attributed(content_.attributedTitle, content_.title),
                                        attributed(content_.attributedMessage, content_.message));
  alert_->setDelegate(std::static_pointer_cast<QavAlertController>(shared_from_this()));
  content_.view = std::make_shared<QavIntrinsicallySizedView>();
  content_.view->setTranslatesAutoresizingMaskIntoConstraints(false);
  alert_->setContentView(content_.view);
}

// --- What it says ---

void QavAlertController::setTitle(const std::optional<std::string>& title) {
  content_.title = title;
  UIViewController::setTitle(QString::fromStdString(title.value_or("")));
  pushTitle();
}

void QavAlertController::setMessage(const std::optional<std::string>& message) {
  content_.message = message;
  pushMessage();
}

void QavAlertController::setAttributedTitle(const std::optional<NSAttributedString>& title) {
  content_.attributedTitle = title;
  pushTitle();
}

void QavAlertController::setAttributedMessage(const std::optional<NSAttributedString>& message) {
  content_.attributedMessage = message;
  pushMessage();
}

void QavAlertController::pushTitle() {
  if (alert_) alert_->setTitle(attributed(content_.attributedTitle, content_.title));
}

void QavAlertController::pushMessage() {
  if (alert_) alert_->setMessage(attributed(content_.attributedMessage, content_.message));
}

// --- What it holds ---

void QavAlertController::addAction(QavAlertActionRef action) {
  content_.actions.push_back(std::move(action));
}

void QavAlertController::addTextFieldWithConfigurationHandler(
    const TextFieldConfiguration& configurationHandler) {
  const auto field = std::make_shared<UITextField>();
  field->setFont(visualStyle_->textFieldFont());
  field->setAutocorrectionType(UITextAutocorrectionType::no);
  content_.textFields.push_back(field);
  if (configurationHandler) configurationHandler(*field);
}

void QavAlertController::setVisualStyle(std::shared_ptr<QavAlertControllerVisualStyle> style) {
  visualStyle_ = std::move(style);
}

// --- Showing it ---

bool QavAlertController::usesLegacyAlert() const {
  return preferredStyle_ == QavAlertControllerStyle::legacy || !canAskForOperatingSystemVersion();
}

std::shared_ptr<QavAlertView> alertViewWithAlertController(QavAlertController& controller) {
  return alertViewWithContent(controller.content(), std::static_pointer_cast<QavAlertController>(
                                                        controller.shared_from_this()));
}

const std::shared_ptr<QavAlertView>& QavAlertController::legacyAlertView() {
  if (!legacyAlertView_ && usesLegacyAlert()) {
    legacyAlertView_ = alertViewWithAlertController(*this);
  }
  return legacyAlertView_;
}

void QavAlertController::presentWithCompletion(Completion completion) {
  if (usesLegacyAlert()) {
    const std::shared_ptr<QavAlertView> alertView = legacyAlertView();
    alertView->didPresentHandler = std::move(completion);
    alertView->show();
  } else if (const UIViewControllerRef top = qav_currentViewController()) {
    presentFromViewController(*top, std::move(completion));
  }
}

void QavAlertController::presentFromViewController(UIViewController& controller,
                                                   Completion completionHandler) {
  controller.presentViewController(shared_from_this(), true, std::move(completionHandler));
}

void QavAlertController::dismissWithCompletion(Completion completion) {
  if (UIViewController* presenting = presentingViewController()) {
    presenting->dismissViewController(true, std::move(completion));
  }
}

QavAlertControllerRef QavAlertController::showAlertControllerWithTitle(
    const std::optional<std::string>& title, const std::optional<std::string>& message) {
  return showAlertControllerWithTitle(title, message, std::nullopt);
}

QavAlertControllerRef QavAlertController::showAlertControllerWithTitle(
    const std::optional<std::string>& title, const std::optional<std::string>& message,
    const std::optional<std::string>& actionTitle) {
  return showAlertControllerWithTitle(title, message, actionTitle, nullptr);
}

QavAlertControllerRef QavAlertController::showAlertControllerWithTitle(
    const std::optional<std::string>& title, const std::optional<std::string>& message,
    const std::optional<std::string>& actionTitle, const UIViewRef& subview) {
  auto controller = alertControllerWithTitle(title, message, QavAlertControllerStyle::alert);
  controller->addAction(QavAlertAction::actionWithTitle(actionTitle, QavAlertActionStyle::cancel));
  if (subview) controller->contentView()->addSubview(subview);
  controller->presentWithCompletion();
  return controller;
}

// --- The controller's life ---

UIViewRef QavAlertController::loadView() { return std::make_shared<UIView>(); }

void QavAlertController::viewWillAppear(bool animated) {
  UIViewController::viewWillAppear(animated);
  isAnswered_ = false;
  if (std::exchange(isPrepared_, true)) {
    presentingAlert_ = true;
  } else {
    prepareAlert();
  }
}

void QavAlertController::prepareAlert() {
  keyboard_ = NotificationCenter::defaultCenter().observe(
      UIKeyboardWillChangeFrameNotification, [this](const std::any& info) {
        keyboardUpdate(std::any_cast<const KeyboardNotification&>(info).endFrame);
      });
  alert_->setVisualStyle(visualStyle_);
  alert_->setActions(content_.actions);
  alert_->setActionLayout(content_.actionLayout);
  if (!content_.textFields.empty()) {
    const auto fields = makeViewController<QavAlertControllerTextFieldViewController>(
        content_.textFields, visualStyle_);
    addChildViewController(fields);
    alert_->showTextFieldView(fields->tableView());
    fields->didMoveToParentViewController(this);
  }
  presentingAlert_ = true;
  view()->addSubview(alert_);
  alert_->prepareForDisplay();
}

void QavAlertController::viewDidAppear(bool animated) {
  UIViewController::viewDidAppear(animated);
  presentingAlert_ = false;
}

void QavAlertController::viewDidDisappear(bool animated) {
  UIViewController::viewDidDisappear(animated);
  if (didDisappearHandler) didDisappearHandler();
}

void QavAlertController::viewDidLayoutSubviews() {
  UIViewController::viewDidLayoutSubviews();
  if (std::exchange(didAssignFirstResponder_, true)) return;
  if (!content_.textFields.empty()) content_.textFields.front()->becomeFirstResponder();
}

void QavAlertController::keyboardUpdate(const CGRect& endFrame) {
  view()->setFrame({{0, 0}, {view()->frame().size.width, endFrame.origin.y}});
  if (!presentingAlert_) alert_->layoutIfNeeded();
}

bool QavAlertController::goBack() {
  const auto cancel = std::ranges::find(content_.actions, QavAlertActionStyle::cancel,
                                        [](const auto& action) { return action->style(); });
  if (cancel == content_.actions.end()) return false;
  const QavAlertActionRef action = *cancel;
  alertControllerViewDidPerformAction(*alert_, action);
  return true;
}

void QavAlertController::alertControllerViewDidPerformAction(
    QavAlertControllerView& /*alertView*/, const QavAlertActionRef& didPerformAction) {
  if (!didPerformAction->isEnabled() || isAnswered_) return;
  // Held: what is asked may drop it from the alert.
  QavAlertActionRef action = didPerformAction;
  if (shouldDismissBlock && !shouldDismissBlock(*action)) return;
  isAnswered_ = presentingViewController() != nullptr;
  dismissWithCompletion([self = shared_from_this(), action = std::move(action)] {
    if (action->handler()) action->handler()(*action);
  });
}

}  // namespace kindora
