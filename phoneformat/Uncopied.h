// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <utility>

namespace kindora {

/// What an object has worked out about its own fields. A copy starts without, since what is copied
/// may be changed; a move takes it along.
template <typename Value>
class Uncopied final {
 public:
  Uncopied() = default;
  Uncopied(const Uncopied&) {}  // NOLINT(bugprone-copy-constructor-init): empty on purpose
  Uncopied& operator=(const Uncopied& other) {
    if (this != &other) value_ = Value();
    return *this;
  }
  Uncopied(Uncopied&& other) noexcept : value_(std::exchange(other.value_, Value())) {}
  Uncopied& operator=(Uncopied&& other) noexcept {
    value_ = std::exchange(other.value_, Value());
    return *this;
  }
  ~Uncopied() = default;

  Value* operator->() { return &value_; }
  const Value* operator->() const { return &value_; }

 private:
  Value value_;
};

}  // namespace kindora
