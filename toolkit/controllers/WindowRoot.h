// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>

namespace kindora {

class UIWindow;

/// The one thing that a window tells the controller at its root: that it is the root there.
class WindowRoot {
 protected:
  WindowRoot() = default;
  ~WindowRoot() = default;
  /// Null when the controller is no window's root.
  [[nodiscard]] UIWindow* ownWindow() const;

 private:
  friend class UIWindow;

  QPointer<UIWindow> window_;
};

}  // namespace kindora
