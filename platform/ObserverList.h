// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "platform/Subscription.h"

namespace kindora {

/// Those who hear of something, in the order in which they came. A copy tells the same ones. One
/// thread only.
///
///     ObserverList<int> observers;
///     const Subscription hearing = observers.add([&](int value) { heard = value; });
///     observers.notify(3);
template <typename... Args>
class ObserverList final {
 public:
  using Observer = std::function<void(Args...)>;

  /// Calls the observer at each later notify() until the subscription goes.
  [[nodiscard]] Subscription add(Observer observer) {
    std::erase_if(observers_, [](const auto& known) { return known.expired(); });
    auto held = std::make_shared<const Observer>(std::move(observer));
    observers_.push_back(held);
    return Subscription(std::move(held));
  }

  /// An observer may end subscriptions, its own too, and begin others, and may end the list: who
  /// has ended is not called any more, who has begun is called the next time. What the arguments
  /// refer to must outlive the call.
  void notify(Args... args) const {
    const auto observers = observers_;
    for (const auto& observer : observers) {
      if (const auto alive = observer.lock()) (*alive)(args...);
    }
  }

 private:
  std::vector<std::weak_ptr<const Observer>> observers_;
};

}  // namespace kindora
