// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <iostream>
#include <memory>

#include "alerts/helpers/QavAutoLayout.h"
#include "platform/view/UIView.h"

using namespace kindora;

// A panel of 200 x 100 in the middle of a page, until its width is changed.
int main() {
  const auto page = std::make_shared<UIView>();
  page->setFrame({{0, 0}, {320, 480}});
  const auto panel = std::make_shared<UIView>();
  panel->setTranslatesAutoresizingMaskIntoConstraints(false);
  page->addSubview(panel);

  qav_centerInSuperview(panel);
  const NSLayoutConstraints size = qav_pinSize(panel, {200, 100});
  const auto write = [&] {
    page->layoutIfNeeded();
    const CGRect frame = panel->frame();
    std::cout << frame.origin.x << ' ' << frame.origin.y << ' ' << frame.size.width << ' '
              << frame.size.height << '\n';
  };
  write();
  size.front()->setConstant(300);
  write();
}
