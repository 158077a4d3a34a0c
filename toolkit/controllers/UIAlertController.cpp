// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIAlertController.h"

#include <utility>

#include "toolkit/controllers/PageUrl.h"

namespace kindora {

UIAlertController::UIAlertController(const std::optional<std::string>& title,
                                     const std::optional<std::string>& message,
                                     UIAlertControllerStyle style)
    : titleText_(title), message_(message), style_(style) {}

void UIAlertController::addAction(UIAlertAction action) { actions_.push_back(std::move(action)); }

void UIAlertController::choose(int index) {
  if (chosen_ || index < 0 || index >= static_cast<int>(actions_.size())) return;
  chosen_ = true;
  dismissViewController(true, actions_[static_cast<std::size_t>(index)].handler);
}

bool UIAlertController::goBack() {
  choose(cancelIndex());
  return true;
}

QString UIAlertController::alertTitle() const {
  return QString::fromStdString(titleText_.value_or(""));
}

QString UIAlertController::alertMessage() const {
  return QString::fromStdString(message_.value_or(""));
}

QStringList UIAlertController::actionTitles() const {
  QStringList titles;
  for (const auto& action : actions_) titles << QString::fromStdString(action.title);
  return titles;
}

int UIAlertController::cancelIndex() const {
  for (std::size_t i = 0; i < actions_.size(); ++i) {
    if (actions_[i].style == UIAlertActionStyle::cancel) return static_cast<int>(i);
  }
  return -1;
}

bool UIAlertController::isDestructive(int index) const {
  return actions_.at(static_cast<std::size_t>(index)).style == UIAlertActionStyle::destructive;
}

QUrl UIAlertController::page() const {
  return pageUrl(u"Kindora.Toolkit.Hosts",
                 style_ == UIAlertControllerStyle::alert ? u"AlertHost" : u"ActionSheetHost");
}

}  // namespace kindora
