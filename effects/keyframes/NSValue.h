// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What an animated property can be: a number, a geometry value, some other object, or nil.
//
// A value is small enough to be handed around by copy; numbers and geometry never allocate. A
// getter of another kind than the value's answers zeros.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>
#include <variant>

#include "platform/CATransform3D.h"
#include "platform/Geometry.h"

namespace kindora {

/// Type encodings of the geometry values.
inline constexpr std::string_view kCATransform3DEncoding = "{CATransform3D=dddddddddddddddd}";
inline constexpr std::string_view kCGRectEncoding = "{CGRect={CGPoint=dd}{CGSize=dd}}";
inline constexpr std::string_view kCGPointEncoding = "{CGPoint=dd}";
inline constexpr std::string_view kCGSizeEncoding = "{CGSize=dd}";

class NSValue final {
 public:
  /// An object of any class, for instance a colour; two are the same when they are one object.
  using Object = std::shared_ptr<const void>;

  /// Nil.
  NSValue() = default;

  [[nodiscard]] static NSValue numberWithDouble(double value) { return NSValue(value); }
  [[nodiscard]] static NSValue numberWithInteger(std::int64_t value) { return NSValue(value); }
  [[nodiscard]] static NSValue numberWithBool(bool value) { return NSValue(value); }
  [[nodiscard]] static NSValue valueWithCGPoint(CGPoint value) { return NSValue(value); }
  [[nodiscard]] static NSValue valueWithCGSize(CGSize value) { return NSValue(value); }
  [[nodiscard]] static NSValue valueWithCGRect(const CGRect& value) { return NSValue(value); }
  [[nodiscard]] static NSValue valueWithCATransform3D(const CATransform3D& value) {
    return NSValue(value);
  }
  /// A null pointer makes nil.
  [[nodiscard]] static NSValue valueWithObject(Object object) {
    return object ? NSValue(std::move(object)) : NSValue();
  }

  [[nodiscard]] bool isNil() const { return std::holds_alternative<std::monostate>(value_); }
  /// Whether it is a number of any type.
  [[nodiscard]] bool isNumber() const;
  /// The encoding of the value's type; empty for nil.
  [[nodiscard]] std::string_view objCType() const;

  /// Any number as a double.
  [[nodiscard]] double doubleValue() const;
  [[nodiscard]] CGPoint CGPointValue() const { return valueOr<CGPoint>(); }
  [[nodiscard]] CGSize CGSizeValue() const { return valueOr<CGSize>(); }
  [[nodiscard]] CGRect CGRectValue() const { return valueOr<CGRect>(); }
  [[nodiscard]] CATransform3D CATransform3DValue() const { return valueOr<CATransform3D>(); }
  [[nodiscard]] Object object() const { return valueOr<Object>(); }

  /// Same kind and same value; objects by identity.
  friend bool operator==(const NSValue&, const NSValue&) = default;

 private:
  using Storage = std::variant<std::monostate, double, std::int64_t, bool, CGPoint, CGSize, CGRect,
                               CATransform3D, Object>;

  template <typename T>
  explicit NSValue(T value) : value_(std::in_place_type<T>, std::move(value)) {}

  template <typename T>
  [[nodiscard]] T valueOr() const {
    const T* value = std::get_if<T>(&value_);
    return value != nullptr ? *value : T{};
  }

  Storage value_;
};

}  // namespace kindora
