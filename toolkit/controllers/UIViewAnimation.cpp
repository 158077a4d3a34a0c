// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIViewAnimation.h"

#include <QAbstractAnimation>
#include <QCoreApplication>
#include <QEasingCurve>
#include <QPointF>
#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

#include "toolkit/view/ThemeValues.h"
#include "toolkit/view/UIViewAnimationBlock.h"

namespace kindora {
namespace {

// Clamped, since an animation may be meant never to end.
int milliseconds(double seconds) {
  constexpr double kMost = 1e9;
  return static_cast<int>(std::lround(std::min(seconds * 1000, kMost)));
}

// The phone's timing curves as cubic Bézier control points.
QEasingCurve easing(UIViewAnimationCurve curve) {
  QEasingCurve result(QEasingCurve::BezierSpline);
  switch (curve) {
    case UIViewAnimationCurve::linear:
      return {QEasingCurve::Linear};
    case UIViewAnimationCurve::easeIn:
      result.addCubicBezierSegment({0.42, 0}, {1, 1}, {1, 1});
      break;
    case UIViewAnimationCurve::easeOut:
      result.addCubicBezierSegment({0, 0}, {0.58, 1}, {1, 1});
      break;
    case UIViewAnimationCurve::easeInOut:
      result.addCubicBezierSegment({0.42, 0}, {0.58, 1}, {1, 1});
      break;
  }
  return result;
}

// The way covered at each fraction of the duration. Where things stand still a spring is a curve:
// it takes as long, and overshoots nothing.
std::function<double(double)> pace(const UIViewAnimationTiming& timing) {
  if (timing.spring && !theme::stillness()) {
    return [spring = *timing.spring, length = timing.duration](double fraction) {
      return springProgress(spring, length, fraction * length);
    };
  }
  return
      [curve = easing(timing.curve)](double fraction) { return curve.valueForProgress(fraction); };
}

// Delay and way in one animation, so that both are measured by the same clock.
class Timeline final : public QAbstractAnimation {
 public:
  Timeline(const UIViewAnimationTiming& timing, std::function<void(double)> step)
      : delay_(milliseconds(timing.delay)),
        length_(milliseconds(timing.duration)),
        pace_(pace(timing)),
        step_(std::move(step)) {}

  int duration() const override { return delay_ + length_; }

 protected:
  void updateCurrentTime(int time) override {
    if (time >= delay_ + length_) {
      step_(1);
    } else if (time > delay_) {
      step_(pace_(static_cast<double>(time - delay_) / length_));
    }
  }

 private:
  int delay_;
  int length_;
  std::function<double(double)> pace_;
  std::function<void(double)> step_;
};

// At least a millisecond, so that nothing completes inside the call that begins it.
UIViewAnimationTiming lasting(UIViewAnimationTiming timing) {
  timing.duration = std::max(timing.duration, 0.001);
  return timing;
}

}  // namespace

void animateWithDuration(const UIViewAnimationTiming& timing,
                         const std::function<void()>& animations,
                         std::function<void()> completion) {
  const auto block = std::make_shared<UIViewAnimationBlock>(animations);
  auto* timeline = new Timeline(timing, [block](double fraction) { block->show(fraction); });
  QObject::connect(timeline, &QAbstractAnimation::finished, timeline,
                   [completion = std::move(completion)] {
                     if (completion) completion();
                   });
  // One that still runs when the program ends goes with the application.
  timeline->setParent(QCoreApplication::instance());
  timeline->start(QAbstractAnimation::DeleteWhenStopped);
}

void transitionFromView(const UIViewRef& from, const UIViewRef& to, double duration,
                        std::function<void()> completion) {
  // Where things stand still, one fades into the other.
  const bool curls = !theme::stillness();
  const double alpha = to->state().alpha;
  curls ? to->setCurl(0) : to->setAlpha(0);
  if (const UIViewRef container = from->superview()) {
    container->insertSubviewAbove(to, from.get());
  }
  animateWithDuration(
      {.duration = duration}, [&] { curls ? to->setCurl(1) : to->setAlpha(alpha); },
      [from, completion = std::move(completion)] {
        from->removeFromSuperview();
        if (completion) completion();
      });
}

ProgressAnimation::ProgressAnimation(const UIViewAnimationTiming& timing,
                                     std::function<void(double)> step,
                                     std::function<void()> completion)
    : clock_(new Timeline(lasting(timing), std::move(step))) {
  QObject::connect(clock_, &QAbstractAnimation::finished, clock_,
                   [completion = std::move(completion)] {
                     if (completion) completion();
                   });
  clock_->start();
}

ProgressAnimation::ProgressAnimation(ProgressAnimation&& other) noexcept
    : clock_(std::exchange(other.clock_, nullptr)) {}

ProgressAnimation& ProgressAnimation::operator=(ProgressAnimation&& other) noexcept {
  std::swap(clock_, other.clock_);
  return *this;
}

ProgressAnimation::~ProgressAnimation() {
  if (clock_ == nullptr) return;
  // The handle may go inside the clock's own completion.
  clock_->stop();
  clock_->deleteLater();
}

}  // namespace kindora
