// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// An alert whose buttons are known by their index, with a delegate and handlers. Alerts appear
// above the app in a window of their own, the newest first; see QavAlertViewCoordinator.
//
//   const auto alert = QavAlertView::alertWithTitleMessageButtons("Sent", std::nullopt, {"OK"});
//   alert->showWithDismissHandler([](int buttonIndex) { ... });
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "alerts/legacy/QavAlertViewBackgroundView.h"
#include "alerts/legacy/QavAlertViewContentView.h"
#include "alerts/legacy/QavAlertViewDelegate.h"

namespace kindora {

class QavAlertViewCoordinator;

class QavAlertView final : public UIView, public QavAlertViewContentViewDelegate {
 public:
  using Text = std::optional<std::string>;
  using Titles = std::vector<std::string>;

  /// The look of alerts that are made afterwards, for the program to set when it likes.
  [[nodiscard]] static QavAlertViewAppearance& appearance();

  [[nodiscard]] static std::shared_ptr<QavAlertView> initWithTitle(
      const Text& title, const Text& message, std::weak_ptr<QavAlertViewDelegate> delegate,
      const Text& cancelButtonTitle, const Titles& otherButtonTitles);

  // Without a delegate. The first of the buttons is the cancel button.
  [[nodiscard]] static std::shared_ptr<QavAlertView> alertWithTitleMessage(const Text& title,
                                                                           const Text& message);
  [[nodiscard]] static std::shared_ptr<QavAlertView> alertWithTitleMessageButtons(
      const Text& title, const Text& message, const Titles& buttons);
  [[nodiscard]] static std::shared_ptr<QavAlertView> alertWithSubview(const UIViewRef& subview);
  [[nodiscard]] static std::shared_ptr<QavAlertView> alertWithTitleSubview(
      const Text& title, const UIViewRef& subview);
  [[nodiscard]] static std::shared_ptr<QavAlertView> alertWithTitleMessageSubview(
      const Text& title, const Text& message, const UIViewRef& subview);
  /// A null subview is none.
  [[nodiscard]] static std::shared_ptr<QavAlertView> alertWithTitleMessageSubviewButtons(
      const Text& title, const Text& message, const UIViewRef& subview, const Titles& buttons);

  /// Kept weakly.
  [[nodiscard]] std::shared_ptr<QavAlertViewDelegate> delegate() const { return delegate_.lock(); }
  void setDelegate(std::weak_ptr<QavAlertViewDelegate> delegate) {
    delegate_ = std::move(delegate);
  }
  // Called after the delegate; the two that answer are asked where the delegate does not.
  std::function<void()> didPresentHandler;
  std::function<void(int buttonIndex)> clickedButtonHandler;
  std::function<bool(int buttonIndex)> shouldDismissHandler;
  std::function<void(int buttonIndex)> willDismissHandler;
  std::function<void(int buttonIndex)> didDismissHandler;
  std::function<bool(int buttonIndex)> shouldDeselectButtonHandler;

  // --- Content ---

  [[nodiscard]] const Text& title() const { return alertContentView_->titleLabel()->text(); }
  void setTitle(const Text& title);
  [[nodiscard]] const Text& message() const { return alertContentView_->messageLabel()->text(); }
  void setMessage(const Text& message) { alertContentView_->setMessage(message); }
  [[nodiscard]] const std::optional<NSAttributedString>& attributedTitle() const {
    return alertContentView_->titleLabel()->attributedText();
  }
  void setAttributedTitle(const std::optional<NSAttributedString>& title);
  [[nodiscard]] const std::optional<NSAttributedString>& attributedMessage() const {
    return alertContentView_->messageLabel()->attributedText();
  }
  void setAttributedMessage(const std::optional<NSAttributedString>& message) {
    alertContentView_->setAttributedMessage(message);
  }
  [[nodiscard]] QavAlertViewStyle alertViewStyle() const { return alertViewStyle_; }
  /// Makes the text fields anew.
  void setAlertViewStyle(QavAlertViewStyle style);
  /// Null where there is none.
  [[nodiscard]] std::shared_ptr<QavAlertViewTextField> textFieldAtIndex(int index) const {
    return alertContentView_->textFieldAtIndex(index);
  }
  /// For the app's own content.
  [[nodiscard]] const std::shared_ptr<QavIntrinsicallySizedView>& contentView() const {
    return alertContentView_->contentView();
  }

  // --- Buttons ---

  [[nodiscard]] bool alwaysShowsButtonsVertically() const;
  void setAlwaysShowsButtonsVertically(bool vertically);
  /// Below 0 without a cancel button.
  [[nodiscard]] int cancelButtonIndex() const { return alertContentView_->cancelButtonIndex(); }
  void setCancelButtonIndex(int index) { alertContentView_->setCancelButtonIndex(index); }
  [[nodiscard]] int firstOtherButtonIndex() const {
    return alertContentView_->firstOtherButtonIndex();
  }
  [[nodiscard]] int numberOfButtons() const { return alertContentView_->numberOfButtons(); }
  /// Answers the index of the first button of that title.
  int addButtonWithTitle(const std::string& title) {
    return alertContentView_->addButtonWithTitle(title);
  }
  [[nodiscard]] Text buttonTitleAtIndex(int index) const {
    return alertContentView_->buttons().buttonTitleAtIndex(index);
  }

  // --- Showing ---

  void show();
  /// Takes the place of the didDismissHandler.
  void showWithDismissHandler(std::function<void(int buttonIndex)> dismissHandler);
  void dismissWithClickedButtonIndex(int index, bool animated);
  /// Whether it is on the screen and no transition runs.
  [[nodiscard]] bool isVisible() const;
  /// True. With text fields the first of them has the keyboard.
  bool becomeFirstResponder();
  bool resignFirstResponder() override;

  // --- Look ---

  [[nodiscard]] const QavAlertViewAppearance& ownAppearance() const {
    return alertContentView_->appearance();
  }
  /// Title and message keep the font or the colour that an attributed text sets anywhere in it;
  /// another one then has no effect.
  void setOwnAppearance(QavAlertViewAppearance appearance);

  // --- What the coordinator tells ---

  void willBePresented();
  void wasPresented();
  void willBeDismissedWithButtonIndex(int index);
  void wasDismissedWithButtonIndex(int index);

  // --- Parts ---

  [[nodiscard]] const std::shared_ptr<QavAlertViewBackgroundView>& alertBackgroundView() const {
    return alertBackgroundView_;
  }
  [[nodiscard]] const std::shared_ptr<QavAlertViewContentView>& alertContentView() const {
    return alertContentView_;
  }
  /// The shared one.
  [[nodiscard]] static QavAlertViewCoordinator& transitionCoordinator();

  void alertContentViewDidTapButtonAtIndex(QavAlertViewContentView& contentView,
                                           int buttonIndex) override;
  bool alertContentViewShouldDeselectButtonAtIndex(QavAlertViewContentView& contentView,
                                                   int buttonIndex) override;

 private:
  QavAlertView() = default;
  [[nodiscard]] std::shared_ptr<QavAlertView> self();
  void tappedButtonAtIndex(int index);
  [[nodiscard]] bool shouldDismiss(int buttonIndex);
  void updateFirstOtherButton();

  std::weak_ptr<QavAlertViewDelegate> delegate_;
  QavAlertViewStyle alertViewStyle_ = QavAlertViewStyle::standard;
  std::shared_ptr<QavAlertViewBackgroundView> alertBackgroundView_;
  std::shared_ptr<QavAlertViewContentView> alertContentView_;
};

}  // namespace kindora
