// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <chrono>
#include <optional>

namespace kindora {

/// Makes of an accelerometer's samples how far a phone is turned from the way in which it is
/// usually held, which it learns within some seconds. The hand's trembling is smoothed away.
class TiltFilter final {
 public:
  /// Each -1 to 1; a twelfth of a turn is 1.
  struct Tilt {
    double horizontal = 0;  ///< the right side goes down
    double vertical = 0;    ///< the upper side goes down
    friend constexpr bool operator==(const Tilt&, const Tilt&) = default;
  };

  /// Takes acceleration along x (to the right), y (up) and z (out of the screen) with gravity
  /// included, that long after the sample before. A phone in free fall tells nothing.
  Tilt addSample(const std::array<double, 3>& acceleration, std::chrono::milliseconds passed);

 private:
  using Direction = std::array<double, 3>;

  std::optional<Direction> now_;
  Direction usual_{};
};

}  // namespace kindora
