// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A question or a message on a card above everything else.
//
//   const auto alert = QavAlertController::alertControllerWithTitle(
//       "Delete?", "For good.", QavAlertControllerStyle::alert);
//   alert->addAction(QavAlertAction::actionWithTitle("Keep", QavAlertActionStyle::cancel));
//   alert->addAction(QavAlertAction::actionWithTitle("Delete", QavAlertActionStyle::destructive,
//                                                    [](QavAlertAction&) { ... }));
//   alert->presentWithCompletion();
//
// An action's handler runs when the alert has gone. Actions, text fields, layout, style and content
// may be changed until the alert appears. Main thread only.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "alerts/card/QavAlertControllerView.h"
#include "alerts/card/QavAlertControllerViewDelegate.h"
#include "alerts/card/QavAlertControllerVisualStyle.h"
#include "alerts/legacy/QavAlertViewDelegate.h"
#include "alerts/qt/QavAlertContent.h"
#include "platform/NotificationCenter.h"
#include "platform/Subscription.h"
#include "toolkit/controllers/UIViewController.h"

namespace kindora {

class QavAlertController;
class QavAlertControllerTextFieldViewController;
class QavAlertControllerTransitioningDelegate;
class QavAlertView;

using QavAlertControllerRef = std::shared_ptr<QavAlertController>;

enum class QavAlertControllerStyle {
  actionSheet = 0,  ///< shown as an alert
  alert = 1,
  legacy = 2,  ///< shown by a QavAlertView in a window of its own
};

class QavAlertController final : public kindora::UIViewController,
                                 public QavAlertControllerViewDelegate,
                                 public QavAlertViewDelegate {
  Q_OBJECT

 public:
  using TextFieldConfiguration = std::function<void(UITextField& textField)>;

  [[nodiscard]] static QavAlertControllerRef alertControllerWithTitle(
      const std::optional<std::string>& title, const std::optional<std::string>& message,
      QavAlertControllerStyle preferredStyle);
  [[nodiscard]] static QavAlertControllerRef alertControllerWithAttributedTitle(
      const std::optional<NSAttributedString>& attributedTitle,
      const std::optional<NSAttributedString>& attributedMessage,
      QavAlertControllerStyle preferredStyle);
  ~QavAlertController() override;

  // --- What it says ---

  /// The attributed text, where there is one, is shown in place of the plain one.
  [[nodiscard]] const std::optional<std::string>& title() const { return content_.title; }
  void setTitle(const std::optional<std::string>& title);
  [[nodiscard]] const std::optional<std::string>& message() const { return content_.message; }
  void setMessage(const std::optional<std::string>& message);
  [[nodiscard]] const std::optional<NSAttributedString>& attributedTitle() const {
    return content_.attributedTitle;
  }
  void setAttributedTitle(const std::optional<NSAttributedString>& title);
  [[nodiscard]] const std::optional<NSAttributedString>& attributedMessage() const {
    return content_.attributedMessage;
  }
  void setAttributedMessage(const std::optional<NSAttributedString>& message);

  // --- What it holds ---

  /// A copy, in the order in which they were added, which is the order of the buttons.
  [[nodiscard]] std::vector<QavAlertActionRef> actions() const { return content_.actions; }
  void addAction(QavAlertActionRef action);
  /// A copy.
  [[nodiscard]] std::vector<std::shared_ptr<UITextField>> textFields() const {
    return content_.textFields;
  }
  /// Adds a field without autocorrection, in the visual style's font of that moment, and then has
  /// it configured.
  void addTextFieldWithConfigurationHandler(const TextFieldConfiguration& configurationHandler);
  /// Where callers put views of their own, between the texts and the buttons.
  [[nodiscard]] const std::shared_ptr<QavIntrinsicallySizedView>& contentView() const {
    return content_.view;
  }

  /// All of this.
  [[nodiscard]] const QavAlertContent& content() const { return content_; }

  // --- How it looks and behaves ---

  [[nodiscard]] QavAlertActionLayout actionLayout() const { return content_.actionLayout; }
  void setActionLayout(QavAlertActionLayout layout) { content_.actionLayout = layout; }
  [[nodiscard]] QavAlertControllerStyle preferredStyle() const { return preferredStyle_; }
  [[nodiscard]] const std::shared_ptr<QavAlertControllerVisualStyle>& visualStyle() const {
    return visualStyle_;
  }
  void setVisualStyle(std::shared_ptr<QavAlertControllerVisualStyle> style);
  /// May keep the alert open when an action was chosen; its handler does not run then.
  std::function<bool(QavAlertAction& action)> shouldDismissBlock;
  /// Told when the alert has gone from the screen, before the handler of the chosen action.
  std::function<void()> didDisappearHandler;

  // --- Showing it ---

  /// Whether a QavAlertView shows the alert: when its style asks for it, or the system has no
  /// presentations of their own.
  [[nodiscard]] bool usesLegacyAlert() const;
  /// Made at the first request and kept; null unless a legacy alert is used.
  [[nodiscard]] const std::shared_ptr<QavAlertView>& legacyAlertView();
  /// Shows the alert above the controller that is on top.
  void presentWithCompletion(Completion completion = {});
  void presentFromViewController(UIViewController& controller, Completion completionHandler = {});
  /// Nothing happens while nobody presents it.
  void dismissWithCompletion(Completion completion = {});

  /// Show an alert with one button, which closes it and may have no title, and return it.
  static QavAlertControllerRef showAlertControllerWithTitle(
      const std::optional<std::string>& title, const std::optional<std::string>& message);
  static QavAlertControllerRef showAlertControllerWithTitle(
      const std::optional<std::string>& title, const std::optional<std::string>& message,
      const std::optional<std::string>& actionTitle);
  static QavAlertControllerRef showAlertControllerWithTitle(
      const std::optional<std::string>& title, const std::optional<std::string>& message,
      const std::optional<std::string>& actionTitle, const UIViewRef& subview);

  /// The card.
  [[nodiscard]] const std::shared_ptr<QavAlertControllerView>& alert() const { return alert_; }
  /// True from the moment at which it begins to appear until it has appeared.
  [[nodiscard]] bool presentingAlert() const { return presentingAlert_; }

  // --- The controller's life ---

  [[nodiscard]] UIViewRef loadView() override;
  void viewWillAppear(bool animated) override;
  void viewDidAppear(bool animated) override;
  void viewDidDisappear(bool animated) override;
  void viewDidLayoutSubviews() override;
  /// Esc and the system's back choose the first cancel action; without one the alert stays.
  bool goBack() override;
  void alertControllerViewDidPerformAction(QavAlertControllerView& alertView,
                                           const QavAlertActionRef& didPerformAction) override;

 private:
  template <typename Controller, typename... Arguments>
  friend std::shared_ptr<Controller> makeViewController(Arguments&&... arguments);
  explicit QavAlertController(QavAlertControllerStyle style);

  void initWithTitle(const std::optional<std::string>& title,
                     const std::optional<std::string>& message);
  void initWithAttributedTitle(const std::optional<NSAttributedString>& title,
                               const std::optional<NSAttributedString>& message);
  void createAlert();
  void pushTitle();
  void pushMessage();
  void prepareAlert();
  void keyboardUpdate(const CGRect& endFrame);

  QavAlertContent content_;
  QavAlertControllerStyle preferredStyle_;
  std::shared_ptr<QavAlertControllerVisualStyle> visualStyle_;
  std::shared_ptr<QavAlertControllerView> alert_;
  std::shared_ptr<QavAlertView> legacyAlertView_;
  std::shared_ptr<QavAlertControllerTransitioningDelegate> transitioningDelegate_;
  Subscription keyboard_;
  bool isPrepared_ = false;
  bool didAssignFirstResponder_ = false;
  bool presentingAlert_ = false;
  bool isAnswered_ = false;  // on its way out, by an action
};

/// An alert view in place of the controller's card, which knows nothing of its veto; see
/// alertViewWithContent.
[[nodiscard]] std::shared_ptr<QavAlertView> alertViewWithAlertController(
    QavAlertController& controller);

}  // namespace kindora
