// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/KeyValueObserving.h"

#include <algorithm>

namespace kindora {

KeyValueObserving::Subscription& KeyValueObserving::Subscription::operator=(
    Subscription&& other) noexcept {
  if (this != &other) {
    cancel();
    entries_ = std::move(other.entries_);
    id_ = other.id_;
  }
  return *this;
}

void KeyValueObserving::Subscription::cancel() {
  if (const auto entries = entries_.lock()) entries->erase(id_);
}

KeyValueObserving::Keys KeyValueObserving::keyPathsForValuesAffectingValueForKey(
    std::string_view /*key*/) const {
  return {};
}

KeyValueObserving::Subscription KeyValueObserving::addObserver(std::string_view key,
                                                               Observer observer) {
  if (!entries_) entries_ = std::make_shared<Entries>();
  const int id = nextId_++;
  entries_->emplace(id, Entry{std::string(key), std::move(observer)});
  return {entries_, id};
}

void KeyValueObserving::didChangeValueForKey(std::string_view key) const {
  if (!entries_) return;
  // An observer may add and remove observers, and may let go of the observed.
  const std::shared_ptr<Entries> entries = entries_;
  Entries concerned;
  for (const auto& [id, entry] : *entries) {
    if (dependsOn(entry.key, key)) concerned.emplace(id, entry);
  }
  for (const auto& [id, entry] : concerned) {
    if (entries->contains(id)) entry.observer();
  }
}

bool KeyValueObserving::dependsOn(std::string_view key, std::string_view changed) const {
  if (key == changed) return true;
  const Keys keys = keyPathsForValuesAffectingValueForKey(key);
  return std::ranges::any_of(
      keys, [&](std::string_view affecting) { return dependsOn(affecting, changed); });
}

}  // namespace kindora
