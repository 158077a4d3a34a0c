// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIViewController.h"

#include <QQmlEngine>
#include <algorithm>
#include <utility>

#include "platform/FatalError.h"
#include "toolkit/controllers/ModalPresentation.h"
#include "toolkit/controllers/UINavigationController.h"
#include "toolkit/controllers/UITabBarController.h"
#include "toolkit/controllers/UIViewControllerTransitioningDelegate.h"
#include "toolkit/controllers/UIWindow.h"

namespace kindora {

UIViewController::UIViewController() {
  QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

UIViewController::~UIViewController() {
  for (const auto& child : children_) child->parent_ = nullptr;
}

// --- Life ---

const std::shared_ptr<UIView>& UIViewController::view() {
  loadViewIfNeeded();
  return view_;
}

void UIViewController::loadViewIfNeeded() {
  if (view_) return;
  view_ = loadView();
  layouts_ = view_->observeLayout([this] { viewDidLayoutSubviews(); });
  if (scene_ != nullptr && scene_->connectOutlets) scene_->connectOutlets(*this);
  viewDidLoad();
}

std::shared_ptr<UIView> UIViewController::loadView() {
  auto view = std::make_shared<UIView>();
  view->setName("view");
  return view;
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

void UIViewController::addChildViewController(const UIViewControllerRef& child) {
  if (child->parent_ == this) return;
  child->removeFromParentViewController();
  child->parent_ = this;
  children_.push_back(child);
  const bool seen = appearance_ == Appearance::appearing || appearance_ == Appearance::appeared;
  if (seen) child->beginAppearanceTransition(true, false);
  if (appearance_ == Appearance::appeared) child->endAppearanceTransition();
}

void UIViewController::removeFromParentViewController() {
  const UIViewControllerRef self = shared_from_this();
  // Stacks and tabs keep their own.
  if (parent_ == nullptr || std::erase(parent_->children_, self) == 0) return;
  parent_ = nullptr;
  beginAppearanceTransition(false, false);
  endAppearanceTransition();
  didMoveToParentViewController(nullptr);
}

std::vector<UIViewController*> UIViewController::visibleChildren() const {
  std::vector<UIViewController*> children;
  for (const auto& child : children_) children.push_back(child.get());
  return children;
}

UIWindow* UIViewController::window() {
  UIViewController* root = containmentRoot();
  while (root->presenting_ != nullptr) root = root->presenting_->containmentRoot();
  return root->window_;
}

bool UIViewController::goBack() { return false; }

// --- Presentation ---

UIViewControllerRef UIViewController::presentedViewController() {
  const auto& presentation = containmentRoot()->presentation_;
  return presentation ? presentation->presented() : nullptr;
}

UIViewController* UIViewController::presentingViewController() {
  return containmentRoot()->presenting_;
}

ModalPresentation* UIViewController::ownPresentation() {
  const UIViewController* presenting = presentingViewController();
  return presenting != nullptr ? presenting->presentation_.get() : nullptr;
}

UIPresentationController* UIViewController::presentationController() {
  const ModalPresentation* presentation = ownPresentation();
  return presentation != nullptr ? presentation->presentationController() : nullptr;
}

UIViewControllerTransitionCoordinator* UIViewController::transitionCoordinator() {
  const ModalPresentation* own = ownPresentation();
  if (own != nullptr && own->coordinator() != nullptr) return own->coordinator();
  const auto& presentation = containmentRoot()->presentation_;
  return presentation ? presentation->coordinator() : nullptr;
}

std::shared_ptr<UIViewControllerTransitioningDelegate> UIViewController::customTransitioning()
    const {
  return modalPresentationStyle_ == UIModalPresentationStyle::custom ? transitioningDelegate()
                                                                     : nullptr;
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
  const auto presentation = std::make_shared<ModalPresentation>(*host, controller);
  host->presentation_ = presentation;
  presentation->present(animated, std::move(completion));
}

void UIViewController::dismissViewController(bool animated, Completion completion) {
  auto presentation = containmentRoot()->presentation_;
  if (!presentation && presentingViewController() != nullptr) {
    presentation = presentingViewController()->presentation_;
  }
  if (presentation) presentation->dismiss(animated, std::move(completion));
}

// --- Storyboard ---

void UIViewController::setScene(const UIStoryboard& storyboard, const UIStoryboardScene& scene) {
  storyboard_ = &storyboard;
  scene_ = &scene;
}

QUrl UIViewController::page() const {
  if (scene_ != nullptr) return scene_->page;
  return view_ && view_->isMadeInCode()
             ? QUrl(QStringLiteral("qrc:/qt/qml/Kindora/Toolkit/Hosts/RecordPage.qml"))
             : QUrl();
}

QUrl UIViewController::presentedPage() {
  return presentationController() != nullptr
             ? QUrl(QStringLiteral("qrc:/qt/qml/Kindora/Toolkit/Hosts/PresentationHost.qml"))
             : page();
}

ViewHandle UIViewController::presentationContainer() {
  const UIPresentationController* controller = presentationController();
  return {controller != nullptr ? controller->containerView() : nullptr};
}

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
