// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/legacy/QavAlertViewContentView.h"

#include <utility>

#include "alerts/legacy/QavAlertViewColors.h"
#include "alerts/legacy/QavLocalizedString.h"

namespace kindora {
namespace {

constexpr double kFieldCornerRadius = 5;  // points

}  // namespace

std::shared_ptr<QavAlertViewContentView> QavAlertViewContentView::initWithTitle(
    const std::optional<std::string>& title, const std::optional<std::string>& message) {
  std::shared_ptr<QavAlertViewContentView> view(new QavAlertViewContentView);
  view->makeElements();
  view->setTitle(title);
  view->setMessage(message);
  view->setAppearance({});
  return view;
}

void QavAlertViewContentView::makeElements() {
  setTranslatesAutoresizingMaskIntoConstraints(false);
  for (const UIViewRef& view :
       {UIViewRef(scrollView_), UIViewRef(titleLabel_), UIViewRef(messageLabel_),
        textFieldBackgroundView_, textFieldSeparatorView_, UIViewRef(customContentView_),
        buttonTopSeparatorView_, buttonMiddleSeparatorView_, UIViewRef(otherButtonsTableView_),
        UIViewRef(suggestedButtonTableView_)}) {
    view->setTranslatesAutoresizingMaskIntoConstraints(false);
  }
  for (const auto& label : {titleLabel_, messageLabel_}) {
    label->setNumberOfLines(0);
    label->setTextAlignment(NSTextAlignment::center);
  }
  for (const auto& line :
       {textFieldSeparatorView_, buttonTopSeparatorView_, buttonMiddleSeparatorView_}) {
    line->setBackgroundColor(qav_alertSeparatorColor());
  }
  textFieldBackgroundView_->setBackgroundColor(UIColor::whiteColor());
  textFieldBackgroundView_->setCornerRadius(kFieldCornerRadius);
  textFieldBackgroundView_->setClipsToBounds(true);
  const auto listen = [this](QavAlertViewButtonTable& table, bool isSuggested) {
    table.rowTapped = [weak = std::weak_ptr(self()), isSuggested](int row) {
      if (const auto alive = weak.lock()) alive->didTapRow(isSuggested, row);
    };
  };
  listen(*otherButtonsTableView_, false);
  listen(*suggestedButtonTableView_, true);
}

std::shared_ptr<QavAlertViewContentView> QavAlertViewContentView::self() {
  return std::static_pointer_cast<QavAlertViewContentView>(shared_from_this());
}

// --- Texts ---

void QavAlertViewContentView::setTitle(const std::optional<std::string>& title) {
  titleLabel_->setText(title);
  titleLabel_->setAccessibility(UIAccessibilityRole::header, title);
  measuresChanged();
}

void QavAlertViewContentView::setMessage(const std::optional<std::string>& message) {
  messageLabel_->setText(message);
  messageLabel_->setAccessibility(UIAccessibilityRole::staticText, message);
  measuresChanged();
}

void QavAlertViewContentView::setAttributedTitle(const std::optional<NSAttributedString>& title) {
  titleLabel_->setAttributedText(title);
  titleLabel_->setAccessibility(UIAccessibilityRole::header, titleLabel_->text());
  measuresChanged();
}

void QavAlertViewContentView::setAttributedMessage(
    const std::optional<NSAttributedString>& message) {
  messageLabel_->setAttributedText(message);
  messageLabel_->setAccessibility(UIAccessibilityRole::staticText, messageLabel_->text());
  measuresChanged();
}

void QavAlertViewContentView::setAppearance(const QavAlertViewAppearance& appearance) {
  appearance_ = appearance;
  titleLabel_->setFont(appearance.titleLabelFont);
  titleLabel_->setTextColor(appearance.titleLabelTextColor);
  messageLabel_->setFont(appearance.messageLabelFont);
  messageLabel_->setTextColor(appearance.messageLabelTextColor);
  for (const TextFieldRef& field : textFields_) {
    field->setFont(appearance.textFieldFont);
    field->setTextColor(appearance.textFieldTextColor);
  }
  elementsChanged();
}

// --- Buttons ---

void QavAlertViewContentView::setCancelButtonTitle(const std::optional<std::string>& title) {
  buttons_.setCancelButtonTitle(title);
  elementsChanged();
}

int QavAlertViewContentView::addButtonWithTitle(const std::string& title) {
  const int index = buttons_.addButtonWithTitle(title);
  elementsChanged();
  return index;
}

void QavAlertViewContentView::setCancelButtonIndex(int index) {
  buttons_.setCancelButtonIndex(index);
  elementsChanged();
}

void QavAlertViewContentView::setAlwaysShowsButtonsVertically(bool vertically) {
  buttons_.alwaysShowsButtonsVertically = vertically;
  elementsChanged();
}

void QavAlertViewContentView::setFirstOtherButtonEnabled(bool enabled) {
  firstOtherButtonEnabled_ = enabled;
  if (prepared_) styleRows();
}

void QavAlertViewContentView::fillTables() {
  std::vector<std::string> others;
  others.reserve(static_cast<std::size_t>(buttons_.numberOfOtherRows()));
  for (int row = 0; row < buttons_.numberOfOtherRows(); ++row) {
    others.push_back(buttons_.titleOfOtherRow(row));
  }
  otherButtonsTableView_->setTitles(others);
  std::vector<std::string> suggested;
  if (numberOfButtons() > 0) suggested.push_back(buttons_.suggestedTitle());
  suggestedButtonTableView_->setTitles(suggested);
  styleRows();
}

void QavAlertViewContentView::styleRows() {
  const auto style = [this](const QavAlertViewButtonTable& table, const UIFont& font) {
    for (const auto& row : table.rows()) {
      row->textLabel()->setFont(font);
      row->textLabel()->setTextColor(appearance_.buttonTextColor.value_or(tintColor()));
      row->setEnabled(true);
    }
  };
  style(*otherButtonsTableView_, appearance_.normalButtonFont);
  style(*suggestedButtonTableView_, appearance_.suggestedButtonFont);
  const auto firstOther = rowOfButton(firstOtherButtonIndex());
  if (firstOther) firstOther->setEnabled(firstOtherButtonEnabled_);
}

std::shared_ptr<QavAlertViewButtonRow> QavAlertViewContentView::rowOfButton(int index) const {
  for (const auto& row : suggestedButtonTableView_->rows()) {
    if (buttons_.suggestedButtonIndex() == index) return row;
  }
  const auto& others = otherButtonsTableView_->rows();
  for (std::size_t row = 0; row < others.size(); ++row) {
    if (buttons_.buttonIndexOfOtherRow(static_cast<int>(row)) == index) return others[row];
  }
  return nullptr;
}

void QavAlertViewContentView::didTapRow(bool inSuggestedTable, int row) {
  const int index =
      inSuggestedTable ? buttons_.suggestedButtonIndex() : buttons_.buttonIndexOfOtherRow(row);
  const auto& table = inSuggestedTable ? suggestedButtonTableView_ : otherButtonsTableView_;
  const QavAlertViewButtonTable::RowRef tapped = table->rows().at(static_cast<std::size_t>(row));
  tapped->setSelected(true);
  const auto delegate = delegate_.lock();
  if (!delegate) return;
  delegate->alertContentViewDidTapButtonAtIndex(*this, index);
  if (delegate->alertContentViewShouldDeselectButtonAtIndex(*this, index)) {
    tapped->setSelected(false);
  }
}

// --- Text fields ---

void QavAlertViewContentView::updateContentForStyle(QavAlertViewStyle style) {
  for (const TextFieldRef& field : textFields_) {
    field->resignFirstResponder();
    field->removeFromSuperview();
  }
  textFields_.clear();
  switch (style) {
    case QavAlertViewStyle::standard:
      break;
    case QavAlertViewStyle::secureTextInput:
      addTextField(true, std::nullopt);
      break;
    case QavAlertViewStyle::plainTextInput:
      addTextField(false, std::nullopt);
      break;
    case QavAlertViewStyle::loginAndPasswordInput:
      addTextField(false, qav_localizedString("Login"));
      addTextField(true, qav_localizedString("Password"));
      break;
  }
  elementsChanged();
}

void QavAlertViewContentView::addTextField(bool secure,
                                           const std::optional<std::string>& placeholder) {
  const TextFieldRef& field = textFields_.emplace_back(std::make_shared<QavAlertViewTextField>());
  field->setTranslatesAutoresizingMaskIntoConstraints(false);
  field->setSecureTextEntry(secure);
  field->setPlaceholder(placeholder.value_or(""));
  field->setFont(appearance_.textFieldFont);
  field->setTextColor(appearance_.textFieldTextColor);
  field->textDidChange = [weak = std::weak_ptr(self())] {
    const auto alive = weak.lock();
    if (alive && alive->textDidChange) alive->textDidChange();
  };
}

QavAlertViewContentView::TextFieldRef QavAlertViewContentView::textFieldAtIndex(int index) const {
  const bool exists = index >= 0 && index < static_cast<int>(textFields_.size());
  return exists ? textFields_[static_cast<std::size_t>(index)] : nullptr;
}

bool QavAlertViewContentView::becomeFirstResponder() {
  if (!textFields_.empty()) textFields_.front()->becomeFirstResponder();
  return true;
}

bool QavAlertViewContentView::resignFirstResponder() {
  // The user may have gone on to the second field.
  for (const TextFieldRef& field : textFields_) field->resignFirstResponder();
  return true;
}

}  // namespace kindora
