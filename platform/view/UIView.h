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
#include <string>
#include <string_view>
#include <vector>

#include "platform/Geometry.h"
#include "platform/view/NSLayoutConstraint.h"

namespace kindora {

/// Everything about a view that an animation can move.
struct UIViewState {
  double alpha = 1;
  CGPoint translation;  ///< transform: points by which the view is displaced
  double scaling = 1;   ///< transform: factor about the view's centre
  double cornerRadius = 0;
  double shadowOpacity = 0;
  CGSize shadowOffset{0, -3};
  double layout =
      0;  ///< how many changes of its constraints it has laid out since the first layout
  friend constexpr bool operator==(const UIViewState&, const UIViewState&) = default;
};

/// The state between two states, at fraction 0 the first and at 1 the second, not clamped.
[[nodiscard]] UIViewState interpolated(const UIViewState& from, const UIViewState& to,
                                       double fraction);

class UIView : public std::enable_shared_from_this<UIView> {
 public:
  using Observer = std::function<void()>;

  UIView() = default;
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
  void setTranslation(CGPoint translation);
  void setShadowOpacity(double opacity);
  void setShadowOffset(CGSize offset);
  void setCornerRadius(double radius);
  /// What is shown now: the state, or where a running animation has moved it.
  [[nodiscard]] const UIViewState& presentation() const { return presentation_; }
  void setPresentation(const UIViewState& presentation);

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

  /// Gives the keyboard up; true when it is not, or no longer, with this view.
  virtual bool resignFirstResponder() { return true; }
  /// Gives the keyboard up wherever in this view it is; true when that worked or force is set.
  bool endEditing(bool force);

  /// In the superview's space, as the item that draws the view reports it.
  [[nodiscard]] CGRect frame() const { return frame_; }
  void setFrame(CGRect frame);
  [[nodiscard]] CGRect bounds() const { return {{0, 0}, frame_.size}; }

  [[nodiscard]] std::shared_ptr<UIView> superview() const { return superview_.lock(); }
  [[nodiscard]] const std::vector<std::shared_ptr<UIView>>& subviews() const { return subviews_; }
  void addSubview(const std::shared_ptr<UIView>& view);
  void removeFromSuperview();
  /// True once it was taken out of its superview and not put anywhere since. A root view never is.
  [[nodiscard]] bool isRemoved() const { return removed_; }
  /// This view or one inside it that bears the name; null when there is none.
  [[nodiscard]] std::shared_ptr<UIView> viewWithName(std::string_view name);

  [[nodiscard]] const std::vector<std::shared_ptr<NSLayoutConstraint>>& constraints() const {
    return constraints_;
  }
  void addConstraint(std::shared_ptr<NSLayoutConstraint> constraint);
  void removeConstraint(const std::shared_ptr<NSLayoutConstraint>& constraint);
  /// Lays out at once what has changed. Whoever draws the view is told through layoutRequested
  /// first.
  void layoutIfNeeded();
  Observer layoutRequested;

  /// Calls the observer after every change until the subscription is dropped.
  class Subscription {
   public:
    Subscription() = default;
    Subscription(std::weak_ptr<UIView> view, int id) : view_(std::move(view)), id_(id) {}
    Subscription(Subscription&& other) noexcept;
    Subscription& operator=(Subscription&& other) noexcept;
    ~Subscription();

   private:
    void cancel();
    std::weak_ptr<UIView> view_;
    int id_ = 0;
  };
  [[nodiscard]] Subscription observe(Observer observer);

 protected:
  void changed();

 private:
  void constraintsChanged();
  template <typename Change>
  void animatable(Change change);

  std::string name_;
  UIViewState state_;
  UIViewState presentation_;
  std::uint64_t stateRevision_ = 0;
  bool shouldRasterize_ = false;
  double rasterizationScale_ = 1;
  double shadowPathRadius_ = -1;
  bool userInteractionEnabled_ = true;
  CGRect frame_;
  std::weak_ptr<UIView> superview_;
  bool removed_ = false;
  std::vector<std::shared_ptr<UIView>> subviews_;
  std::vector<std::shared_ptr<NSLayoutConstraint>> constraints_;
  bool laidOut_ = false;
  double layoutTarget_ = 0;
  std::map<int, Observer> observers_;
  int nextObserver_ = 1;
};

}  // namespace kindora
