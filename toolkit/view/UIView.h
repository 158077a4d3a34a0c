// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The record of a view: what the logic decides about it. It knows no pixels; an item above the line
// draws it and reports the size that it was given. Main thread only.
//
// What a view looks like, how it moves, what is read aloud and what the user may do with it have
// headers of their own. This one has its place among other views, and its layout.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Geometry.h"
#include "platform/ObserverList.h"
#include "toolkit/view/UIViewAccessibility.h"
#include "toolkit/view/UIViewAnimatable.h"
#include "toolkit/view/UIViewAppearance.h"
#include "toolkit/view/UIViewInteraction.h"
#include "toolkit/view/UIViewRef.h"
#include "toolkit/view/UIViewTint.h"

namespace kindora {

class LayoutPasses;
class NSLayoutConstraint;
class UIViewRenderer;

/// The size of a view that has no opinion of its own in that direction.
inline constexpr double kNoIntrinsicMetric = -1;
inline constexpr CGSize kNoIntrinsicSize{kNoIntrinsicMetric, kNoIntrinsicMetric};

/// Who says where a view is. The record's own frame or its constraints; or the page of a
/// storyboard, which knows the view as an outlet, lays it out and reports where it came to be.
enum class UIViewPlacer { record, page };

/// A view without pixels: what it shows and where, which items draw and controllers change.
class UIView : public std::enable_shared_from_this<UIView>,
               public UIViewAnimatable,
               public UIViewAppearance,
               public UIViewInteraction,
               public UIViewAccessibility,
               public UIViewTint {
 public:
  using Observer = std::function<void()>;

  UIView();
  virtual ~UIView();

  /// The name under which a storyboard connects an outlet to this view.
  [[nodiscard]] const std::string& name() const { return name_; }
  void setName(std::string_view name) { name_ = name; }
  /// Who places the view: its record as long as nobody else does.
  [[nodiscard]] UIViewPlacer placer() const { return placer_; }
  void setPlacer(UIViewPlacer placer) { placer_ = placer; }

  /// Calls the observer after every change until the subscription is dropped.
  [[nodiscard]] Subscription observe(Observer observer) {
    return changes_.add(std::move(observer));
  }

  // --- Tree ---

  [[nodiscard]] UIViewRef superview() const { return superview_.lock(); }
  /// Lowest first.
  [[nodiscard]] const std::vector<UIViewRef>& subviews() const { return subviews_; }
  void addSubview(const UIViewRef& view);
  /// Directly above a subview that is there, else on top.
  void insertSubviewAbove(const UIViewRef& view, const UIView* sibling);
  void removeFromSuperview();
  /// True once it was taken out of its superview and not put anywhere since. A root view never is.
  [[nodiscard]] bool isRemoved() const { return removed_; }
  /// This view or one inside it that bears the name; null when there is none.
  [[nodiscard]] UIViewRef viewWithName(std::string_view name);
  /// Whether the other is this view or lies inside it.
  [[nodiscard]] bool contains(const UIView& other) const;
  /// The topmost view above this one, or itself.
  [[nodiscard]] UIView& topmostView();

  /// Gives the keyboard up; true when it is not, or no longer, with this view.
  virtual bool resignFirstResponder() { return true; }
  /// Gives the keyboard up wherever in this view it is; true when that worked or force is set.
  bool endEditing(bool force);

  // --- Place ---

  /// The place that an item gave to a view which a storyboard lays out. Not animated; a new place
  /// is told to those alone who observe the layout.
  void reportFrame(CGRect frame);
  /// Follows the superview's size, from the next change of it on.
  [[nodiscard]] bool fillsSuperview() const { return fillsSuperview_; }
  void setFillsSuperview(bool fills) { fillsSuperview_ = fills; }

  /// Whoever shows the view takes it over from whoever did before.
  void setRenderer(UIViewRenderer& renderer) { renderer_ = &renderer; }
  /// Does nothing when another has taken the view over.
  void removeRenderer(const UIViewRenderer& renderer);
  /// Where the view's origin lies in the window: asked of its renderer, else the sum of the frames'
  /// origins.
  [[nodiscard]] CGPoint originInWindow() const;
  /// A point of another view's space in this view's.
  [[nodiscard]] CGPoint convertPoint(CGPoint point, const UIView& from) const;

  // --- Layout ---

  /// Those that this view holds; they speak of itself and of what lies inside it.
  [[nodiscard]] const std::vector<std::shared_ptr<NSLayoutConstraint>>& constraints() const {
    return constraints_;
  }
  /// Takes the constraint over from the view that held it.
  void addConstraint(std::shared_ptr<NSLayoutConstraint> constraint);
  void removeConstraint(const std::shared_ptr<NSLayoutConstraint>& constraint);
  /// True, as at first: the frame is given and constraints see it as it is. False: constraints that
  /// mention the view give it its frame; while none does, it keeps the one that it has.
  [[nodiscard]] bool translatesAutoresizingMaskIntoConstraints() const { return !constraintBased_; }
  void setTranslatesAutoresizingMaskIntoConstraints(bool translates);
  /// A constraint that this view holds says something else than before.
  void setNeedsUpdateConstraints();

  /// What the view's content takes, in points; kNoIntrinsicMetric where it takes what it is given.
  [[nodiscard]] virtual CGSize intrinsicContentSize() const { return kNoIntrinsicSize; }
  /// Where the first line of text stands, in points below the top.
  [[nodiscard]] virtual double firstBaselineFromTop() const { return 0; }
  /// Where the last line of text stands, in points above the bottom.
  [[nodiscard]] virtual double lastBaselineFromBottom() const { return 0; }
  /// The intrinsic size or a baseline may have changed.
  void invalidateIntrinsicContentSize();
  /// Grows whenever they may have.
  [[nodiscard]] std::uint64_t contentRevision() const { return contentRevision_; }

  /// Has the view lay itself out at the next pass.
  void setNeedsLayout();
  /// Lays out at once what has changed, in the whole tree that this view is part of.
  void layoutIfNeeded();
  /// Calls the observer each time that this view has been laid out until the subscription is
  /// dropped.
  [[nodiscard]] Subscription observeLayout(Observer observer) {
    return layouts_.add(std::move(observer));
  }

 protected:
  void changed() final { changes_.notify(); }
  /// A pass of layout has given this view its place, or that of a subview has changed: the moment
  /// to place what constraints do not place. Overriders call the one that they override.
  virtual void layoutSubviews() {}

 private:
  [[nodiscard]] std::shared_ptr<UIViewAnimatable> animated() final {
    return weak_from_this().lock();
  }
  void frameDidChange(bool resized) final;
  [[nodiscard]] std::shared_ptr<const UIViewTint> tintAbove() const final { return superview(); }
  void tintDidChange() final;

  void resizeSubviews();
  void removeConstraintsOn(const UIView& leaving);
  void structureChanged();
  void scheduleLayout();
  void layOutMarkedViews();
  [[nodiscard]] LayoutPasses& passes();

  std::string name_;
  UIViewPlacer placer_ = UIViewPlacer::record;
  ObserverList<> changes_;

  std::weak_ptr<UIView> superview_;
  std::vector<UIViewRef> subviews_;
  bool removed_ = false;
  bool fillsSuperview_ = false;
  UIViewRenderer* renderer_ = nullptr;

  std::vector<std::shared_ptr<NSLayoutConstraint>> constraints_;
  bool constraintBased_ = false;
  std::uint64_t contentRevision_ = 0;
  bool needsLayout_ = true;
  bool laidOut_ = false;
  double layoutTarget_ = 0;
  ObserverList<> layouts_;
  std::unique_ptr<LayoutPasses> passes_;  // made when it is first the topmost view's turn
};

/// True while a subview that was made in code takes all input from what lies below it.
[[nodiscard]] bool hasCoveringSubview(const UIView& view);

}  // namespace kindora
