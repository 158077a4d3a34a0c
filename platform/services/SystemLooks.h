// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include "platform/Subscription.h"

namespace kindora {

/// How the user wants every program to look.
struct Looks {
  bool dark = false;
  bool highContrast = false;
  bool reducedMotion = false;
  double textScale = 1;  ///< how much larger texts are than usual, 1 to 2
  friend bool operator==(const Looks&, const Looks&) = default;
};

/// Tells the looks that are set for the whole system.
class SystemLooks {
 public:
  virtual ~SystemLooks() = default;
  /// Answers at once: what is not known yet has its default, and is told of once it is known.
  [[nodiscard]] virtual const Looks& looks() const = 0;
  /// Calls the observer on the main thread after each change until the subscription goes.
  [[nodiscard]] virtual Subscription observe(std::function<void()> observer) = 0;
};

}  // namespace kindora
