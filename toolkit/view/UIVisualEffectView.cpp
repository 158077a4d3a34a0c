// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIVisualEffectView.h"

#include "toolkit/view/NSLayoutConstraint.h"

namespace kindora {

std::shared_ptr<UIVisualEffectView> UIVisualEffectView::withBlur(UIBlurEffectStyle style) {
  std::shared_ptr<UIVisualEffectView> view(new UIVisualEffectView(style));
  const UIViewRef& content = view->contentView_;
  content->setTranslatesAutoresizingMaskIntoConstraints(false);
  view->addSubview(content);
  for (const NSLayoutAttribute edge : {NSLayoutAttribute::top, NSLayoutAttribute::right,
                                       NSLayoutAttribute::bottom, NSLayoutAttribute::left}) {
    view->addConstraint(
        std::make_shared<NSLayoutConstraint>(NSLayoutConstraint::Parts{.firstItem = content,
                                                                       .firstAttribute = edge,
                                                                       .secondItem = view,
                                                                       .secondAttribute = edge}));
  }
  return view;
}

}  // namespace kindora
