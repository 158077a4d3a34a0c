// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstddef>
#include <deque>
#include <optional>
#include <span>
#include <vector>

namespace kindora {

/// Tells a shake from other movement: several strong swings to and fro along one axis within a
/// second. One gesture is one shake, however long and along however many axes: it lasts until
/// nothing has swung for half a second. Fed with displacement or acceleration; knows no units, only
/// the threshold it was given.
class ShakeRecognizer final {
 public:
  using Time = std::chrono::milliseconds;

  /// The threshold is the least change of direction to direction that counts as a swing, in the
  /// unit of the samples.
  ShakeRecognizer(std::size_t axes, double threshold) : threshold_(threshold), axes_(axes) {}

  /// Takes one sample, a value for each axis, times not decreasing. True when this sample makes the
  /// gesture a shake; further swings of the same gesture tell nothing.
  bool addSample(std::span<const double> values, Time time);

 private:
  struct Axis {
    std::optional<double> low;  // the furthest points either way since the last turn
    double high = 0;
    int direction = 0;        // of the swing under way: 1 up, -1 down, 0 not known yet
    std::deque<Time> swings;  // when each swing of the last second began
  };

  void beginAnewAfterRest(Time time);
  [[nodiscard]] bool beginsSwing(Axis& axis, double value) const;

  double threshold_;
  std::vector<Axis> axes_;
  std::optional<Time> lastSwing_;  // along any axis
  bool told_ = false;              // that this gesture is a shake
};

}  // namespace kindora
