// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <array>
#include <optional>

namespace kindora {

/// The phone's accelerometer as the kernel offers it, in industrial I/O files.
class Accelerometer final {
 public:
  /// The first one below the folder that holds the kernel's devices; none when there is none.
  [[nodiscard]] static std::optional<Accelerometer> find(
      const QString& devices = QStringLiteral("/sys/bus/iio/devices"));

  /// Acceleration along x, y and z in metres per second squared, gravity included; none when the
  /// device does not answer.
  [[nodiscard]] std::optional<std::array<double, 3>> read() const;

 private:
  Accelerometer(const QString& folder, double scale) : folder_(folder), scale_(scale) {}
  QString folder_;
  double scale_;
};

}  // namespace kindora
