// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Fractions without rounding, as far as 127 bits reach.
#pragma once

#include <cstdint>
#include <stdexcept>

namespace kindora::layout {

/// Thrown where a fraction would need more bits.
struct TooLarge : std::overflow_error {
  TooLarge() : std::overflow_error("a fraction of more than 127 bits") {}
};

class Rational final {
 public:
  Rational() = default;
  Rational(std::int64_t number) : over_(number) {}  // NOLINT(google-explicit-constructor)
  Rational(std::int64_t over, std::int64_t under) : over_(over), under_(under) { reduce(); }

  [[nodiscard]] int sign() const { return over_ > 0 ? 1 : over_ < 0 ? -1 : 0; }
  [[nodiscard]] double asDouble() const {
    return static_cast<double>(static_cast<long double>(over_) / static_cast<long double>(under_));
  }

  Rational operator-() const {
    Rational result = *this;
    result.over_ = -over_;
    return result;
  }
  friend Rational operator+(const Rational& a, const Rational& b) {
    const Wide common = divisor(a.under_, b.under_);
    Rational result;
    result.over_ = sum(product(a.over_, b.under_ / common), product(b.over_, a.under_ / common));
    result.under_ = product(a.under_, b.under_ / common);
    result.reduce();
    return result;
  }
  friend Rational operator-(const Rational& a, const Rational& b) { return a + -b; }
  friend Rational operator*(const Rational& a, const Rational& b) {
    const Wide left = divisor(a.over_, b.under_);
    const Wide right = divisor(b.over_, a.under_);
    Rational result;
    result.over_ = product(a.over_ / left, b.over_ / right);
    result.under_ = product(a.under_ / right, b.under_ / left);
    return result;
  }
  friend Rational operator/(const Rational& a, const Rational& b) {
    Rational turned;
    turned.over_ = b.sign() < 0 ? -b.under_ : b.under_;
    turned.under_ = b.sign() < 0 ? -b.over_ : b.over_;
    return a * turned;
  }
  friend bool operator==(const Rational&, const Rational&) = default;
  friend bool operator<(const Rational& a, const Rational& b) { return (a - b).sign() < 0; }

 private:
  __extension__ using Wide = __int128;

  static Wide divisor(Wide a, Wide b) {
    if (a < 0) a = -a;
    while (b != 0) {
      const Wide rest = a % b;
      a = b;
      b = rest;
    }
    return a < 0 ? -a : a == 0 ? 1 : a;
  }
  static Wide product(Wide a, Wide b) {
    Wide result = 0;
    if (__builtin_mul_overflow(a, b, &result)) throw TooLarge();
    return result;
  }
  static Wide sum(Wide a, Wide b) {
    Wide result = 0;
    if (__builtin_add_overflow(a, b, &result)) throw TooLarge();
    return result;
  }
  void reduce() {
    const Wide common = divisor(over_, under_);
    over_ /= common;
    under_ /= common;
  }

  Wide over_ = 0;
  Wide under_ = 1;  // above 0, and without a common divisor
};

}  // namespace kindora::layout
