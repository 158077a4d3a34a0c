// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/ShakeSource.h"

#include "toolkit/controllers/UIApplication.h"

namespace kindora {
namespace {

constexpr double kWindowSwing = 40;        // pixels
constexpr double kAccelerationSwing = 18;  // metres per second squared, nearly twice gravity
constexpr int kSamplingMilliseconds = 20;

}  // namespace

ShakeSource::ShakeSource(QObject* parent)
    : QObject(parent),
      windowX_(kWindowSwing),
      windowY_(kWindowSwing),
      accelerometer_(Accelerometer::find()),
      axes_{ShakeRecognizer(kAccelerationSwing), ShakeRecognizer(kAccelerationSwing),
            ShakeRecognizer(kAccelerationSwing)} {
  clock_.start();
  sampling_.setInterval(kSamplingMilliseconds);
  connect(&sampling_, &QTimer::timeout, this, &ShakeSource::readAccelerometer);
  connect(UIApplication::sharedApplication(), &UIApplication::listensForMotionChanged, this,
          &ShakeSource::listenOrRest);
}

void ShakeSource::shake() { UIApplication::sharedApplication()->shake(); }

void ShakeSource::setWindow(QQuickWindow* window) {
  if (window_ == window) return;
  if (window_) window_->disconnect(this);
  window_ = window;
  emit windowChanged();
  if (!window_) return;
  connect(window_, &QWindow::xChanged, this, &ShakeSource::windowMoved);
  connect(window_, &QWindow::yChanged, this, &ShakeSource::windowMoved);
  connect(window_, &QWindow::activeChanged, this, &ShakeSource::listenOrRest);
  listenOrRest();
}

void ShakeSource::listenOrRest() {
  const bool listens = accelerometer_ && window_ && window_->isActive() &&
                       UIApplication::sharedApplication()->listensForMotion();
  listens ? sampling_.start() : sampling_.stop();
}

void ShakeSource::readAccelerometer() {
  const auto values = accelerometer_->read();
  if (!values) return;
  bool shaken = false;
  for (std::size_t axis = 0; axis < axes_.size(); ++axis) {
    shaken |= axes_[axis].addSample((*values)[axis], ShakeRecognizer::Time(clock_.elapsed()));
  }
  if (shaken) shake();
}

void ShakeSource::windowMoved() {
  const ShakeRecognizer::Time now(clock_.elapsed());
  const bool across = windowX_.addSample(window_->x(), now);
  const bool down = windowY_.addSample(window_->y(), now);
  if (across || down) shake();
}

}  // namespace kindora
