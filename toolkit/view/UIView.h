// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The record of a view: what the logic decides about it. It knows no pixels; an item above the line
// draws it and reports the size that it was given.
//
// Inside an animation block (see UIViewAnimationBlock) a change of state takes effect on the model
// at once, while what is shown moves there over time. Main thread only.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/CATransform3D.h"
#include "platform/Geometry.h"
#include "platform/ObserverList.h"
#include "platform/UIColor.h"
#include "toolkit/view/NSLayoutConstraint.h"
#include "toolkit/view/UIMotionEffect.h"
#include "toolkit/view/UITapGestureRecognizer.h"
#include "toolkit/view/UIViewTint.h"

namespace kindora {

class LayoutEngine;

/// The size of a view that has no opinion of its own in that direction.
inline constexpr double kNoIntrinsicMetric = -1;
inline constexpr CGSize kNoIntrinsicSize{kNoIntrinsicMetric, kNoIntrinsicMetric};

enum class UIAccessibilityRole { none, staticText, header, button, alert };

/// A line along the inside of a view's bounds.
struct UIViewBorder {
  UIColor color = UIColor::blackColor();
  double width = 0;  ///< points
  friend constexpr bool operator==(const UIViewBorder&, const UIViewBorder&) = default;
};

/// Everything about a view that an animation can move.
struct UIViewState {
  CGRect frame;  ///< in the superview's space, before the transform
  double alpha = 1;
  UIColor backgroundColor = UIColor::clearColor();
  CGPoint translation;  ///< transform: points by which the view is displaced
  double scaling = 1;   ///< transform: factor about the view's centre
  double cornerRadius = 0;
  double shadowOpacity = 0;
  CGSize shadowOffset{0, -3};
  double curl = 1;    ///< how far it is laid over what lies below, like a page: 0 to 1
  double layout = 0;  ///< how many changes of its constraints it has laid out since the first
  friend constexpr bool operator==(const UIViewState&, const UIViewState&) = default;
};

/// What a keyframe animation shows in place of the state while it is attached.
struct UIViewKeyframeValues {
  std::optional<double> opacity;
  std::optional<CGPoint> position;         ///< of the centre, in the superview's space
  std::optional<CATransform3D> transform;  ///< about the centre
  friend constexpr bool operator==(const UIViewKeyframeValues&,
                                   const UIViewKeyframeValues&) = default;
};

/// The state between two states, at fraction 0 the first and at 1 the second, not clamped.
[[nodiscard]] UIViewState interpolated(const UIViewState& from, const UIViewState& to,
                                       double fraction);

/// An animation that plays on a view for as long as the view keeps it.
class UIViewLayerAnimation {
 public:
  virtual ~UIViewLayerAnimation() = default;
};

class UIView : public std::enable_shared_from_this<UIView> {
 public:
  using Observer = std::function<void()>;

  UIView();
  virtual ~UIView();
  UIView(const UIView&) = delete;
  UIView& operator=(const UIView&) = delete;

  /// The name under which a storyboard connects an outlet to this view.
  [[nodiscard]] const std::string& name() const { return name_; }
  void setName(std::string_view name) { name_ = name; }

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
  /// What is shown now: the state, or where running animations have moved it.
  [[nodiscard]] const UIViewState& presentation() const { return shown_; }
  void setPresentation(const UIViewState& presentation);
  [[nodiscard]] const UIViewKeyframeValues& keyframeValues() const { return keyframes_; }
  void setKeyframeValues(const UIViewKeyframeValues& values);

  [[nodiscard]] const UIViewBorder& border() const { return border_; }
  void setBorder(const UIViewBorder& border);

  /// Not drawn, pressed or read aloud while it is hidden.
  [[nodiscard]] bool isHidden() const { return hidden_; }
  void setHidden(bool hidden);

  /// Keeps the animation under the key, in place of an earlier one of that key; null keeps none.
  void setLayerAnimation(std::string_view key, std::shared_ptr<UIViewLayerAnimation> animation);
  [[nodiscard]] std::shared_ptr<UIViewLayerAnimation> layerAnimation(std::string_view key) const;

  /// Drawn through a bitmap at rasterizationScale pixels a point, for shadows that are dear to
  /// draw.
  [[nodiscard]] bool shouldRasterize() const { return shouldRasterize_; }
  [[nodiscard]] double rasterizationScale() const { return rasterizationScale_; }
  void setShouldRasterize(bool on, double scale);
  /// Corner radius of the rounded rectangle over the bounds that casts the shadow; none when
  /// negative.
  [[nodiscard]] double shadowPathRadius() const { return shadowPathRadius_; }
  void setShadowPathRadius(double radius);

  [[nodiscard]] bool isUserInteractionEnabled() const { return userInteractionEnabled_; }
  void setUserInteractionEnabled(bool enabled);

  /// Null takes it away. A view has at most one, the last given.
  void setTapGestureRecognizer(std::shared_ptr<UITapGestureRecognizer> recognizer);
  [[nodiscard]] const std::shared_ptr<UITapGestureRecognizer>& tapGestureRecognizer() const {
    return tapGestureRecognizer_;
  }
  /// What is read aloud for the view; none for what only stands there.
  [[nodiscard]] const std::optional<std::string>& accessibilityLabel() const {
    return accessibilityLabel_;
  }
  [[nodiscard]] UIAccessibilityRole accessibilityRole() const { return accessibilityRole_; }
  void setAccessibility(UIAccessibilityRole role, const std::optional<std::string>& label);

  /// Effects are kept in the order in which they were added.
  [[nodiscard]] const std::vector<UIMotionEffectGroup>& motionEffects() const {
    return motionEffects_;
  }
  void addMotionEffect(const UIMotionEffectGroup& group);
  /// Shows what the effects make of the phone's tilt, each direction -1 to 1. Not a change of
  /// state.
  void setTilt(double horizontal, double vertical);

  /// Gives the keyboard up; true when it is not, or no longer, with this view.
  virtual bool resignFirstResponder() { return true; }
  /// Gives the keyboard up wherever in this view it is; true when that worked or force is set.
  bool endEditing(bool force);

  /// Automatic is what the superview has, and normal where there is none.
  [[nodiscard]] UIViewTintAdjustmentMode tintAdjustmentMode() const { return tintAdjustmentMode_; }
  void setTintAdjustmentMode(UIViewTintAdjustmentMode mode);
  [[nodiscard]] bool isTintDimmed() const;
  /// None unless it was set on this very view.
  [[nodiscard]] const std::optional<UIColor>& ownTintColor() const { return ownTintColor_; }
  void setTintColor(const UIColor& color);
  /// The view's own tint, else the nearest superview's, else the given one; grey while dimmed.
  [[nodiscard]] UIColor tintColor(const UIColor& otherwise = kDefaultTintColor) const;

  /// Subviews are cut off at the bounds, with the corner radius.
  [[nodiscard]] bool clipsToBounds() const { return clipsToBounds_; }
  void setClipsToBounds(bool clips);

  /// In the superview's space, before the transform.
  [[nodiscard]] CGRect frame() const { return state_.frame; }
  void setFrame(CGRect frame);
  /// Keep the size, or the centre.
  void setCenter(CGPoint center);
  void setSize(CGSize size);
  [[nodiscard]] CGPoint center() const { return centerOf(state_.frame); }
  [[nodiscard]] CGRect bounds() const { return {{0, 0}, state_.frame.size}; }
  /// The place that an item gave to a view which a storyboard lays out. Not animated; nobody is
  /// told.
  void reportFrame(CGRect frame);

  /// Follows the superview's size, from the next change of it on.
  [[nodiscard]] bool fillsSuperview() const { return fillsSuperview_; }
  void setFillsSuperview(bool fills) { fillsSuperview_ = fills; }

  /// Where the view's origin lies in the window: asked of whoever draws it, else the sum of the
  /// frames' origins.
  [[nodiscard]] CGPoint originInWindow() const;
  std::function<std::optional<CGPoint>()> locateInWindow;
  /// A point of another view's space in this view's.
  [[nodiscard]] CGPoint convertPoint(CGPoint point, const UIView& from) const;

  [[nodiscard]] std::shared_ptr<UIView> superview() const { return superview_.lock(); }
  /// Lowest first.
  [[nodiscard]] const std::vector<std::shared_ptr<UIView>>& subviews() const { return subviews_; }
  void addSubview(const std::shared_ptr<UIView>& view);
  /// Directly above a subview that is there, else on top.
  void insertSubviewAbove(const std::shared_ptr<UIView>& view, const UIView* sibling);
  /// True for a view that no storyboard knows: its place is the record's, not the item's.
  [[nodiscard]] bool isMadeInCode() const { return name_.empty(); }
  void removeFromSuperview();
  /// True once it was taken out of its superview and not put anywhere since. A root view never is.
  [[nodiscard]] bool isRemoved() const { return removed_; }
  /// This view or one inside it that bears the name; null when there is none.
  [[nodiscard]] std::shared_ptr<UIView> viewWithName(std::string_view name);

  /// Whether the other is this view or lies inside it.
  [[nodiscard]] bool contains(const UIView& other) const;
  /// The topmost view above this one, or itself.
  [[nodiscard]] UIView& topmostView();

  // --- Layout by constraints ---

  /// Those that this view holds; they speak of itself and of what lies inside it.
  [[nodiscard]] const std::vector<NSLayoutConstraintRef>& constraints() const {
    return constraints_;
  }
  /// Takes the constraint over from the view that held it.
  void addConstraint(NSLayoutConstraintRef constraint);
  void removeConstraint(const NSLayoutConstraintRef& constraint);
  /// True, as at first: the frame is given and constraints see it as it is. False: constraints that
  /// mention the view give it its frame; while none does, it keeps the one that it has.
  [[nodiscard]] bool translatesAutoresizingMaskIntoConstraints() const { return !constraintBased_; }
  void setTranslatesAutoresizingMaskIntoConstraints(bool translates);
  /// What the view's content takes, in points; kNoIntrinsicMetric where it takes what it is given.
  [[nodiscard]] virtual CGSize intrinsicContentSize() const { return kNoIntrinsicSize; }
  /// The intrinsic size or a baseline may have changed.
  void invalidateIntrinsicContentSize();
  /// Where the first line of text stands, in points below the top.
  [[nodiscard]] virtual double firstBaselineFromTop() const { return 0; }
  /// Where the last line of text stands, in points above the bottom.
  [[nodiscard]] virtual double lastBaselineFromBottom() const { return 0; }

  /// Has the view lay itself out at the next pass.
  void setNeedsLayout();
  /// Lays out at once what has changed, in the whole tree that this view is part of. Whoever draws
  /// the view is told through layoutRequested first. Without an end after many rounds (views that
  /// never agree) it stops where it is.
  void layoutIfNeeded();
  /// Told to the topmost view, once, when something in its tree is to be laid out: whoever draws it
  /// then calls layoutIfNeeded in time for the next frame.
  Observer layoutScheduled;
  Observer layoutRequested;
  /// Called when this view has been laid out.
  Observer layoutFinished;

  /// Calls the observer after every change until the subscription is dropped.
  [[nodiscard]] Subscription observe(Observer observer) {
    return changes_.add(std::move(observer));
  }

 protected:
  void changed() { changes_.notify(); }
  /// A pass of layout has given this view its place, or that of a subview has changed: the moment
  /// to place what constraints do not place. Overriders call the one that they override.
  virtual void layoutSubviews() {}

 private:
  friend class LayoutEngine;
  friend class NSLayoutConstraint;

  void constraintDidChange();
  void removeConstraintsOn(const UIView& leaving);
  void scheduleLayout();
  void structureChanged();
  void runLayoutPasses();
  void layOutMarkedViews();
  [[nodiscard]] CGPoint motionOffset() const;
  void updateShown();
  void resizeSubviews();
  void tintChanged();
  template <typename Change>
  void animatable(Change change);

  std::string name_;
  UIViewState state_;
  UIViewState presentation_;  // without keyframes
  UIViewState shown_;
  UIViewKeyframeValues keyframes_;
  std::map<std::string, std::shared_ptr<UIViewLayerAnimation>, std::less<>> layerAnimations_;
  std::uint64_t stateRevision_ = 0;
  bool shouldRasterize_ = false;
  double rasterizationScale_ = 1;
  double shadowPathRadius_ = -1;
  bool userInteractionEnabled_ = true;
  bool hidden_ = false;
  UIViewBorder border_;
  bool clipsToBounds_ = false;
  bool fillsSuperview_ = false;
  UIViewTintAdjustmentMode tintAdjustmentMode_ = UIViewTintAdjustmentMode::automatic;
  std::optional<UIColor> ownTintColor_;
  std::weak_ptr<UIView> superview_;
  bool removed_ = false;
  std::vector<std::shared_ptr<UIView>> subviews_;
  std::shared_ptr<UITapGestureRecognizer> tapGestureRecognizer_;
  std::optional<std::string> accessibilityLabel_;
  UIAccessibilityRole accessibilityRole_ = UIAccessibilityRole::none;
  std::vector<UIMotionEffectGroup> motionEffects_;
  CGPoint tilt_;
  std::vector<NSLayoutConstraintRef> constraints_;
  bool constraintBased_ = false;
  std::uint64_t contentRevision_ = 0;  // grows with every change of intrinsic size or baselines
  bool needsLayout_ = true;
  bool laidOut_ = false;
  double layoutTarget_ = 0;
  // Of the topmost view of a tree.
  std::unique_ptr<LayoutEngine> engine_;
  bool structureChanged_ = true;
  bool constantsChanged_ = true;
  bool layoutIsScheduled_ = false;
  bool isLayingOut_ = false;
  ObserverList<> changes_;
};

/// True while a subview that was made in code takes all input from what lies below it.
[[nodiscard]] bool hasCoveringSubview(const UIView& view);

}  // namespace kindora
