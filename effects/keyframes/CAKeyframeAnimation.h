// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What is to be played on a property: keyframe values or a path, for how long and at which pace.
//
// A description only; KeyframePlayback tells what shows when. An animation that is handed to a
// player is shared with it. Main thread only.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "effects/keyframes/CAAnimationDelegate.h"
#include "effects/keyframes/CAMediaTimingFunction.h"
#include "effects/keyframes/KeyValueObserving.h"
#include "effects/keyframes/NSArray.h"
#include "effects/keyframes/UIBezierPath.h"

namespace kindora {

/// What shows when the time is over: the property's own value, or the last value played.
enum class CAMediaTimingFillMode { removed, forwards };
/// How values between two frames come about: in a straight line, or on a smooth curve through all
/// frames.
enum class CAAnimationCalculationMode { linear, cubic };

class CAKeyframeAnimation : public KeyValueObserving {
 public:
  CAKeyframeAnimation() = default;

  /// The property to play on; none when it is named where the animation is added.
  [[nodiscard]] const std::optional<std::string>& keyPath() const { return keyPath_; }
  void setKeyPath(std::optional<std::string> keyPath);

  /// Seconds for one run.
  [[nodiscard]] double duration() const { return duration_; }
  void setDuration(double seconds);

  /// The frames, spread evenly over the duration; null when there are none. Players ask once, at
  /// the start.
  [[nodiscard]] virtual NSArrayRef values() const { return values_; }
  virtual void setValues(NSArrayRef values);

  /// The points to move along at even speed, instead of values.
  [[nodiscard]] const std::shared_ptr<const UIBezierPath>& path() const { return path_; }
  void setPath(std::shared_ptr<const UIBezierPath> path);

  [[nodiscard]] CAMediaTimingFillMode fillMode() const { return fillMode_; }
  void setFillMode(CAMediaTimingFillMode mode);
  /// Whether the animation is taken off when it has ended. One that is taken off fills nothing.
  [[nodiscard]] bool isRemovedOnCompletion() const { return removedOnCompletion_; }
  void setRemovedOnCompletion(bool removed);

  /// Number of runs, not necessarily whole and possibly infinite; 0 counts as 1.
  [[nodiscard]] double repeatCount() const { return repeatCount_; }
  void setRepeatCount(double count);

  [[nodiscard]] CAAnimationCalculationMode calculationMode() const { return calculationMode_; }
  void setCalculationMode(CAAnimationCalculationMode mode);

  /// The pace of each run; even when there is none.
  [[nodiscard]] const std::optional<CAMediaTimingFunction>& timingFunction() const {
    return timingFunction_;
  }
  void setTimingFunction(std::optional<CAMediaTimingFunction> function);

  [[nodiscard]] std::shared_ptr<CAAnimationDelegate> delegate() const { return delegate_.lock(); }
  void setDelegate(std::weak_ptr<CAAnimationDelegate> delegate);

  /// An animation of the same class with the same settings; path, values and delegate are shared.
  [[nodiscard]] virtual std::shared_ptr<CAKeyframeAnimation> copy() const;

 protected:
  CAKeyframeAnimation(const CAKeyframeAnimation&) = default;

  static constexpr std::string_view kDurationKey = "duration";
  static constexpr std::string_view kValuesKey = "values";

 private:
  std::optional<std::string> keyPath_;
  double duration_ = 0;
  NSArrayRef values_;
  std::shared_ptr<const UIBezierPath> path_;
  CAMediaTimingFillMode fillMode_ = CAMediaTimingFillMode::removed;
  bool removedOnCompletion_ = true;
  double repeatCount_ = 0;
  CAAnimationCalculationMode calculationMode_ = CAAnimationCalculationMode::linear;
  std::optional<CAMediaTimingFunction> timingFunction_;
  std::weak_ptr<CAAnimationDelegate> delegate_;
};

}  // namespace kindora
