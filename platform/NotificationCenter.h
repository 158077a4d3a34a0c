// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <any>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

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

  /// Ends what it stands for when it goes. May outlive the centre.
  class Subscription {
   public:
    Subscription() = default;
    Subscription(Subscription&& other) noexcept;
    Subscription& operator=(Subscription&& other) noexcept;
    ~Subscription();

   private:
    friend class NotificationCenter;
    void cancel();
    std::function<void()> end_;
  };

  NotificationCenter();
  ~NotificationCenter();
  NotificationCenter(const NotificationCenter&) = delete;
  NotificationCenter& operator=(const NotificationCenter&) = delete;

  [[nodiscard]] static NotificationCenter& defaultCenter();

  /// Calls the observer at each later post of that name until the subscription goes.
  [[nodiscard]] Subscription observe(std::string_view name, Observer observer);
  /// Calls the observers of the name, in the order in which they came. One that begins to observe
  /// meanwhile is not called, nor one that has ended.
  void post(std::string_view name, const std::any& info = {});

 private:
  using Observers = std::map<int, std::shared_ptr<const Observer>>;

  std::shared_ptr<std::map<std::string, Observers, std::less<>>> names_;
  int next_ = 1;
};

}  // namespace kindora
