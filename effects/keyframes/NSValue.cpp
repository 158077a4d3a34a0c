// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/NSValue.h"

namespace kindora {
namespace {

struct Encoding {
  std::string_view operator()(std::monostate) const { return {}; }
  std::string_view operator()(double) const { return "d"; }
  std::string_view operator()(std::int64_t) const { return "q"; }
  std::string_view operator()(bool) const { return "B"; }
  std::string_view operator()(const CGPoint&) const { return kCGPointEncoding; }
  std::string_view operator()(const CGSize&) const { return kCGSizeEncoding; }
  std::string_view operator()(const CGRect&) const { return kCGRectEncoding; }
  std::string_view operator()(const CATransform3D&) const { return kCATransform3DEncoding; }
  std::string_view operator()(const NSValue::Object&) const { return "@"; }
};

}  // namespace

bool NSValue::isNumber() const {
  return std::holds_alternative<double>(value_) || std::holds_alternative<std::int64_t>(value_) ||
         std::holds_alternative<bool>(value_);
}

std::string_view NSValue::objCType() const { return std::visit(Encoding{}, value_); }

double NSValue::doubleValue() const {
  if (const auto* integer = std::get_if<std::int64_t>(&value_)) {
    return static_cast<double>(*integer);
  }
  if (const auto* truth = std::get_if<bool>(&value_)) return *truth ? 1 : 0;
  return valueOr<double>();
}

}  // namespace kindora
