// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>

#include "toolkit/controllers/PresentationPlace.h"
#include "toolkit/controllers/UIPopoverAnchor.h"
#include "toolkit/controllers/UIViewControllerRef.h"

class QUrl;

namespace kindora {

class UIPresentationController;
class UIViewControllerTransitionCoordinator;
class UIViewControllerTransitioningDelegate;
struct ViewHandle;

/// Custom: comes and goes as its transitioning delegate shows it, above what stays in sight.
enum class UIModalPresentationStyle { fullScreen = 0, custom = 4 };

/// What a controller presents above itself, and how it comes and goes where it is presented.
class ViewControllerPresentation {
 public:
  using Completion = std::function<void()>;

  ViewControllerPresentation(const ViewControllerPresentation&) = delete;
  ViewControllerPresentation& operator=(const ViewControllerPresentation&) = delete;

  /// Presents above this controller's whole container, in its window. Ignored while something is
  /// presented there.
  void presentViewController(const UIViewControllerRef& controller, bool animated,
                             Completion completion = {});
  /// Dismisses what this controller or its container presents, else this controller itself when it
  /// is presented; otherwise nothing happens. The completion runs when the dismissal has finished.
  void dismissViewController(bool animated, Completion completion = {});
  [[nodiscard]] UIViewControllerRef presentedViewController();
  [[nodiscard]] UIViewController* presentingViewController();
  /// Whether what is presented from inside this controller stays inside it. Kept for the platform's
  /// interface: presentations cover the whole container either way.
  [[nodiscard]] bool definesPresentationContext() const { return definesPresentationContext_; }
  void setDefinesPresentationContext(bool defines) { definesPresentationContext_ = defines; }

  // --- As one that is presented ---

  /// How far this controller has come onto the screen, 0 to 1.
  [[nodiscard]] double presentationProgress() const;
  /// True when what presents this one is out of sight below it, so that it hears that it
  /// disappears.
  [[nodiscard]] virtual bool coversPresenter() const {
    return modalPresentationStyle_ != UIModalPresentationStyle::custom;
  }
  /// Seconds that coming and going take.
  [[nodiscard]] virtual double presentationDuration() const { return 0.4; }

  /// Before the controller is presented.
  [[nodiscard]] UIModalPresentationStyle modalPresentationStyle() const {
    return modalPresentationStyle_;
  }
  void setModalPresentationStyle(UIModalPresentationStyle style) {
    modalPresentationStyle_ = style;
  }
  /// Counts for the custom style. Held weakly.
  [[nodiscard]] std::shared_ptr<UIViewControllerTransitioningDelegate> transitioningDelegate()
      const {
    return transitioningDelegate_.lock();
  }
  void setTransitioningDelegate(
      const std::shared_ptr<UIViewControllerTransitioningDelegate>& delegate) {
    transitioningDelegate_ = delegate;
  }
  /// Of the custom presentation of this controller's container; null without one.
  [[nodiscard]] UIPresentationController* presentationController();
  /// Of the custom transition that this controller's container takes part in; null without one.
  [[nodiscard]] UIViewControllerTransitionCoordinator* transitionCoordinator();
  [[nodiscard]] const UIPopoverAnchor& popoverAnchor() const { return popoverAnchor_; }
  void setPopoverAnchor(const UIPopoverAnchor& anchor) { popoverAnchor_ = anchor; }

  /// What draws the controller while it is presented: its page, unless that is custom.
  [[nodiscard]] QUrl presentedPage();
  /// The custom presentation's container; without a view where there is none.
  [[nodiscard]] ViewHandle presentationContainer();

 protected:
  explicit ViewControllerPresentation(UIViewController& self) : place_{self} {}
  ~ViewControllerPresentation() = default;

 private:
  /// Of the whole container, which presents and is presented as one.
  [[nodiscard]] PresentationPlace& rootPlace();

  PresentationPlace place_;
  bool definesPresentationContext_ = false;
  UIModalPresentationStyle modalPresentationStyle_ = UIModalPresentationStyle::fullScreen;
  std::weak_ptr<UIViewControllerTransitioningDelegate> transitioningDelegate_;
  UIPopoverAnchor popoverAnchor_;
};

}  // namespace kindora
