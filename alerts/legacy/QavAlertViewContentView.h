// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What stands on an alert: title and message in an area that scrolls, text fields, the app's own
// content, and the buttons. It says how large the alert is: as wide as its maximum size, and as
// high as its elements take, the scroll area giving way when they take too much.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "alerts/helpers/QavIntrinsicallySizedView.h"
#include "alerts/legacy/QavAlertViewAppearance.h"
#include "alerts/legacy/QavAlertViewButtonTable.h"
#include "alerts/legacy/QavAlertViewButtons.h"
#include "alerts/legacy/QavAlertViewContentViewDelegate.h"
#include "alerts/legacy/QavAlertViewFormats.h"
#include "alerts/legacy/QavAlertViewStyle.h"
#include "alerts/legacy/QavAlertViewTextField.h"
#include "toolkit/view/NSLayoutConstraint.h"
#include "toolkit/view/UIScrollView.h"

namespace kindora {

class QavAlertViewContentView final : public UIView {
 public:
  using TextFieldRef = std::shared_ptr<QavAlertViewTextField>;

  [[nodiscard]] static std::shared_ptr<QavAlertViewContentView> initWithTitle(
      const std::optional<std::string>& title, const std::optional<std::string>& message);

  void setDelegate(std::weak_ptr<QavAlertViewContentViewDelegate> delegate) {
    delegate_ = std::move(delegate);
  }

  // --- Texts ---

  [[nodiscard]] const std::shared_ptr<UILabel>& titleLabel() const { return titleLabel_; }
  [[nodiscard]] const std::shared_ptr<UILabel>& messageLabel() const { return messageLabel_; }
  void setTitle(const std::optional<std::string>& title);
  void setMessage(const std::optional<std::string>& message);
  void setAttributedTitle(const std::optional<NSAttributedString>& title);
  void setAttributedMessage(const std::optional<NSAttributedString>& message);
  [[nodiscard]] const QavAlertViewAppearance& appearance() const { return appearance_; }
  void setAppearance(const QavAlertViewAppearance& appearance);

  // --- Buttons ---

  /// Which index each button has. What changes them after the alert was prepared has the buttons
  /// laid out anew.
  [[nodiscard]] const QavAlertViewButtons& buttons() const { return buttons_; }
  void setCancelButtonTitle(const std::optional<std::string>& title);
  int addButtonWithTitle(const std::string& title);
  [[nodiscard]] int cancelButtonIndex() const { return buttons_.cancelButtonIndex(); }
  void setCancelButtonIndex(int index);
  [[nodiscard]] int firstOtherButtonIndex() const { return buttons_.firstOtherButtonIndex(); }
  [[nodiscard]] int numberOfButtons() const { return buttons_.numberOfButtons(); }
  void setAlwaysShowsButtonsVertically(bool vertically);
  void setFirstOtherButtonEnabled(bool enabled);

  // --- Text fields and the app's content ---

  /// Makes new fields for the style, without text.
  void updateContentForStyle(QavAlertViewStyle style);
  [[nodiscard]] const std::vector<TextFieldRef>& textFields() const { return textFields_; }
  /// Null where there is none.
  [[nodiscard]] TextFieldRef textFieldAtIndex(int index) const;
  /// Called after each change of a field by the user.
  std::function<void()> textDidChange;
  /// Gives the first field the keyboard. True, also without a field.
  bool becomeFirstResponder();
  bool resignFirstResponder() override;
  /// Shown, centred, when there is anything in it.
  [[nodiscard]] const std::shared_ptr<QavIntrinsicallySizedView>& contentView() const {
    return customContentView_;
  }

  // --- Layout ---

  /// Arranges the elements that are there now.
  void prepareForShowing();
  /// As long as none is set, 270 points wide and 40 less high than the screen.
  [[nodiscard]] CGSize maximumSize() const;
  void setMaximumSize(CGSize size);

  [[nodiscard]] const std::shared_ptr<UIScrollView>& scrollView() const { return scrollView_; }
  [[nodiscard]] const UIViewRef& textFieldBackgroundView() const {
    return textFieldBackgroundView_;
  }
  [[nodiscard]] const UIViewRef& buttonTopSeparatorView() const { return buttonTopSeparatorView_; }
  [[nodiscard]] const std::shared_ptr<QavAlertViewButtonTable>& suggestedButtonTableView() const {
    return suggestedButtonTableView_;
  }
  [[nodiscard]] const std::shared_ptr<QavAlertViewButtonTable>& otherButtonsTableView() const {
    return otherButtonsTableView_;
  }

 private:
  QavAlertViewContentView() = default;
  [[nodiscard]] std::shared_ptr<QavAlertViewContentView> self();
  void makeElements();
  void elementsChanged();
  void measuresChanged();

  void fillTables();
  void styleRows();
  void didTapRow(bool inSuggestedTable, int row);
  [[nodiscard]] std::shared_ptr<QavAlertViewButtonRow> rowOfButton(int index) const;
  void addTextField(bool secure, const std::optional<std::string>& placeholder);

  [[nodiscard]] QavAlertViewElements elements() const;
  void hold(std::string_view format);
  void layOutLabels();
  void layOutTextFields();
  void layOutButtons();
  void layOutButtonsSideBySide();
  NSLayoutConstraintRef pin(const UIViewRef& view, NSLayoutAttribute attribute, double constant);
  [[nodiscard]] double heightOfLabels() const;
  [[nodiscard]] double heightOfFields() const;
  [[nodiscard]] double heightOfButtons() const;

  std::weak_ptr<QavAlertViewContentViewDelegate> delegate_;
  QavAlertViewAppearance appearance_;
  QavAlertViewButtons buttons_;
  bool firstOtherButtonEnabled_ = true;
  std::optional<CGSize> maximumSize_;
  bool prepared_ = false;

  std::shared_ptr<UIScrollView> scrollView_ = std::make_shared<UIScrollView>();
  std::shared_ptr<UILabel> titleLabel_ = std::make_shared<UILabel>();
  std::shared_ptr<UILabel> messageLabel_ = std::make_shared<UILabel>();
  UIViewRef textFieldBackgroundView_ = std::make_shared<UIView>();
  UIViewRef textFieldSeparatorView_ = std::make_shared<UIView>();
  std::vector<TextFieldRef> textFields_;
  std::shared_ptr<QavIntrinsicallySizedView> customContentView_ =
      std::make_shared<QavIntrinsicallySizedView>();
  UIViewRef buttonTopSeparatorView_ = std::make_shared<UIView>();
  UIViewRef buttonMiddleSeparatorView_ = std::make_shared<UIView>();
  std::shared_ptr<QavAlertViewButtonTable> otherButtonsTableView_ =
      std::make_shared<QavAlertViewButtonTable>();
  std::shared_ptr<QavAlertViewButtonTable> suggestedButtonTableView_ =
      std::make_shared<QavAlertViewButtonTable>();
  NSLayoutConstraintRef width_;
  NSLayoutConstraintRef scrollHeight_;
};

}  // namespace kindora
