// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/ShakeRecognizer.h"

#include <algorithm>
#include <cmath>

namespace kindora {

bool ShakeRecognizer::addSample(double value, Time time) {
  if (!extreme_) extreme_ = value;
  const double way = value - *extreme_;
  if (direction_ == 0 ? std::abs(way) >= threshold_ : way * direction_ <= -threshold_) {
    // Far enough from the furthest point: a swing the other way.
    direction_ = way > 0 ? 1 : -1;
    extreme_ = value;
    swings_.push_back(time);
  } else if (way * direction_ > 0) {
    extreme_ = value;
  }
  while (!swings_.empty() && time - swings_.front() > kWindow) swings_.pop_front();
  if (swings_.size() < kSwings) return false;
  swings_.clear();
  direction_ = 0;
  extreme_ = value;
  return true;
}

}  // namespace kindora
