// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>

namespace kindora {

class QavAlertView;

/// The window in which alerts are shown, above everything else and one at a time.
class QavAlertWindow {
 public:
  virtual ~QavAlertWindow() = default;
  /// Shows the window in front of those of its level and gives it the keyboard.
  virtual void makeKeyAndVisible() = 0;
  /// Shows the new alert in place of the old one; either may be null, and then nothing comes or
  /// goes. The completion is called once, when the old alert has left its superview; without
  /// animation and without a new alert that is before this returns. It may release the window, and
  /// may have another one made and shown before it returns.
  virtual void replaceAlert(std::shared_ptr<QavAlertView> oldAlert,
                            std::shared_ptr<QavAlertView> withAlert, bool animated,
                            std::function<void()> completion) = 0;
};

}  // namespace kindora
