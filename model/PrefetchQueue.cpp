// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "model/PrefetchQueue.h"

#include <memory>
#include <utility>

namespace kindora {

PrefetchQueue::~PrefetchQueue() { collectAppended(); }

PrefetchQueue& PrefetchQueue::sharedInstance() {
  // Never destroyed, so that a reply which arrives while the program ends still finds it.
  static PrefetchQueue& instance = *new PrefetchQueue;
  return instance;
}

void PrefetchQueue::append(UserRef user) {
  auto* node = new Node{std::move(user), appended_.load(std::memory_order_relaxed)};
  while (!appended_.compare_exchange_weak(node->next, node, std::memory_order_release,
                                          std::memory_order_relaxed)) {
  }
  size_.fetch_add(1, std::memory_order_release);
}

UserRef PrefetchQueue::takeFirst() {
  if (size() == 0) return nullptr;
  if (ordered_.empty()) collectAppended();
  UserRef user = std::move(ordered_.front());
  ordered_.pop_front();
  size_.fetch_sub(1, std::memory_order_release);
  return user;
}

void PrefetchQueue::collectAppended() {
  Node* node = appended_.exchange(nullptr, std::memory_order_acquire);
  while (node != nullptr) {
    const std::unique_ptr<Node> owned(node);
    ordered_.push_front(std::move(owned->user));
    node = owned->next;
  }
}

}  // namespace kindora
