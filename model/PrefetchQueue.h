// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <atomic>
#include <cstddef>
#include <deque>

#include "model/User.h"

namespace kindora {

/// Users fetched ahead, first in, first out, without a lock: any thread appends and asks for the
/// size, the main queue alone takes.
class PrefetchQueue final {
 public:
  PrefetchQueue() = default;
  PrefetchQueue(const PrefetchQueue&) = delete;
  PrefetchQueue& operator=(const PrefetchQueue&) = delete;
  ~PrefetchQueue();

  /// The one queue of the process, made empty at the first call.
  [[nodiscard]] static PrefetchQueue& sharedInstance();

  void append(UserRef user);
  [[nodiscard]] std::size_t size() const { return size_.load(std::memory_order_acquire); }
  /// Takes the first user; none when the queue is empty.
  [[nodiscard]] UserRef takeFirst();

 private:
  struct Node {
    UserRef user;
    Node* next = nullptr;
  };

  void collectAppended();

  // What was appended since the last take, the latest first.
  std::atomic<Node*> appended_ = nullptr;
  // Counted up only once the user can be taken, so that whoever counts down finds one.
  std::atomic<std::size_t> size_ = 0;
  // What the taking side has put in order.
  std::deque<UserRef> ordered_;
};

}  // namespace kindora
