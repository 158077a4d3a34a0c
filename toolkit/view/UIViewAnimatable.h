// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What of a view an animation can move: the state that the logic decides on, and what is shown of
// it now.
//
// Inside an animation block (see UIViewAnimationBlock) a change of state takes effect on the model
// at once, while what is shown moves there over time. Keyframes and the phone's tilt change what is
// shown alone.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Geometry.h"
#include "platform/UIColor.h"
#include "toolkit/view/UIViewLayerAnimation.h"
#include "toolkit/view/UIViewState.h"

namespace kindora {

struct UIMotionEffectGroup;

class UIViewAnimatable {
 public:
  UIViewAnimatable(const UIViewAnimatable&) = delete;
  UIViewAnimatable& operator=(const UIViewAnimatable&) = delete;

  // --- State ---

  [[nodiscard]] const UIViewState& state() const { return state_; }
  void setState(const UIViewState& state);
  /// Grows with every change of state, so that an animation knows when a later one takes over.
  [[nodiscard]] std::uint64_t stateRevision() const { return stateRevision_; }
  [[nodiscard]] double alpha() const { return state_.alpha; }
  void setAlpha(double alpha);
  void setBackgroundColor(const UIColor& color);
  void setTranslation(CGPoint translation);
  void setScaling(double factor);
  void setShadowOpacity(double opacity);
  void setShadowOffset(CGSize offset);
  void setCornerRadius(double radius);
  void setCurl(double curl);
  /// In the superview's space, before the transform.
  [[nodiscard]] CGRect frame() const { return state_.frame; }
  void setFrame(CGRect frame);
  [[nodiscard]] CGPoint center() const { return centerOf(state_.frame); }
  /// Keeps the size.
  void setCenter(CGPoint center);
  /// Keeps the centre.
  void setSize(CGSize size);
  [[nodiscard]] CGRect bounds() const { return {{0, 0}, state_.frame.size}; }

  // --- What is shown ---

  /// The state, or where running animations have moved it.
  [[nodiscard]] const UIViewState& presentation() const { return shown_; }
  void setPresentation(const UIViewState& presentation);
  [[nodiscard]] const UIViewKeyframeValues& keyframeValues() const { return keyframes_; }
  void setKeyframeValues(const UIViewKeyframeValues& values);
  /// Keeps the animation under the key, in place of an earlier one of that key; null keeps none.
  void setLayerAnimation(std::string_view key, std::shared_ptr<UIViewLayerAnimation> animation);
  [[nodiscard]] std::shared_ptr<UIViewLayerAnimation> layerAnimation(std::string_view key) const;
  /// Effects are kept in the order in which they were added.
  [[nodiscard]] const std::vector<UIMotionEffectGroup>& motionEffects() const {
    return motionEffects_;
  }
  void addMotionEffect(const UIMotionEffectGroup& group);
  /// Shows what the effects make of the phone's tilt, each direction -1 to 1. Not a change of
  /// state.
  void setTilt(double horizontal, double vertical);

 protected:
  UIViewAnimatable();
  ~UIViewAnimatable();

  /// Takes the frame over as it is: animated by nobody, and nobody is told.
  void adoptFrame(CGRect frame);

 private:
  /// This view, for a block that shows its change over time.
  [[nodiscard]] virtual std::shared_ptr<UIViewAnimatable> animated() = 0;
  virtual void frameDidChange(bool resized) = 0;
  virtual void changed() = 0;

  void updateShown();
  template <typename Change>
  void change(Change change);

  UIViewState state_;
  UIViewState presentation_;  // without keyframes
  UIViewState shown_;
  UIViewKeyframeValues keyframes_;
  std::map<std::string, std::shared_ptr<UIViewLayerAnimation>, std::less<>> layerAnimations_;
  std::uint64_t stateRevision_ = 0;
  std::vector<UIMotionEffectGroup> motionEffects_;
  CGPoint tilt_;
};

}  // namespace kindora
