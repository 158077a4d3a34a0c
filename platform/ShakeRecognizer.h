// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstddef>
#include <deque>
#include <optional>

namespace kindora {

/// Tells a shake from other movement: several strong swings to and fro within a second. Fed with
/// the displacement or acceleration along one axis; knows no units, only the threshold it was
/// given.
class ShakeRecognizer final {
 public:
  using Time = std::chrono::milliseconds;

  /// The least change of direction to direction that counts as a swing, in the unit of the samples.
  explicit ShakeRecognizer(double threshold) : threshold_(threshold) {}

  /// Takes one sample, times not decreasing. True when this sample completes a shake; the next
  /// shake then starts from nothing.
  bool addSample(double value, Time time);

 private:
  static constexpr std::size_t kSwings = 4;
  static constexpr Time kWindow{1000};

  double threshold_;
  std::optional<double> low_;  // the furthest points either way since the last turn
  double high_ = 0;
  int direction_ = 0;        // of the swing under way: 1 up, -1 down, 0 not known yet
  std::deque<Time> swings_;  // when each swing began
};

}  // namespace kindora
