// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "platform/fakes/FakeViewServices.h"
#include "toolkit/view/NSLayoutConstraint.h"
#include "toolkit/view/UIView.h"

namespace kindora {

/// A view with a given frame and the means to fill it with views that constraints place.
class LayoutFixture {
 protected:
  static UIViewRef placed(const UIViewRef& superview, UIViewRef view = std::make_shared<UIView>()) {
    view->setTranslatesAutoresizingMaskIntoConstraints(false);
    superview->addSubview(view);
    return view;
  }
  static NSLayoutConstraintRef hold(const UIViewRef& owner, NSLayoutConstraint::Parts parts) {
    auto constraint = std::make_shared<NSLayoutConstraint>(std::move(parts));
    owner->addConstraint(constraint);
    return constraint;
  }
  static UIViewRef framed(CGRect frame) {
    auto view = std::make_shared<UIView>();
    view->setFrame(frame);
    return view;
  }

  const FakeViewServices fakes = installFakeViewServices();
  const UIViewRef root = framed({{0, 0}, {320, 480}});
};

}  // namespace kindora
