// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/ShakeRecognizer.h"

#include <algorithm>

#include "platform/FatalError.h"

namespace kindora {
namespace {

using ShakeTime = ShakeRecognizer::Time;

constexpr std::size_t kSwings = 4;
constexpr ShakeTime kWindow{1000};  // that holds them
constexpr ShakeTime kRest{500};     // that ends a shake

}  // namespace

void ShakeRecognizer::beginAnewAfterRest(Time time) {
  if (!told_ || time - *lastSwing_ < kRest) return;
  axes_.assign(axes_.size(), {});
  lastSwing_.reset();
  told_ = false;
}

bool ShakeRecognizer::beginsSwing(Axis& axis, double value) const {
  if (!axis.low) axis.low = axis.high = value;
  axis.low = std::min(*axis.low, value);
  axis.high = std::max(axis.high, value);
  const bool up = axis.direction != 1 && value - *axis.low >= threshold_;
  const bool down = axis.direction != -1 && axis.high - value >= threshold_;
  if (!up && !down) return false;
  axis.direction = up ? 1 : -1;
  axis.low = axis.high = value;
  return true;
}

bool ShakeRecognizer::addSample(std::span<const double> values, Time time) {
  if (values.size() != axes_.size()) fatalError("a sample needs a value for each axis");
  beginAnewAfterRest(time);
  bool isShake = false;
  for (std::size_t i = 0; i < axes_.size(); ++i) {
    if (!beginsSwing(axes_[i], values[i])) continue;
    lastSwing_ = time;
    std::deque<Time>& swings = axes_[i].swings;
    swings.push_back(time);
    while (time - swings.front() > kWindow) swings.pop_front();
    isShake |= swings.size() >= kSwings;
  }
  if (!isShake || told_) return false;
  told_ = true;
  return true;
}

}  // namespace kindora
