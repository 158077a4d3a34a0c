// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/ShakeRecognizer.h"

#include <algorithm>

namespace kindora {

bool ShakeRecognizer::addSample(double value, Time time) {
  if (!low_) low_ = high_ = value;
  low_ = std::min(*low_, value);
  high_ = std::max(high_, value);
  const bool up = direction_ != 1 && value - *low_ >= threshold_;
  const bool down = direction_ != -1 && high_ - value >= threshold_;
  if (up || down) {
    direction_ = up ? 1 : -1;
    low_ = high_ = value;
    swings_.push_back(time);
  }
  while (!swings_.empty() && time - swings_.front() > kWindow) swings_.pop_front();
  if (swings_.size() < kSwings) return false;
  swings_.clear();
  direction_ = 0;
  return true;
}

}  // namespace kindora
