// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/TovMakeInterpolator.h"

#include <array>
#include <bit>

namespace kindora {
namespace {

NSValue boxed(double value) { return NSValue::numberWithDouble(value); }
NSValue boxed(CGPoint value) { return NSValue::valueWithCGPoint(value); }
NSValue boxed(CGSize value) { return NSValue::valueWithCGSize(value); }
NSValue boxed(const CGRect& value) { return NSValue::valueWithCGRect(value); }
NSValue boxed(const CATransform3D& value) { return NSValue::valueWithCATransform3D(value); }

// T is one double or a struct of that many doubles.
template <std::size_t kCount, typename T>
TovInterpolatorBlock linear(const T& from, const T& to) {
  using Components = std::array<double, kCount>;
  const auto start = std::bit_cast<Components>(from);
  auto difference = std::bit_cast<Components>(to);
  for (std::size_t i = 0; i < start.size(); ++i) difference[i] -= start[i];
  return [start, difference](double fraction) {
    Components result;
    for (std::size_t i = 0; i < result.size(); ++i) {
      result[i] = start[i] + difference[i] * fraction;
    }
    return boxed(std::bit_cast<T>(result));
  };
}

}  // namespace

TovInterpolatorBlock TovMakeInterpolator(const NSValue& from, const NSValue& to) {
  const std::string_view type = from.objCType();
  if (type == kCATransform3DEncoding) {
    return linear<16>(from.CATransform3DValue(), to.CATransform3DValue());
  }
  if (type == kCGRectEncoding) return linear<4>(from.CGRectValue(), to.CGRectValue());
  if (type == kCGPointEncoding) return linear<2>(from.CGPointValue(), to.CGPointValue());
  if (type == kCGSizeEncoding) return linear<2>(from.CGSizeValue(), to.CGSizeValue());
  if (from.isNumber()) return linear<1>(from.doubleValue(), to.doubleValue());
  return [from, to](double fraction) { return fraction < 0.5 ? from : to; };
}

}  // namespace kindora
