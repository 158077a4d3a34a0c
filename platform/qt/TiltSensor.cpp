// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/TiltSensor.h"

#include <QGuiApplication>
#include <cmath>
#include <utility>

namespace kindora {
namespace {

constexpr std::chrono::milliseconds kInterval{33};
// Less than this is the sensor's noise, for which nothing is drawn anew.
constexpr double kLeastChange = 0.02;

}  // namespace

TiltSensor::TiltSensor(std::optional<Accelerometer> accelerometer)
    : accelerometer_(std::move(accelerometer)) {
  sampling_.setInterval(kInterval);
  connect(&sampling_, &QTimer::timeout, this, &TiltSensor::sample);
  if (const auto* app = qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
    connect(app, &QGuiApplication::applicationStateChanged, this, &TiltSensor::listenOrRest);
  }
}

void TiltSensor::setTiltHandler(TiltHandler handler) {
  handler_ = std::move(handler);
  filter_ = {};
  told_ = {};
  listenOrRest();
}

void TiltSensor::listenOrRest() {
  const bool inUse = QGuiApplication::applicationState() == Qt::ApplicationActive;
  if (handler_ && accelerometer_ && inUse) {
    if (!sampling_.isActive()) sampling_.start();
  } else {
    sampling_.stop();
  }
}

void TiltSensor::sample() {
  const auto acceleration = accelerometer_ ? accelerometer_->read() : std::nullopt;
  if (!acceleration || !handler_) return;
  const TiltFilter::Tilt tilt = filter_.addSample(*acceleration, kInterval);
  const bool changed = std::abs(tilt.horizontal - told_.horizontal) >= kLeastChange ||
                       std::abs(tilt.vertical - told_.vertical) >= kLeastChange;
  if (!changed) return;
  told_ = tilt;
  const TiltHandler handler = handler_;  // it may replace itself
  handler(tilt.horizontal, tilt.vertical);
}

}  // namespace kindora
