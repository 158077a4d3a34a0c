// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/ViewControllerPresentation.h"

#include <utility>

#include "toolkit/controllers/ModalPresentation.h"
#include "toolkit/controllers/PageUrl.h"
#include "toolkit/controllers/UIViewController.h"
#include "toolkit/controllers/ViewHandle.h"

namespace kindora {

PresentationPlace& ViewControllerPresentation::rootPlace() {
  return place_.controller.containmentRoot()->place_;
}

void ViewControllerPresentation::presentViewController(const UIViewControllerRef& controller,
                                                       bool animated, Completion completion) {
  PresentationPlace& host = rootPlace();
  if (host.above) return;
  const auto presentation = std::make_shared<ModalPresentation>(host, controller->place_);
  host.above = presentation;
  presentation->present(animated, std::move(completion));
}

void ViewControllerPresentation::dismissViewController(bool animated, Completion completion) {
  const PresentationPlace& place = rootPlace();
  const auto presentation = place.above ? place.above : place.below.lock();
  if (presentation) presentation->dismiss(animated, std::move(completion));
}

UIViewControllerRef ViewControllerPresentation::presentedViewController() {
  const auto& above = rootPlace().above;
  return above ? above->presented() : nullptr;
}

UIViewController* ViewControllerPresentation::presentingViewController() {
  const auto below = rootPlace().below.lock();
  return below ? &below->host() : nullptr;
}

double ViewControllerPresentation::presentationProgress() const {
  const auto below = place_.below.lock();
  return below ? below->progress() : 0;
}

UIPresentationController* ViewControllerPresentation::presentationController() {
  const auto below = rootPlace().below.lock();
  return below ? below->presentationController() : nullptr;
}

UIViewControllerTransitionCoordinator* ViewControllerPresentation::transitionCoordinator() {
  const PresentationPlace& place = rootPlace();
  const auto below = place.below.lock();
  if (below && below->coordinator() != nullptr) return below->coordinator();
  return place.above ? place.above->coordinator() : nullptr;
}

QUrl ViewControllerPresentation::presentedPage() {
  return presentationController() != nullptr
             ? pageUrl(u"Kindora.Toolkit.Hosts", u"PresentationHost")
             : place_.controller.page();
}

ViewHandle ViewControllerPresentation::presentationContainer() {
  const UIPresentationController* controller = presentationController();
  return {controller != nullptr ? controller->containerView() : nullptr};
}

}  // namespace kindora
