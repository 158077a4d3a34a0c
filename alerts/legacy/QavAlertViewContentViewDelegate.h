// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora {

class QavAlertViewContentView;

/// Hears which buttons of an alert's content were tapped.
class QavAlertViewContentViewDelegate {
 public:
  virtual ~QavAlertViewContentViewDelegate() = default;
  virtual void alertContentViewDidTapButtonAtIndex(QavAlertViewContentView& contentView,
                                                   int buttonIndex) = 0;
  /// Whether the tapped button goes back to its usual look.
  virtual bool alertContentViewShouldDeselectButtonAtIndex(QavAlertViewContentView& contentView,
                                                           int buttonIndex) = 0;
};

}  // namespace kindora
