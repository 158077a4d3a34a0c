// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/curves/CurvesViewController.h"

#include <algorithm>

#include "effects/qt/LayerAnimations.h"

namespace kindora {
namespace {

constexpr std::string_view kMotion = "transform";

NSValue shiftedBy(double x) {
  CATransform3D shift = CATransform3DIdentity;
  shift.m41 = x;
  return NSValue::valueWithCATransform3D(shift);
}

}  // namespace

// The ranges keep a spring's overdamped curve within the numbers: damping / (2 mass) times the
// duration stays below 88, where single precision ends.
CurvesViewController::CurvesViewController()
    : duration_({.name = QStringLiteral("Duration"),
                 .minimum = 0.1,
                 .maximum = 2,
                 .step = 0.1,
                 .value = 1,
                 .unit = QStringLiteral("s")}),
      damping_({.name = QStringLiteral("Damping"),
                .minimum = 0,
                .maximum = 40,
                .step = 0.5,
                .value = 10}),
      mass_(
          {.name = QStringLiteral("Mass"), .minimum = 0.5, .maximum = 5, .step = 0.1, .value = 1}),
      stiffness_({.name = QStringLiteral("Stiffness"),
                  .minimum = 10,
                  .maximum = 400,
                  .step = 5,
                  .value = 100,
                  .decimals = 0}),
      velocity_({.name = QStringLiteral("Velocity"),
                 .minimum = -20,
                 .maximum = 20,
                 .step = 0.5,
                 .value = 0}) {
  for (const SliderSetting* slider : {&duration_, &damping_, &mass_, &stiffness_, &velocity_}) {
    connect(slider, &SliderSetting::valueChanged, this, &CurvesViewController::readSliders);
  }
  traceCurve();
}

void CurvesViewController::connectOutlets() {
  setTitle(QStringLiteral("Curves"));
  connectOutlet(trackView, "trackView", *view());
  connectOutlet(ballView, "ballView", *connected(trackView));
}

void CurvesViewController::viewDidDisappear(bool animated) {
  UIViewController::viewDidDisappear(animated);
  putBallBack();
}

// --- Settings ---

QStringList CurvesViewController::kindNames() {
  return {QStringLiteral("Spring"), QStringLiteral("Tween")};
}

void CurvesViewController::setKind(int kind) {
  if (kind < 0 || kind >= kindNames().size()) return;
  CurveSettings next = settings_;
  next.kind = static_cast<CurveKind>(kind);
  apply(next);
}

QStringList CurvesViewController::timingNames() {
  QStringList names;
  for (const CurveTiming& timing : curveTimings()) {
    names << QString::fromUtf8(timing.name.data(), static_cast<qsizetype>(timing.name.size()));
  }
  return names;
}

void CurvesViewController::setTiming(int timing) {
  if (timing < 0 || static_cast<std::size_t>(timing) >= curveTimings().size()) return;
  CurveSettings next = settings_;
  next.timing = static_cast<std::size_t>(timing);
  apply(next);
}

void CurvesViewController::setAllowsOverdamping(bool allows) {
  CurveSettings next = settings_;
  next.allowsOverdamping = allows;
  apply(next);
}

void CurvesViewController::readSliders() {
  CurveSettings next = settings_;
  next.duration = duration_.value();
  next.damping = damping_.value();
  next.mass = mass_.value();
  next.stiffness = stiffness_.value();
  next.velocity = velocity_.value();
  apply(next);
}

void CurvesViewController::apply(const CurveSettings& settings) {
  if (settings == settings_) return;
  settings_ = settings;
  putBallBack();
  traceCurve();
  emit curveChanged();
}

void CurvesViewController::traceCurve() {
  frames_ = curveFrames(settings_);
  lowest_ = 0;
  highest_ = 1;
  for (const double value : frames_) {
    lowest_ = std::min(lowest_, value);
    highest_ = std::max(highest_, value);
  }
}

// --- The curve ---

QList<QPointF> CurvesViewController::points() const {
  QList<QPointF> points;
  const auto last = static_cast<double>(std::max<std::size_t>(frames_.size(), 2) - 1);
  for (std::size_t i = 0; i < frames_.size(); ++i) {
    points.append({static_cast<double>(i) / last, frames_[i]});
  }
  return points;
}

QString CurvesViewController::framesText() const {
  return QStringLiteral("%1 frames in %2").arg(frames_.size()).arg(duration_.text());
}

QString CurvesViewController::character() const {
  return QString::fromStdString(curveCharacter(settings_));
}

// --- The ball ---

void CurvesViewController::play() {
  const auto ball = connected(ballView);
  const double room = connected(trackView)->bounds().size.width - ball->bounds().size.width;
  const auto animation =
      curveAnimation(settings_, shiftedBy(0), shiftedBy(room / (highest_ - lowest_)));
  animation->setFillMode(CAMediaTimingFillMode::forwards);
  animation->setRemovedOnCompletion(false);
  animation->setDelegate(std::static_pointer_cast<CurvesViewController>(shared_from_this()));
  addAnimation(ball, *animation, kMotion);
  setPlaying(true);
}

void CurvesViewController::putBallBack() {
  if (const auto ball = ballView.lock()) removeAnimationForKey(*ball, kMotion);
}

void CurvesViewController::animationDidStop(CAKeyframeAnimation& /*animation*/, bool /*finished*/) {
  setPlaying(false);
}

void CurvesViewController::setPlaying(bool playing) {
  if (playing_ == playing) return;
  playing_ = playing;
  emit playingChanged();
}

}  // namespace kindora
