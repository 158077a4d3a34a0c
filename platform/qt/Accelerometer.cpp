// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/Accelerometer.h"

#include <QDir>
#include <QFile>

namespace kindora {
namespace {

std::optional<double> number(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  bool valid = false;
  const double value = file.readAll().trimmed().toDouble(&valid);
  return valid ? std::optional(value) : std::nullopt;
}

}  // namespace

std::optional<Accelerometer> Accelerometer::find(const QString& devices) {
  for (const QString& name : QDir(devices).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    const QString folder = devices + QLatin1Char('/') + name;
    if (!QFile::exists(folder + QStringLiteral("/in_accel_x_raw"))) continue;
    return Accelerometer(folder, number(folder + QStringLiteral("/in_accel_scale")).value_or(1));
  }
  return std::nullopt;
}

std::optional<std::array<double, 3>> Accelerometer::read() const {
  std::array<double, 3> values{};
  for (std::size_t axis = 0; axis < values.size(); ++axis) {
    const auto raw =
        number(folder_ +
               QStringLiteral("/in_accel_%1_raw").arg(QLatin1Char(static_cast<char>('x' + axis))));
    if (!raw) return std::nullopt;
    values[axis] = *raw * scale_;
  }
  return values;
}

}  // namespace kindora
