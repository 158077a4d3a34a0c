// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "layout/SymbolicWeight.h"

#include <algorithm>
#include <cmath>

#include "layout/Tolerances.h"

namespace kindora::layout {

int SymbolicWeight::sign() const {
  for (const auto& [strength, amount] : parts_) {
    if (std::abs(amount) > kTiny) return amount < 0 ? -1 : 1;
  }
  return 0;
}

void SymbolicWeight::add(double strength, double amount) {
  const auto place = std::find_if(parts_.begin(), parts_.end(),
                                  [strength](const auto& part) { return part.first <= strength; });
  if (place == parts_.end() || place->first != strength) {
    if (std::abs(amount) > kVanishing) parts_.insert(place, {strength, amount});
    return;
  }
  place->second += amount;
  const double least = std::max(kVanishing, kCancelled * std::abs(amount));
  if (std::abs(place->second) <= least) parts_.erase(place);
}

void SymbolicWeight::add(const SymbolicWeight& other, double factor) {
  for (const auto& [strength, amount] : other.parts_) add(strength, amount * factor);
}

int SymbolicWeight::compare(const SymbolicWeight& left, double leftFactor,
                            const SymbolicWeight& right, double rightFactor) {
  const auto decisive = [](double amount) { return std::abs(amount) > kTiny ? amount : 0; };
  auto l = left.parts_.begin();
  auto r = right.parts_.begin();
  while (l != left.parts_.end() || r != right.parts_.end()) {
    const bool takeLeft =
        l != left.parts_.end() && (r == right.parts_.end() || l->first >= r->first);
    const bool takeRight =
        r != right.parts_.end() && (l == left.parts_.end() || r->first >= l->first);
    const double leftAmount = takeLeft ? decisive((l++)->second) * leftFactor : 0;
    const double rightAmount = takeRight ? decisive((r++)->second) * rightFactor : 0;
    const double difference = leftAmount - rightAmount;
    const double size = std::max({1.0, std::abs(leftAmount), std::abs(rightAmount)});
    if (std::abs(difference) > kTiny * size) return difference < 0 ? -1 : 1;
  }
  return 0;
}

}  // namespace kindora::layout
