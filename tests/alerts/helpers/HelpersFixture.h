// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "alerts/helpers/QavAutoLayout.h"

namespace kindora {

/// A window with a box in it, in which two views stand side by side; "inner" lies in the first.
class HelpersFixture {
 protected:
  static UIViewRef named(const char* name, const UIViewRef& superview) {
    auto view = std::make_shared<UIView>();
    view->setName(name);
    view->setTranslatesAutoresizingMaskIntoConstraints(false);
    if (superview) superview->addSubview(view);
    return view;
  }

  const UIViewRef window = named("window", nullptr);
  const UIViewRef box = named("box", window);
  const UIViewRef view = named("view", box);
  const UIViewRef other = named("other", box);
  const UIViewRef inner = named("inner", view);
  const UIViewRef stranger = named("stranger", nullptr);
};

}  // namespace kindora
