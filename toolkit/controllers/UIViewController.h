// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A screen or a container of screens: its life, its place among the others and what it presents. It
// knows no pixels; the QML file that its `page` names draws it.
//
// Controllers are shared; make them with makeViewController. Main thread only.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QPointer>
#include <QString>
#include <QUrl>
#include <functional>
#include <memory>
#include <string_view>

#include "platform/Subscription.h"
#include "toolkit/controllers/UINavigationItem.h"
#include "toolkit/controllers/UIResponder.h"
#include "toolkit/controllers/UIStoryboard.h"
#include "toolkit/controllers/UITabBar.h"
#include "toolkit/controllers/UIViewAnimation.h"
#include "toolkit/controllers/ViewHandle.h"
#include "toolkit/view/OutletOwner.h"
#include "toolkit/view/UIView.h"

namespace kindora {

class ModalPresentation;
class UINavigationController;
class UIPresentationController;
class UITabBarController;
class UIViewController;
class UIViewControllerTransitionCoordinator;
class UIViewControllerTransitioningDelegate;
class UIWindow;

enum class UIPopoverArrowDirection { up, down };

/// Custom: comes and goes as its transitioning delegate shows it, above what stays in sight.
enum class UIModalPresentationStyle { fullScreen = 0, custom = 4 };

/// What a presented controller belongs to, where it is shown as a bubble beside it. On a phone's
/// screen sheets and pages come from below instead.
struct UIPopoverAnchor {
  std::weak_ptr<UIView> sourceView;
  CGRect sourceRect;  ///< in the source view's space
  UIPopoverArrowDirection permittedArrowDirection = UIPopoverArrowDirection::up;
};

using UIViewControllerRef = std::shared_ptr<UIViewController>;

class UIViewController : public kindora::UIResponder,
                         public OutletOwner,
                         public std::enable_shared_from_this<UIViewController> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")
  Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
  Q_PROPERTY(QUrl page READ page CONSTANT)
  Q_PROPERTY(kindora::UINavigationItem* navigationItem READ navigationItem CONSTANT)
  Q_PROPERTY(kindora::UITabBarItem* tabBarItem READ tabBarItem CONSTANT)
  Q_PROPERTY(
      double presentationProgress READ presentationProgress NOTIFY presentationProgressChanged)
  Q_PROPERTY(bool coversPresenter READ coversPresenter CONSTANT)
  Q_PROPERTY(QUrl presentedPage READ presentedPage CONSTANT)
  Q_PROPERTY(kindora::ViewHandle rootView READ rootView CONSTANT)
  Q_PROPERTY(kindora::ViewHandle presentationContainer READ presentationContainer CONSTANT)

 public:
  using Completion = std::function<void()>;

  UIViewController();
  ~UIViewController() override;

  // --- Life ---

  /// The root view; loads it on first use.
  [[nodiscard]] const std::shared_ptr<UIView>& view();
  [[nodiscard]] bool isViewLoaded() const { return view_ != nullptr; }
  void loadViewIfNeeded();
  /// Makes the root view. One without a name is drawn as its record and the records inside it say,
  /// and needs no page.
  [[nodiscard]] virtual std::shared_ptr<UIView> loadView();
  virtual void viewDidLoad() {}
  virtual void viewWillAppear(bool /*animated*/) {}
  virtual void viewDidAppear(bool /*animated*/) {}
  virtual void viewWillDisappear(bool /*animated*/) {}
  virtual void viewDidDisappear(bool /*animated*/) {}
  /// After each layout of the root view.
  virtual void viewDidLayoutSubviews() {}

  /// For containers: starts and ends the change from hidden to visible or back. Calls that do not
  /// change anything are ignored, so that each callback comes once, will before did.
  void beginAppearanceTransition(bool appearing, bool animated);
  void endAppearanceTransition();
  [[nodiscard]] bool isVisible() const { return appearance_ == Appearance::appeared; }

  // --- Titles and containers ---

  [[nodiscard]] const QString& title() const { return title_; }
  /// Also the title that the navigation bar shows.
  void setTitle(const QString& title);
  [[nodiscard]] UINavigationItem* navigationItem() { return &navigationItem_; }
  [[nodiscard]] UITabBarItem* tabBarItem() { return &tabBarItem_; }
  [[nodiscard]] UIViewController* parentViewController() const { return parent_; }
  [[nodiscard]] UINavigationController* navigationController() const;
  [[nodiscard]] UITabBarController* tabBarController() const;
  /// The topmost container that holds this controller, or the controller itself.
  [[nodiscard]] UIViewController* containmentRoot();
  /// Makes the controller a child that is on the screen when this one is; whoever adds it puts its
  /// view where it belongs and then calls its didMoveToParentViewController. A child of another
  /// leaves that one first.
  void addChildViewController(const UIViewControllerRef& child);
  void removeFromParentViewController();
  [[nodiscard]] const std::vector<UIViewControllerRef>& childViewControllers() const {
    return children_;
  }
  /// The parent is null after the controller was removed.
  virtual void didMoveToParentViewController(UIViewController* /*parent*/) {}
  /// The controllers inside this one that are on the screen when it is.
  [[nodiscard]] virtual std::vector<UIViewController*> visibleChildren() const;
  /// The window whose root, or what that presents, holds this controller; null when none does.
  [[nodiscard]] UIWindow* window();
  /// Goes back by one; false when there is nothing to go back to, or the way back is hidden.
  virtual bool goBack();

  // --- Presentation ---

  /// Presents above this controller's whole container, in its window. Ignored while something is
  /// presented there.
  void presentViewController(const UIViewControllerRef& controller, bool animated,
                             Completion completion = {});
  /// Dismisses what this controller or its container presents, else this controller itself when it
  /// is presented; otherwise nothing happens. The completion runs when the dismissal has finished.
  void dismissViewController(bool animated, Completion completion = {});
  [[nodiscard]] UIViewControllerRef presentedViewController();
  [[nodiscard]] UIViewController* presentingViewController();
  /// Whether what is presented from inside this controller stays inside it. Kept for those who ask;
  /// presentations cover the whole container either way.
  [[nodiscard]] bool definesPresentationContext() const { return definesPresentationContext_; }
  void setDefinesPresentationContext(bool defines) { definesPresentationContext_ = defines; }
  /// How far this controller has come onto the screen, 0 to 1.
  [[nodiscard]] double presentationProgress() const { return presentationProgress_; }
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

  // --- Storyboard ---

  /// Follows the segue of that name, after prepareForSegue. Stops when the storyboard has none.
  void performSegueWithIdentifier(std::string_view identifier, const std::any& sender = {});
  virtual void prepareForSegue(const UIStoryboardSegue& /*segue*/, const std::any& /*sender*/) {}
  void setScene(const UIStoryboard& storyboard, const UIStoryboardScene& scene);
  [[nodiscard]] const UIStoryboard* storyboard() const { return storyboard_; }
  [[nodiscard]] virtual QUrl page() const;
  /// What draws the controller while it is presented: its page, unless that is custom.
  [[nodiscard]] QUrl presentedPage();
  [[nodiscard]] ViewHandle rootView() { return {view()}; }
  [[nodiscard]] ViewHandle presentationContainer();

  [[nodiscard]] std::shared_ptr<UIView> outlet(std::string_view name) override;

  /// The closure, which does nothing once this controller has gone.
  template <typename Closure>
  [[nodiscard]] Completion guarded(Closure closure) {
    return [alive = weak_from_this(), closure = std::move(closure)] {
      if (const auto self = alive.lock()) closure();
    };
  }

 signals:
  void titleChanged();
  void presentationProgressChanged();

 protected:
  friend class ModalPresentation;
  friend class UINavigationController;
  friend class UITabBarController;
  friend class UIWindow;

 private:
  enum class Appearance { disappeared, appearing, appeared, disappearing };

  /// The presentation by which this controller's container came; null without one.
  [[nodiscard]] ModalPresentation* ownPresentation();
  /// The delegate, when the style asks for it.
  [[nodiscard]] std::shared_ptr<UIViewControllerTransitioningDelegate> customTransitioning() const;
  void setPresentationProgress(double progress);
  void unwind(const UIStoryboardSegueTemplate& segue, const std::any& sender);
  [[nodiscard]] UIViewController* unwindTarget(std::string_view action);

  std::shared_ptr<UIView> view_;
  Subscription layouts_;
  Appearance appearance_ = Appearance::disappeared;
  bool animatedAppearance_ = false;
  QString title_;
  UINavigationItem navigationItem_;
  UITabBarItem tabBarItem_;
  UIViewController* parent_ = nullptr;
  std::vector<UIViewControllerRef> children_;
  QPointer<UIWindow> window_;  // of which this is the root
  std::shared_ptr<ModalPresentation> presentation_;
  QPointer<UIViewController> presenting_;
  double presentationProgress_ = 0;
  bool definesPresentationContext_ = false;
  UIModalPresentationStyle modalPresentationStyle_ = UIModalPresentationStyle::fullScreen;
  std::weak_ptr<UIViewControllerTransitioningDelegate> transitioningDelegate_;
  UIPopoverAnchor popoverAnchor_;
  const UIStoryboard* storyboard_ = nullptr;
  const UIStoryboardScene* scene_ = nullptr;
};

/// Makes a controller that is deleted from the event loop once nobody holds it, since it may well
/// be let go of inside one of its own calls.
template <typename Controller, typename... Arguments>
[[nodiscard]] std::shared_ptr<Controller> makeViewController(Arguments&&... arguments) {
  return {new Controller(std::forward<Arguments>(arguments)...),
          [](Controller* controller) { controller->deleteLater(); }};
}

}  // namespace kindora
