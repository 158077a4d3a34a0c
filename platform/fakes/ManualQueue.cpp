// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/fakes/ManualQueue.h"

#include <algorithm>

#include "platform/FatalError.h"

namespace kindora {

using std::chrono::nanoseconds;

void ManualQueue::async(Closure closure) { after(nanoseconds(0), std::move(closure)); }

void ManualQueue::after(nanoseconds delay, Closure closure) {
  const std::lock_guard lock(mutex_);
  // The longest delay must not wrap round into the past.
  const nanoseconds room = nanoseconds::max() - now_;
  const nanoseconds deadline = now_ + std::clamp(delay, nanoseconds(0), room);
  waiting_.emplace(Order{deadline, given_++}, std::move(closure));
}

void ManualQueue::advance(nanoseconds duration) {
  std::unique_lock lock(mutex_);
  if (running_) fatalError("a closure of the manual queue advanced the queue");
  running_ = true;
  const nanoseconds end = now_ + duration;
  while (!waiting_.empty() && waiting_.begin()->first.first <= end) {
    now_ = waiting_.begin()->first.first;
    Closure closure = std::move(waiting_.begin()->second);
    waiting_.erase(waiting_.begin());
    lock.unlock();
    closure();
    closure = nullptr;  // what it captured may use the queue while it goes
    lock.lock();
  }
  now_ = end;
  running_ = false;
}

nanoseconds ManualQueue::now() const {
  const std::lock_guard lock(mutex_);
  return now_;
}

std::size_t ManualQueue::pendingCount() const {
  const std::lock_guard lock(mutex_);
  return waiting_.size();
}

}  // namespace kindora
