// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/NotificationCenter.h"

#include <utility>

namespace kindora {

NotificationCenter& NotificationCenter::defaultCenter() {
  static NotificationCenter& center = *new NotificationCenter;  // outlives all observers
  return center;
}

Subscription NotificationCenter::observe(std::string_view name, Observer observer) {
  return names_[std::string(name)].add(std::move(observer));
}

void NotificationCenter::post(std::string_view name, const std::any& info) {
  const auto found = names_.find(name);
  if (found != names_.end()) found->second.notify(info);
}

}  // namespace kindora
