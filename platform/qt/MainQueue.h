// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTimer>
#include <chrono>
#include <cstdint>
#include <map>
#include <mutex>
#include <utility>

#include "platform/qt/Wakeup.h"
#include "platform/services/DispatchQueue.h"

namespace kindora {

/// The main queue on Qt's event loop. Make it on the main thread, after the application object.
///
/// Delays keep their nanoseconds, so that two which differ by less than a millisecond still run in
/// order. One timer waits for the earliest deadline, and none when nothing is delayed. While a
/// closure runs an event loop of its own, the other closures wait.
class MainQueue final : public DispatchQueue {
 public:
  MainQueue();

  void async(Closure closure) override;
  void after(std::chrono::nanoseconds delay, Closure closure) override;

 private:
  using Clock = std::chrono::steady_clock;
  using Order = std::pair<Clock::time_point, std::uint64_t>;

  void runDue();
  void waitForNext();

  std::mutex mutex_;
  std::map<Order, Closure> waiting_;
  std::uint64_t given_ = 0;
  bool wakeupPosted_ = false;

  bool running_ = false;
  QTimer timer_;
  Wakeup wakeup_;
};

}  // namespace kindora
