// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <functional>

namespace kindora {

/// A serial queue of closures. Closures given to one queue never run at the same time; none runs
/// inside the call that gives it. Both operations may be called from any thread.
class DispatchQueue {
 public:
  using Closure = std::function<void()>;

  virtual ~DispatchQueue() = default;
  /// Runs the closure as soon as possible, after those given before.
  virtual void async(Closure closure) = 0;
  /// Runs the closure once, when the delay is over; earlier deadlines first, equal ones in the
  /// order given. A delay of 0 or less is over at once.
  virtual void after(std::chrono::nanoseconds delay, Closure closure) = 0;
};

}  // namespace kindora
