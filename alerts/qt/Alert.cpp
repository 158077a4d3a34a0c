// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/Alert.h"

#include <QJSEngine>
#include <QPointer>
#include <QQmlEngine>
#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "alerts/qt/CurrentViewController.h"
#include "alerts/qt/QavAlertController.h"
#include "toolkit/controllers/UIWindow.h"

namespace kindora {
namespace {

// QML says the alerts' own numbers.
constexpr bool same(Alert::ActionLayout shown, QavAlertActionLayout meant) {
  return static_cast<int>(shown) == static_cast<int>(meant);
}
constexpr bool same(AlertAction::Style shown, QavAlertActionStyle meant) {
  return static_cast<int>(shown) == static_cast<int>(meant);
}
static_assert(same(Alert::ActionLayout::Automatic, QavAlertActionLayout::automatic));
static_assert(same(Alert::ActionLayout::Horizontal, QavAlertActionLayout::horizontal));
static_assert(same(Alert::ActionLayout::Vertical, QavAlertActionLayout::vertical));
static_assert(same(AlertAction::Style::Default, QavAlertActionStyle::standard));
static_assert(same(AlertAction::Style::Cancel, QavAlertActionStyle::cancel));
static_assert(same(AlertAction::Style::Destructive, QavAlertActionStyle::destructive));

// QML has no absent text: an empty one takes no room either.
std::optional<std::string> optionalText(const QString& text) {
  return text.isEmpty() ? std::nullopt : std::optional(text.toStdString());
}

// What it presented now would go with it. An alert's progress is 1 from when it has come.
bool isGoing(UIViewController& controller) {
  return controller.transitionCoordinator() != nullptr && controller.presentationProgress() == 1;
}

}  // namespace

Alert::~Alert() {
  if (controller_) controller_->dismissWithCompletion();
}

void Alert::setTitle(const QString& title) {
  if (title_ == title) return;
  title_ = title;
  emit changed();
}

void Alert::setMessage(const QString& message) {
  if (message_ == message) return;
  message_ = message;
  emit changed();
}

void Alert::setActionLayout(ActionLayout layout) {
  if (actionLayout_ == layout) return;
  actionLayout_ = layout;
  emit changed();
}

void Alert::setShouldDismiss(const QJSValue& function) {
  shouldDismiss_ = function;
  emit changed();
}

QQmlListProperty<AlertAction> Alert::actions() { return {this, &actions_}; }

QQmlListProperty<AlertTextField> Alert::textFields() { return {this, &textFields_}; }

bool Alert::waitsForAnother() {
  disconnect(opening_);
  const UIViewControllerRef top = qav_currentViewController();
  if (!top || !isGoing(*top)) return false;
  const auto once =
      static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection);
  opening_ = connect(top->window()->presentations(), &ControllerList::countChanged, this,
                     &Alert::open, once);
  return true;
}

void Alert::open() {
  if (controller_ || waitsForAnother()) return;
  controller_ = QavAlertController::alertControllerWithTitle(
      optionalText(title_), optionalText(message_), QavAlertControllerStyle::alert);
  controller_->setActionLayout(static_cast<QavAlertActionLayout>(actionLayout_));
  for (AlertAction* action : std::as_const(actions_)) addAction(*action);
  for (AlertTextField* field : std::as_const(textFields_)) {
    controller_->addTextFieldWithConfigurationHandler(nullptr);
    field->connectField(controller_->textFields().back());
  }
  controller_->shouldDismissBlock = [self = QPointer(this)](QavAlertAction& chosen) {
    return !self || self->mayDismiss(chosen);
  };
  controller_->didDisappearHandler = [self = QPointer(this)] {
    if (self) self->ended();
  };
  controller_->presentWithCompletion([self = QPointer(this)] {
    if (self) emit self->presented();
  });
  if (!controller_->usesLegacyAlert() && controller_->presentingViewController() == nullptr) {
    qWarning("Alert.open: there is nothing to show it above; the window needs an AlertLayer");
    controller_ = nullptr;
    return;
  }
  emit openedChanged();
}

void Alert::addAction(AlertAction& action) {
  const auto made = QavAlertAction::actionWithTitle(
      action.text().toStdString(), static_cast<QavAlertActionStyle>(action.style()),
      [source = QPointer(&action)](QavAlertAction&) {
        if (source) emit source->triggered();
      });
  made->setEnabled(action.isEnabled());
  connect(&action, &AlertAction::changed, controller_.get(),
          [made, source = &action] { made->setEnabled(source->isEnabled()); });
  controller_->addAction(made);
}

bool Alert::mayDismiss(const QavAlertAction& chosen) {
  QJSEngine* engine = qjsEngine(this);
  if (!shouldDismiss_.isCallable() || engine == nullptr) return true;
  const auto actions = controller_->actions();
  const auto found = std::ranges::find(actions, &chosen, &QavAlertActionRef::get);
  AlertAction* action = actions_[found - actions.begin()];
  QQmlEngine::setObjectOwnership(action, QQmlEngine::CppOwnership);
  const QJSValue answer = shouldDismiss_.call({engine->newQObject(action)});
  if (answer.isError()) {
    qWarning("Alert.shouldDismiss: %s", qPrintable(answer.toString()));
    return true;
  }
  return !answer.isBool() || answer.toBool();
}

void Alert::close() {
  disconnect(opening_);
  if (controller_) controller_->dismissWithCompletion();
}

void Alert::ended() {
  if (!std::exchange(controller_, nullptr)) return;
  emit openedChanged();
}

}  // namespace kindora
