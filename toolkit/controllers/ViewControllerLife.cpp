// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/ViewControllerLife.h"

#include "toolkit/controllers/UIStoryboard.h"
#include "toolkit/controllers/UIViewController.h"
#include "toolkit/controllers/ViewHandle.h"
#include "toolkit/view/UIView.h"

namespace kindora {

const UIViewRef& ViewControllerLife::view() {
  loadViewIfNeeded();
  return view_;
}

void ViewControllerLife::loadViewIfNeeded() {
  if (view_) return;
  view_ = loadView();
  layouts_ = view_->observeLayout([this] { viewDidLayoutSubviews(); });
  const UIStoryboardScene* scene = self_.scene();
  if (scene != nullptr && scene->connectOutlets) scene->connectOutlets(self_);
  viewDidLoad();
}

UIViewRef ViewControllerLife::loadView() {
  auto view = std::make_shared<UIView>();
  view->setName("view");
  view->setPlacer(UIViewPlacer::page);
  return view;
}

ViewHandle ViewControllerLife::rootView() { return {view()}; }

void ViewControllerLife::beginAppearanceTransition(bool appearing, bool animated) {
  const bool already =
      appearing ? isComingOrVisible()
                : appearance_ == Appearance::disappearing || appearance_ == Appearance::disappeared;
  if (already) return;
  loadViewIfNeeded();
  appearance_ = appearing ? Appearance::appearing : Appearance::disappearing;
  animatedAppearance_ = animated;
  appearing ? viewWillAppear(animated) : viewWillDisappear(animated);
  for (UIViewController* child : self_.visibleChildren()) {
    child->beginAppearanceTransition(appearing, animated);
  }
}

void ViewControllerLife::endAppearanceTransition() {
  if (appearance_ == Appearance::appearing) {
    appearance_ = Appearance::appeared;
    viewDidAppear(animatedAppearance_);
  } else if (appearance_ == Appearance::disappearing) {
    appearance_ = Appearance::disappeared;
    viewDidDisappear(animatedAppearance_);
  } else {
    return;
  }
  for (UIViewController* child : self_.visibleChildren()) child->endAppearanceTransition();
}

}  // namespace kindora
