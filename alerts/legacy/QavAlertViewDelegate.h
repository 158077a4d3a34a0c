// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>

namespace kindora {

class QavAlertView;

/// Hears what happens to alerts and may decide. Every operation is optional: one that is not
/// overridden answers none, and then the alert's handler of the same purpose is asked, or the usual
/// thing happens. What is only told is told to the delegate and to the handler, in this order.
class QavAlertViewDelegate {
 public:
  virtual ~QavAlertViewDelegate() = default;

  /// Asked when the alert is shown and after every change of a text field.
  virtual std::optional<bool> alertViewShouldEnableFirstOtherButton(QavAlertView& /*alertView*/) {
    return std::nullopt;
  }
  virtual std::optional<bool> alertViewShouldDismissWithButtonIndex(QavAlertView& /*alertView*/,
                                                                    int /*buttonIndex*/) {
    return std::nullopt;
  }
  /// Whether a tapped button goes back to its usual look.
  virtual std::optional<bool> alertViewShouldDeselectButtonAtIndex(QavAlertView& /*alertView*/,
                                                                   int /*buttonIndex*/) {
    return std::nullopt;
  }

  virtual void alertViewClickedButtonAtIndex(QavAlertView& /*alertView*/, int /*buttonIndex*/) {}
  virtual void willPresentAlertView(QavAlertView& /*alertView*/) {}
  /// Also when the alert comes back after one that covered it.
  virtual void didPresentAlertView(QavAlertView& /*alertView*/) {}
  virtual void alertViewWillDismissWithButtonIndex(QavAlertView& /*alertView*/,
                                                   int /*buttonIndex*/) {}
  virtual void alertViewDidDismissWithButtonIndex(QavAlertView& /*alertView*/,
                                                  int /*buttonIndex*/) {}
};

}  // namespace kindora
