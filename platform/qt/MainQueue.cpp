// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/MainQueue.h"

#include <algorithm>
#include <limits>

namespace kindora {

using std::chrono::milliseconds;
using std::chrono::nanoseconds;

MainQueue::MainQueue() : wakeup_([this] { runDue(); }) {
  timer_.setSingleShot(true);
  timer_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&timer_, &QTimer::timeout, &wakeup_, [this] { runDue(); });
}

void MainQueue::async(Closure closure) { after(nanoseconds(0), std::move(closure)); }

void MainQueue::after(nanoseconds delay, Closure closure) {
  bool post = false;
  {
    const std::lock_guard lock(mutex_);
    // Read under the lock, so that what is given later never gets the earlier deadline.
    const Clock::time_point now = Clock::now();
    // The longest delay must not wrap round into the past.
    const nanoseconds room = Clock::time_point::max() - now;
    waiting_.emplace(Order{now + std::clamp(delay, nanoseconds(0), room), given_++},
                     std::move(closure));
    post = !std::exchange(wakeupPosted_, true);
  }
  // Also for a delay: the timer may only be set on its own thread.
  if (post) wakeup_.post();
}

void MainQueue::runDue() {
  std::unique_lock lock(mutex_);
  wakeupPosted_ = false;
  if (running_) return;
  running_ = true;
  // What the closures add waits for the next turn of the event loop, so that it is never starved.
  const Order end{Clock::now(), given_};
  while (!waiting_.empty() && waiting_.begin()->first < end) {
    Closure closure = std::move(waiting_.begin()->second);
    waiting_.erase(waiting_.begin());
    lock.unlock();
    closure();
    closure = nullptr;  // what it captured may use the queue while it goes
    lock.lock();
  }
  running_ = false;
  waitForNext();
}

// Called with the lock held.
void MainQueue::waitForNext() {
  if (waiting_.empty()) {
    timer_.stop();
    return;
  }
  constexpr milliseconds kLongest(std::numeric_limits<int>::max());
  const nanoseconds rest = waiting_.begin()->first.first - Clock::now();
  if (rest > nanoseconds(0)) {
    timer_.start(std::min(std::chrono::ceil<milliseconds>(rest), kLongest));
    return;
  }
  timer_.stop();
  if (!std::exchange(wakeupPosted_, true)) wakeup_.post();
}

}  // namespace kindora
