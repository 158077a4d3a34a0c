// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The table of screens: how each is made and drawn, and where its segues lead.
#pragma once

#include <QUrl>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/controllers/UIViewController.h"

namespace kindora {

/// A change of screens under way.
struct UIStoryboardSegue {
  std::string identifier;
  UIViewControllerRef sourceViewController;
  UIViewControllerRef destinationViewController;
};

enum class UIStoryboardSegueKind { show, presentModally, unwind };

struct UIStoryboardSegueTemplate {
  std::string identifier;
  UIStoryboardSegueKind kind = UIStoryboardSegueKind::show;
  std::string destination;  ///< a scene's identifier, or the unwind action to look for
};

/// An operation to which other screens can come back.
struct UIStoryboardUnwindAction {
  std::string action;
  std::function<void(UIViewController&, const UIStoryboardSegue&)> perform;
};

struct UIStoryboardScene {
  std::string identifier;
  std::function<UIViewControllerRef()> make;
  /// Builds the views inside the root view and connects the outlets.
  std::function<void(UIViewController&)> connectOutlets;
  QUrl page;  ///< the QML file that draws it
  std::vector<UIStoryboardSegueTemplate> segues;
  std::vector<UIStoryboardUnwindAction> unwindActions;
};

/// How a scene makes a controller whose constructor takes nothing.
template <typename Controller>
[[nodiscard]] UIViewControllerRef makeSceneController() {
  return makeViewController<Controller>();
}

/// How a scene connects the outlets of a controller that names them itself.
template <typename Controller>
void connectSceneOutlets(UIViewController& controller) {
  dynamic_cast<Controller&>(controller).connectOutlets();
}

class UIStoryboard final {
 public:
  explicit UIStoryboard(std::vector<UIStoryboardScene> scenes);
  UIStoryboard(const UIStoryboard&) = delete;
  UIStoryboard& operator=(const UIStoryboard&) = delete;

  /// A new controller of the scene. Stops when there is no such scene.
  [[nodiscard]] UIViewControllerRef instantiateViewController(std::string_view identifier) const;

 private:
  std::vector<UIStoryboardScene> scenes_;
};

}  // namespace kindora
