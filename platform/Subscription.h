// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <utility>

namespace kindora {

/// Stands for somebody who wants to hear of something: ends it when it goes. It may outlive what it
/// hears of. Empty, it stands for nobody.
class [[nodiscard]] Subscription final {
 public:
  Subscription() = default;
  /// The observer, which nobody else holds.
  explicit Subscription(std::shared_ptr<const void> observer) : observer_(std::move(observer)) {}
  Subscription(Subscription&& other) noexcept = default;
  Subscription& operator=(Subscription&& other) noexcept = default;
  ~Subscription() = default;

  void reset() { observer_.reset(); }

 private:
  std::shared_ptr<const void> observer_;
};

}  // namespace kindora
