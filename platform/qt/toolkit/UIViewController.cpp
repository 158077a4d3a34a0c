// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/toolkit/UIViewController.h"

#include <QQmlEngine>
#include <algorithm>
#include <utility>

#include "platform/FatalError.h"
#include "platform/qt/toolkit/UIApplication.h"
#include "platform/qt/toolkit/UINavigationController.h"
#include "platform/qt/toolkit/UITabBarController.h"

namespace kindora {

// What a controller presents, while it comes, stays or goes.
struct UIViewController::Presentation {
  UIViewControllerRef presented;
  bool dismissing = false;
  std::vector<Completion> dismissed;
  Completion presentedCompletion;
  ProgressAnimation animation;
};

UIViewController::UIViewController() {
  QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

UIViewController::~UIViewController() = default;

// --- Life ---

const std::shared_ptr<UIView>& UIViewController::view() {
  loadViewIfNeeded();
  return view_;
}

void UIViewController::loadViewIfNeeded() {
  if (view_) return;
  view_ = std::make_shared<UIView>();
  view_->setName("view");
  if (scene_ != nullptr && scene_->connectOutlets) scene_->connectOutlets(*this);
  viewDidLoad();
}

void UIViewController::beginAppearanceTransition(bool appearing, bool animated) {
  const bool already =
      appearing ? appearance_ == Appearance::appearing || appearance_ == Appearance::appeared
                : appearance_ == Appearance::disappearing || appearance_ == Appearance::disappeared;
  if (already) return;
  loadViewIfNeeded();
  appearance_ = appearing ? Appearance::appearing : Appearance::disappearing;
  animatedAppearance_ = animated;
  appearing ? viewWillAppear(animated) : viewWillDisappear(animated);
  for (UIViewController* child : visibleChildren()) {
    child->beginAppearanceTransition(appearing, animated);
  }
}

void UIViewController::endAppearanceTransition() {
  if (appearance_ == Appearance::appearing) {
    appearance_ = Appearance::appeared;
    viewDidAppear(animatedAppearance_);
  } else if (appearance_ == Appearance::disappearing) {
    appearance_ = Appearance::disappeared;
    viewDidDisappear(animatedAppearance_);
  } else {
    return;
  }
  for (UIViewController* child : visibleChildren()) child->endAppearanceTransition();
}

// --- Titles and containers ---

void UIViewController::setTitle(const QString& title) {
  navigationItem_.setTitle(title);
  if (title_ == title) return;
  title_ = title;
  emit titleChanged();
}

UINavigationController* UIViewController::navigationController() const {
  for (UIViewController* up = parent_; up != nullptr; up = up->parent_) {
    if (auto* navigation = qobject_cast<UINavigationController*>(up)) return navigation;
  }
  return nullptr;
}

UITabBarController* UIViewController::tabBarController() const {
  for (UIViewController* up = parent_; up != nullptr; up = up->parent_) {
    if (auto* tabs = qobject_cast<UITabBarController*>(up)) return tabs;
  }
  return nullptr;
}

UIViewController* UIViewController::containmentRoot() {
  UIViewController* top = this;
  while (top->parent_ != nullptr) top = top->parent_;
  return top;
}

bool UIViewController::goBack() { return false; }

// --- Presentation ---

UIViewControllerRef UIViewController::presentedViewController() {
  const auto& presentation = containmentRoot()->presentation_;
  return presentation ? presentation->presented : nullptr;
}

UIViewController* UIViewController::presentingViewController() {
  return containmentRoot()->presenting_;
}

void UIViewController::setPresentationProgress(double progress) {
  if (presentationProgress_ == progress) return;
  presentationProgress_ = progress;
  emit presentationProgressChanged();
}

void UIViewController::presentViewController(const UIViewControllerRef& controller, bool animated,
                                             Completion completion) {
  UIViewController* host = containmentRoot();
  if (host->presentation_) return;
  host->presentation_ = std::make_unique<Presentation>();
  host->presentation_->presented = controller;
  host->presentation_->presentedCompletion = std::move(completion);
  controller->presenting_ = host;
  controller->loadViewIfNeeded();
  controller->setPresentationProgress(animated ? 0 : 1);
  if (UIWindow* window = UIApplication::sharedApplication()->keyWindow()) {
    window->presentations()->append(controller);
  }
  if (controller->coversPresenter()) host->beginAppearanceTransition(false, animated);
  controller->beginAppearanceTransition(true, animated);
  if (!animated) {
    host->endPresenting(*controller);
    return;
  }
  host->presentation_->animation = ProgressAnimation(
      {.duration = controller->presentationDuration(), .curve = UIViewAnimationCurve::easeOut},
      [presented = controller.get()](double done) { presented->setPresentationProgress(done); },
      [host, presented = controller.get()] { host->endPresenting(*presented); });
}

void UIViewController::endPresenting(UIViewController& presented) {
  // Whatever is told here may dismiss at once what has just come.
  const Completion completion = std::exchange(presentation_->presentedCompletion, {});
  if (presented.coversPresenter()) endAppearanceTransition();
  presented.endAppearanceTransition();
  if (completion) completion();
}

void UIViewController::dismissViewController(bool animated, Completion completion) {
  UIViewController* host = containmentRoot();
  if (host->presentation_) {
    host->dismissPresented(animated, std::move(completion));
  } else if (host->presenting_ != nullptr) {
    host->presenting_->dismissPresented(animated, std::move(completion));
  }
}

void UIViewController::dismissPresented(bool animated, Completion completion) {
  if (completion) presentation_->dismissed.push_back(std::move(completion));
  if (presentation_->dismissing) return;
  const UIViewControllerRef presented = presentation_->presented;
  // Whatever stands above it goes with it.
  if (presented->presentation_) presented->dismissPresented(false, {});
  presentation_->animation = {};
  endPresenting(*presented);
  if (!presentation_ || presentation_->dismissing) return;
  presentation_->dismissing = true;
  presented->beginAppearanceTransition(false, animated);
  if (presented->coversPresenter()) beginAppearanceTransition(true, animated);
  if (!animated) {
    finishDismissal();
    return;
  }
  const double from = presented->presentationProgress();
  presentation_->animation = ProgressAnimation(
      {.duration = presented->presentationDuration() * from,
       .curve = UIViewAnimationCurve::easeOut},
      [target = presented.get(), from](double done) {
        target->setPresentationProgress(from * (1 - done));
      },
      [this] { finishDismissal(); });
}

void UIViewController::finishDismissal() {
  const auto ended = std::exchange(presentation_, nullptr);
  const UIViewControllerRef& presented = ended->presented;
  presented->presenting_ = nullptr;
  presented->setPresentationProgress(0);
  if (UIWindow* window = UIApplication::sharedApplication()->keyWindow()) {
    window->presentations()->remove(presented);
  }
  presented->endAppearanceTransition();
  if (presented->coversPresenter()) endAppearanceTransition();
  for (const Completion& completion : ended->dismissed) completion();
}

// --- Storyboard ---

void UIViewController::setScene(const UIStoryboard& storyboard, const UIStoryboardScene& scene) {
  storyboard_ = &storyboard;
  scene_ = &scene;
}

QUrl UIViewController::page() const { return scene_ != nullptr ? scene_->page : QUrl(); }

std::shared_ptr<UIView> UIViewController::outlet(std::string_view name) {
  return view()->viewWithName(name);
}

void UIViewController::performSegueWithIdentifier(std::string_view identifier,
                                                  const std::any& sender) {
  const UIStoryboardSegueTemplate* found = nullptr;
  if (scene_ != nullptr) {
    for (const auto& segue : scene_->segues) {
      if (segue.identifier == identifier) found = &segue;
    }
  }
  if (found == nullptr) {
    fatalError("the screen has no segue \"" + std::string(identifier) + "\"");
  }
  if (found->kind == UIStoryboardSegueKind::unwind) {
    unwind(*found, sender);
    return;
  }
  const UIStoryboardSegue segue{found->identifier, shared_from_this(),
                                storyboard_->instantiateViewController(found->destination)};
  prepareForSegue(segue, sender);
  if (found->kind == UIStoryboardSegueKind::presentModally) {
    presentViewController(segue.destinationViewController, true);
  } else if (UINavigationController* navigation = navigationController()) {
    navigation->pushViewController(segue.destinationViewController, true);
  }
}

namespace {

const UIStoryboardUnwindAction* unwindAction(const UIStoryboardScene* scene,
                                             std::string_view action) {
  if (scene == nullptr) return nullptr;
  for (const auto& candidate : scene->unwindActions) {
    if (candidate.action == action) return &candidate;
  }
  return nullptr;
}

}  // namespace

UIViewController* UIViewController::unwindTarget(std::string_view action) {
  // Down the stack that this screen is in, then down the one from which that was presented.
  UIViewController* screen = this;
  while (screen != nullptr) {
    if (UINavigationController* navigation = screen->navigationController()) {
      const auto& stack = navigation->viewControllers();
      for (auto it = stack.rbegin(); it != stack.rend(); ++it) {
        if (it->get() != this && unwindAction((*it)->scene_, action) != nullptr) return it->get();
      }
    }
    screen = screen->presentingViewController();
    while (screen != nullptr && !screen->visibleChildren().empty()) {
      screen = screen->visibleChildren().front();
    }
  }
  return nullptr;
}

void UIViewController::unwind(const UIStoryboardSegueTemplate& found, const std::any& sender) {
  UIViewController* target = unwindTarget(found.destination);
  if (target == nullptr) return;
  const UIStoryboardSegue segue{found.identifier, shared_from_this(), target->shared_from_this()};
  prepareForSegue(segue, sender);
  unwindAction(target->scene_, found.destination)->perform(*target, segue);
  if (target->containmentRoot() != containmentRoot()) target->dismissViewController(true);
  target->navigationController()->popToViewController(*target, true);
}

}  // namespace kindora
