// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/KeyValueObserving.h"

#include <algorithm>
#include <vector>

namespace kindora {

KeyValueObserving::Keys KeyValueObserving::keyPathsForValuesAffectingValueForKey(
    std::string_view /*key*/) const {
  return {};
}

Subscription KeyValueObserving::addObserver(std::string_view key, Observer observer) {
  return observers_[std::string(key)].add(std::move(observer));
}

void KeyValueObserving::didChangeValueForKey(std::string_view key) const {
  // An observer may begin to observe another key, and may let go of the observed.
  std::vector<ObserverList<>> concerned;
  for (const auto& [observed, observers] : observers_) {
    if (dependsOn(observed, key)) concerned.push_back(observers);
  }
  for (const ObserverList<>& observers : concerned) observers.notify();
}

bool KeyValueObserving::dependsOn(std::string_view key, std::string_view changed) const {
  if (key == changed) return true;
  const Keys keys = keyPathsForValuesAffectingValueForKey(key);
  return std::ranges::any_of(
      keys, [&](std::string_view affecting) { return dependsOn(affecting, changed); });
}

}  // namespace kindora
