// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/ViewControllerContainment.h"

#include "toolkit/controllers/UINavigationController.h"
#include "toolkit/controllers/UITabBarController.h"
#include "toolkit/controllers/UIViewController.h"
#include "toolkit/controllers/UIWindow.h"

namespace kindora {
namespace {

template <typename Container>
Container* nearest(UIViewController* controller) {
  for (; controller != nullptr; controller = controller->parentViewController()) {
    if (auto* container = qobject_cast<Container*>(controller)) return container;
  }
  return nullptr;
}

}  // namespace

ViewControllerContainment::~ViewControllerContainment() {
  for (const auto& child : children_) setParentOf(*child, nullptr);
}

UINavigationController* ViewControllerContainment::navigationController() const {
  return nearest<UINavigationController>(parent_);
}

UITabBarController* ViewControllerContainment::tabBarController() const {
  return nearest<UITabBarController>(parent_);
}

UIViewController* ViewControllerContainment::containmentRoot() {
  UIViewController* top = &self_;
  while (top->parentViewController() != nullptr) top = top->parentViewController();
  return top;
}

UIWindow* ViewControllerContainment::window() {
  UIViewController* root = containmentRoot();
  while (UIViewController* presenting = root->presentingViewController()) {
    root = presenting->containmentRoot();
  }
  return root->ownWindow();
}

void ViewControllerContainment::setParentOf(UIViewController& controller,
                                            UIViewController* parent) {
  controller.parent_ = parent;
}

void ViewControllerContainment::addChildViewController(const UIViewControllerRef& child) {
  if (child->parentViewController() == &self_) return;
  child->removeFromParentViewController();
  setParentOf(*child, &self_);
  children_.push_back(child);
  if (self_.isComingOrVisible()) child->beginAppearanceTransition(true, false);
  if (self_.isVisible()) child->endAppearanceTransition();
}

void ViewControllerContainment::removeFromParentViewController() {
  const UIViewControllerRef kept = self_.shared_from_this();
  // Stacks and tabs keep their own.
  if (parent_ == nullptr || std::erase(parent_->children_, kept) == 0) return;
  parent_ = nullptr;
  self_.beginAppearanceTransition(false, false);
  self_.endAppearanceTransition();
  didMoveToParentViewController(nullptr);
}

std::vector<UIViewController*> ViewControllerContainment::visibleChildren() const {
  std::vector<UIViewController*> children;
  for (const auto& child : children_) children.push_back(child.get());
  return children;
}

bool ViewControllerContainment::goBack() { return false; }

}  // namespace kindora
