// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// One thing that the user can answer to an alert: a button.
//
//   const auto keep = QavAlertAction::actionWithTitle("Keep", QavAlertActionStyle::cancel);
//   const auto watch = keep->observeEnabled([](QavAlertAction& action) { ... });
//   keep->setEnabled(false);
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/NSAttributedString.h"
#include "platform/ObserverList.h"

namespace kindora {

class QavAlertAction;

using QavAlertActionRef = std::shared_ptr<QavAlertAction>;

enum class QavAlertActionStyle {
  standard = 0,
  cancel = 1,       ///< bold
  destructive = 2,  ///< red
};

class QavAlertAction final : public std::enable_shared_from_this<QavAlertAction> {
 public:
  /// Told the action that was chosen; may be empty.
  using Handler = std::function<void(QavAlertAction& action)>;
  using EnabledObserver = std::function<void(QavAlertAction& action)>;

  [[nodiscard]] static QavAlertActionRef actionWithTitle(const std::optional<std::string>& title,
                                                         QavAlertActionStyle style,
                                                         Handler handler = {});
  [[nodiscard]] static QavAlertActionRef actionWithAttributedTitle(
      const std::optional<NSAttributedString>& attributedTitle, QavAlertActionStyle style,
      Handler handler = {});
  /// A new action with the title, style and handler of this one; always enabled, and without an
  /// attributed title.
  [[nodiscard]] QavAlertActionRef copy() const;

  [[nodiscard]] const std::optional<std::string>& title() const { return title_; }
  /// An action has at most one of both titles.
  [[nodiscard]] const std::optional<NSAttributedString>& attributedTitle() const {
    return attributedTitle_;
  }
  [[nodiscard]] QavAlertActionStyle style() const { return style_; }
  [[nodiscard]] const Handler& handler() const { return handler_; }

  /// True at first.
  [[nodiscard]] bool isEnabled() const { return enabled_; }
  void setEnabled(bool enabled);
  /// Calls the observer after each change, not now.
  [[nodiscard]] Subscription observeEnabled(EnabledObserver observer) {
    return observers_.add(std::move(observer));
  }

 private:
  QavAlertAction(QavAlertActionStyle style, Handler handler);

  std::optional<std::string> title_;
  std::optional<NSAttributedString> attributedTitle_;
  QavAlertActionStyle style_;
  Handler handler_;
  bool enabled_ = true;
  ObserverList<QavAlertAction&> observers_;
};

}  // namespace kindora
