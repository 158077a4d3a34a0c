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
  static std::shared_ptr<UIView> placed(const std::shared_ptr<UIView>& superview,
                                        std::shared_ptr<UIView> view = std::make_shared<UIView>()) {
    view->setTranslatesAutoresizingMaskIntoConstraints(false);
    superview->addSubview(view);
    return view;
  }
  static NSLayoutConstraintRef hold(const std::shared_ptr<UIView>& owner,
                                    NSLayoutConstraint::Parts parts) {
    auto constraint = std::make_shared<NSLayoutConstraint>(std::move(parts));
    owner->addConstraint(constraint);
    return constraint;
  }
  static std::shared_ptr<UIView> framed(CGRect frame) {
    auto view = std::make_shared<UIView>();
    view->setFrame(frame);
    return view;
  }

  const FakeViewServices fakes = installFakeViewServices();
  const std::shared_ptr<UIView> root = framed({{0, 0}, {320, 480}});
};

}  // namespace kindora
