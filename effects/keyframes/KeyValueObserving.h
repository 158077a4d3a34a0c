// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Tells observers of a key that its value has changed, also when only a key that it depends on has.
//
// Observers of one key are told in the order in which they came. A copy starts without observers.
// One thread only.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "platform/ObserverList.h"

namespace kindora {

class KeyValueObserving {
 public:
  using Observer = std::function<void()>;
  using Keys = std::set<std::string_view>;

  virtual ~KeyValueObserving() = default;
  KeyValueObserving& operator=(const KeyValueObserving&) = delete;

  /// The keys whose change alone changes the value of this key; what those depend on counts too but
  /// is not listed.
  [[nodiscard]] virtual Keys keyPathsForValuesAffectingValueForKey(std::string_view key) const;

  /// Calls the observer after each change of the key, also to an equal value.
  [[nodiscard]] Subscription addObserver(std::string_view key, Observer observer);

 protected:
  KeyValueObserving() = default;
  KeyValueObserving(const KeyValueObserving& /*other*/) {}

  void didChangeValueForKey(std::string_view key) const;

  /// Sets the field and reports the change of its key.
  template <typename T>
  void change(T& field, T value, std::string_view key) {
    field = std::move(value);
    didChangeValueForKey(key);
  }

 private:
  [[nodiscard]] bool dependsOn(std::string_view key, std::string_view changed) const;

  std::map<std::string, ObserverList<>, std::less<>> observers_;  // by key
};

}  // namespace kindora
