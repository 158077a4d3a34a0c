// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include "toolkit/controllers/UIViewControllerRef.h"
#include "toolkit/controllers/WindowRoot.h"

namespace kindora {

class UINavigationController;
class UITabBarController;

/// A controller's place inside other controllers, and those inside it.
class ViewControllerContainment : public WindowRoot {
 public:
  ViewControllerContainment(const ViewControllerContainment&) = delete;
  ViewControllerContainment& operator=(const ViewControllerContainment&) = delete;

  [[nodiscard]] UIViewController* parentViewController() const { return parent_; }
  [[nodiscard]] UINavigationController* navigationController() const;
  [[nodiscard]] UITabBarController* tabBarController() const;
  /// The topmost container that holds this controller, or the controller itself.
  [[nodiscard]] UIViewController* containmentRoot();
  /// The window whose root, or what that presents, holds this controller; null when none does.
  [[nodiscard]] UIWindow* window();

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
  /// Goes back by one; false when there is nothing to go back to, or the way back is hidden.
  virtual bool goBack();

 protected:
  explicit ViewControllerContainment(UIViewController& self) : self_(self) {}
  ~ViewControllerContainment();

  /// For containers that keep what they hold themselves, such as stacks and tabs.
  static void setParentOf(UIViewController& controller, UIViewController* parent);

 private:
  UIViewController& self_;
  UIViewController* parent_ = nullptr;
  std::vector<UIViewControllerRef> children_;
};

}  // namespace kindora
