// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

namespace kindora {

/// Tells how the phone is held. A device without a sensor never calls.
class MotionService {
 public:
  /// How far it is turned from the way in which it is usually held: about its long side
  /// (horizontal, positive to the right) and its short side (vertical, positive down), -1 to 1.
  using TiltHandler = std::function<void(double horizontal, double vertical)>;

  virtual ~MotionService() = default;
  /// Calls the handler on the main thread whenever the tilt has changed, until it is replaced; an
  /// empty one lets the sensor rest.
  virtual void setTiltHandler(TiltHandler handler) = 0;
};

}  // namespace kindora
