// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/ShakeSource.h"

#include <array>
#include <chrono>
#include <utility>

#include "toolkit/controllers/UIApplication.h"

namespace kindora {
namespace {

constexpr double kWindowSwing = 40;  // pixels
constexpr double kPhoneSwing = 18;   // metres per second squared, nearly twice gravity
constexpr int kSamplingMilliseconds = 20;

ShakeRecognizer::Time steadyTime() {
  return std::chrono::duration_cast<ShakeRecognizer::Time>(
      std::chrono::steady_clock::now().time_since_epoch());
}

}  // namespace

ShakeSource::ShakeSource(QObject* parent)
    : ShakeSource(Accelerometer::find(), steadyTime, parent) {}

ShakeSource::ShakeSource(std::optional<Accelerometer> accelerometer, Clock clock, QObject* parent)
    : QObject(parent),
      accelerometer_(std::move(accelerometer)),
      clock_(std::move(clock)),
      ofWindow_(2, kWindowSwing),
      ofPhone_(3, kPhoneSwing) {
  sampling_.setInterval(kSamplingMilliseconds);
  connect(&sampling_, &QTimer::timeout, this, &ShakeSource::sample);
  connect(UIApplication::sharedApplication(), &UIApplication::listensForMotionChanged, this,
          &ShakeSource::listenOrRest);
}

void ShakeSource::shake() { UIApplication::sharedApplication()->shake(); }

void ShakeSource::setWindow(QQuickWindow* window) {
  if (window_ == window) return;
  if (window_) window_->disconnect(this);
  window_ = window;
  emit windowChanged();
  listenOrRest();
  if (!window_) return;
  connect(window_, &QWindow::xChanged, this, &ShakeSource::windowMoved);
  connect(window_, &QWindow::yChanged, this, &ShakeSource::windowMoved);
  connect(window_, &QWindow::activeChanged, this, &ShakeSource::listenOrRest);
}

void ShakeSource::listenOrRest() {
  const bool listens = accelerometer_ && window_ && window_->isActive() &&
                       UIApplication::sharedApplication()->listensForMotion();
  listens ? sampling_.start() : sampling_.stop();
}

void ShakeSource::sample() {
  const auto values = accelerometer_ ? accelerometer_->read() : std::nullopt;
  if (values && ofPhone_.addSample(*values, clock_())) shake();
}

void ShakeSource::windowMoved() {
  const std::array<double, 2> place{static_cast<double>(window_->x()),
                                    static_cast<double>(window_->y())};
  if (ofWindow_.addSample(place, clock_())) shake();
}

}  // namespace kindora
