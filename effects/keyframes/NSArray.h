// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// An immutable list of values. Reading it changes nothing, so that any number of threads may read.
#pragma once

#include <cstddef>
#include <iterator>
#include <memory>
#include <vector>

#include "effects/keyframes/NSValue.h"

namespace kindora {

class NSArray;
using NSArrayRef = std::shared_ptr<const NSArray>;

class NSArray {
 public:
  /// Goes over the elements in order, each fetched when it is looked at.
  class Iterator {
   public:
    using iterator_category = std::input_iterator_tag;
    using value_type = NSValue;
    using difference_type = std::ptrdiff_t;
    using pointer = void;
    using reference = NSValue;

    Iterator(const NSArray& array, std::size_t index) : array_(&array), index_(index) {}
    NSValue operator*() const { return array_->objectAtIndex(index_); }
    Iterator& operator++() {
      ++index_;
      return *this;
    }
    friend bool operator==(const Iterator&, const Iterator&) = default;

   private:
    const NSArray* array_;
    std::size_t index_;
  };

  using value_type = NSValue;
  using const_iterator = Iterator;

  /// An array that holds the objects. An index past its end stops the program.
  [[nodiscard]] static NSArrayRef arrayWithObjects(std::vector<NSValue> objects);

  virtual ~NSArray() = default;
  NSArray(const NSArray&) = delete;
  NSArray& operator=(const NSArray&) = delete;

  [[nodiscard]] virtual std::size_t count() const = 0;
  [[nodiscard]] virtual NSValue objectAtIndex(std::size_t index) const = 0;
  /// An array of the same class and elements.
  [[nodiscard]] virtual NSArrayRef copy() const = 0;

  [[nodiscard]] Iterator begin() const { return {*this, 0}; }
  [[nodiscard]] Iterator end() const { return {*this, count()}; }

 protected:
  NSArray() = default;
};

}  // namespace kindora
