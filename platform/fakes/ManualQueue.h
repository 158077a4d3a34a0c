// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <map>
#include <mutex>
#include <utility>

#include "platform/services/DispatchQueue.h"

namespace kindora {

/// A queue whose clock starts at 0 and moves only when told. Closures run on the thread that moves
/// it.
///
///     ManualQueue queue;
///     queue.after(std::chrono::seconds(2), closure);
///     queue.advance(std::chrono::seconds(2));  // runs the closure
class ManualQueue final : public DispatchQueue {
 public:
  void async(Closure closure) override;
  void after(std::chrono::nanoseconds delay, Closure closure) override;

  /// Moves the clock by the duration (0 or more) and runs all that falls due on the way, in the
  /// order of the deadlines and each at its own deadline, with what these closures add in turn.
  /// Stops when called from one of them.
  void advance(std::chrono::nanoseconds duration);
  /// Runs what is due now, with what it adds for now in turn.
  void runPending() { advance(std::chrono::nanoseconds(0)); }

  /// The time passed since the queue was made.
  [[nodiscard]] std::chrono::nanoseconds now() const;
  /// How many closures still wait.
  [[nodiscard]] std::size_t pendingCount() const;

 private:
  using Order = std::pair<std::chrono::nanoseconds, std::uint64_t>;

  mutable std::mutex mutex_;
  std::chrono::nanoseconds now_{0};
  std::uint64_t given_ = 0;
  std::map<Order, Closure> waiting_;
  bool running_ = false;
};

}  // namespace kindora
