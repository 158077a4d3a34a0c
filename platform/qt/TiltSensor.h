// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QTimer>
#include <optional>

#include "platform/TiltFilter.h"
#include "platform/qt/Accelerometer.h"
#include "platform/services/MotionService.h"

namespace kindora {

/// Tells the phone's tilt by its accelerometer, which is read only while a handler is set and the
/// app is in use. Without one nothing runs.
class TiltSensor final : public QObject, public MotionService {
  Q_OBJECT

 public:
  explicit TiltSensor(std::optional<Accelerometer> accelerometer = Accelerometer::find());

  void setTiltHandler(TiltHandler handler) override;
  [[nodiscard]] bool isSampling() const { return sampling_.isActive(); }
  /// Reads the accelerometer once; tells the tilt when it is another than before.
  void sample();

 private:
  void listenOrRest();

  std::optional<Accelerometer> accelerometer_;
  TiltHandler handler_;
  TiltFilter filter_;
  TiltFilter::Tilt told_;
  QTimer sampling_;
};

}  // namespace kindora
