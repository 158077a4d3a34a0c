// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/ViewControllerScene.h"

#include <string>

#include "platform/FatalError.h"
#include "toolkit/controllers/PageUrl.h"
#include "toolkit/controllers/UINavigationController.h"
#include "toolkit/controllers/UIStoryboard.h"
#include "toolkit/controllers/UIViewController.h"

namespace kindora {
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

void ViewControllerScene::setScene(const UIStoryboard& storyboard, const UIStoryboardScene& scene) {
  storyboard_ = &storyboard;
  scene_ = &scene;
}

QUrl ViewControllerScene::page() const {
  if (scene_ != nullptr) return scene_->page;
  return self_.isViewLoaded() && self_.view()->placer() == UIViewPlacer::record
             ? pageUrl(u"Kindora.Toolkit.Hosts", u"RecordPage")
             : QUrl();
}

void ViewControllerScene::performSegueWithIdentifier(std::string_view identifier,
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
  const UIStoryboardSegue segue{found->identifier, self_.shared_from_this(),
                                storyboard_->instantiateViewController(found->destination)};
  prepareForSegue(segue, sender);
  if (found->kind == UIStoryboardSegueKind::presentModally) {
    self_.presentViewController(segue.destinationViewController, true);
  } else if (UINavigationController* navigation = self_.navigationController()) {
    navigation->pushViewController(segue.destinationViewController, true);
  }
}

UIViewController* ViewControllerScene::unwindTarget(std::string_view action) {
  // Down the stack that this screen is in, then down the one from which that was presented.
  UIViewController* screen = &self_;
  while (screen != nullptr) {
    if (UINavigationController* navigation = screen->navigationController()) {
      const auto& stack = navigation->viewControllers();
      for (auto it = stack.rbegin(); it != stack.rend(); ++it) {
        if (it->get() != &self_ && unwindAction((*it)->scene(), action) != nullptr) {
          return it->get();
        }
      }
    }
    screen = screen->presentingViewController();
    while (screen != nullptr && !screen->visibleChildren().empty()) {
      screen = screen->visibleChildren().front();
    }
  }
  return nullptr;
}

void ViewControllerScene::unwind(const UIStoryboardSegueTemplate& found, const std::any& sender) {
  UIViewController* target = unwindTarget(found.destination);
  if (target == nullptr) return;
  const UIStoryboardSegue segue{found.identifier, self_.shared_from_this(),
                                target->shared_from_this()};
  prepareForSegue(segue, sender);
  unwindAction(target->scene(), found.destination)->perform(*target, segue);
  if (target->containmentRoot() != self_.containmentRoot()) target->dismissViewController(true);
  target->navigationController()->popToViewController(*target, true);
}

}  // namespace kindora
