// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <any>
#include <string_view>

class QUrl;

namespace kindora {

class UIStoryboard;
class UIViewController;
struct UIStoryboardScene;
struct UIStoryboardSegue;
struct UIStoryboardSegueTemplate;

/// The scene of a storyboard that a controller was made from: the page that draws it, and the ways
/// that lead from it.
class ViewControllerScene {
 public:
  ViewControllerScene(const ViewControllerScene&) = delete;
  ViewControllerScene& operator=(const ViewControllerScene&) = delete;

  /// For storyboards.
  void setScene(const UIStoryboard& storyboard, const UIStoryboardScene& scene);
  [[nodiscard]] const UIStoryboard* storyboard() const { return storyboard_; }
  /// Null for a controller that no storyboard made.
  [[nodiscard]] const UIStoryboardScene* scene() const { return scene_; }
  /// The QML file that draws the controller.
  [[nodiscard]] virtual QUrl page() const;

  /// Follows the segue of that name, after prepareForSegue. Stops when the scene has none.
  void performSegueWithIdentifier(std::string_view identifier, const std::any& sender = {});
  virtual void prepareForSegue(const UIStoryboardSegue& /*segue*/, const std::any& /*sender*/) {}

 protected:
  explicit ViewControllerScene(UIViewController& self) : self_(self) {}
  ~ViewControllerScene() = default;

 private:
  void unwind(const UIStoryboardSegueTemplate& segue, const std::any& sender);
  [[nodiscard]] UIViewController* unwindTarget(std::string_view action);

  UIViewController& self_;
  const UIStoryboard* storyboard_ = nullptr;
  const UIStoryboardScene* scene_ = nullptr;
};

}  // namespace kindora
