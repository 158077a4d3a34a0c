// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <any>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "platform/ObserverList.h"

namespace kindora {

/// Passes on what happens to whoever wants to hear of it, by name. Main thread only.
///
///     subscription_ = center.observe("resized", [this](const std::any& info) {
///       take(std::any_cast<CGSize>(info));
///     });
///     center.post("resized", std::any(size));
class NotificationCenter {
 public:
  using Observer = std::function<void(const std::any& info)>;

  NotificationCenter() = default;
  ~NotificationCenter() = default;
  NotificationCenter(const NotificationCenter&) = delete;
  NotificationCenter& operator=(const NotificationCenter&) = delete;

  [[nodiscard]] static NotificationCenter& defaultCenter();

  /// Calls the observer at each later post of that name until the subscription goes.
  [[nodiscard]] Subscription observe(std::string_view name, Observer observer);
  /// Calls the observers of the name, in the order in which they came. One that begins to observe
  /// meanwhile is not called, nor one that has ended.
  void post(std::string_view name, const std::any& info = {});

 private:
  std::map<std::string, ObserverList<const std::any&>, std::less<>> names_;
};

}  // namespace kindora
