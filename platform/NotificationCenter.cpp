// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/NotificationCenter.h"

#include <utility>

namespace kindora {

NotificationCenter::NotificationCenter()
    : names_(std::make_shared<std::map<std::string, Observers, std::less<>>>()) {}

NotificationCenter::~NotificationCenter() = default;

NotificationCenter& NotificationCenter::defaultCenter() {
  static NotificationCenter& center = *new NotificationCenter;  // outlives all observers
  return center;
}

NotificationCenter::Subscription NotificationCenter::observe(std::string_view name,
                                                             Observer observer) {
  const int id = next_++;
  (*names_)[std::string(name)][id] = std::make_shared<const Observer>(std::move(observer));
  Subscription subscription;
  subscription.end_ = [names = std::weak_ptr(names_), name = std::string(name), id] {
    const auto all = names.lock();
    if (!all) return;
    const auto found = all->find(name);
    found->second.erase(id);
    if (found->second.empty()) all->erase(found);
  };
  return subscription;
}

void NotificationCenter::post(std::string_view name, const std::any& info) {
  const auto names = names_;  // an observer may end the centre
  const auto found = names->find(name);
  if (found == names->end()) return;
  const Observers observers = found->second;
  for (const auto& [id, observer] : observers) {
    const auto now = names->find(name);
    if (now != names->end() && now->second.contains(id)) (*observer)(info);
  }
}

NotificationCenter::Subscription::Subscription(Subscription&& other) noexcept
    : end_(std::exchange(other.end_, nullptr)) {}

NotificationCenter::Subscription& NotificationCenter::Subscription::operator=(
    Subscription&& other) noexcept {
  if (this != &other) {
    cancel();
    end_ = std::exchange(other.end_, nullptr);
  }
  return *this;
}

NotificationCenter::Subscription::~Subscription() { cancel(); }

void NotificationCenter::Subscription::cancel() {
  if (const auto end = std::exchange(end_, nullptr)) end();
}

}  // namespace kindora
