// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Tells observers of a key that its value has changed, also when only a key that it depends on has.
//
// A copy starts without observers. One thread only.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace kindora {

class KeyValueObserving {
 public:
  using Observer = std::function<void()>;
  using Keys = std::set<std::string_view>;

 private:
  struct Entry {
    std::string key;
    Observer observer;
  };
  using Entries = std::map<int, Entry>;

 public:
  /// Observes until it is destroyed; may outlive the observed.
  class Subscription {
   public:
    Subscription() = default;
    Subscription(std::weak_ptr<Entries> entries, int id) : entries_(std::move(entries)), id_(id) {}
    Subscription(Subscription&&) = default;
    Subscription& operator=(Subscription&& other) noexcept;
    ~Subscription() { cancel(); }

   private:
    void cancel();

    std::weak_ptr<Entries> entries_;
    int id_ = 0;
  };

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

  std::shared_ptr<Entries> entries_;  // made when somebody observes
  int nextId_ = 1;
};

}  // namespace kindora
