// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "gallery/GalleryStoryboard.h"
#include "gallery/menu/MenuTableViewController.h"
#include "platform/fakes/FakeServices.h"
#include "tests/support/ManualTime.h"
#include "tests/support/PhoneFormatsOf.h"
#include "toolkit/controllers/UIWindow.h"

namespace kindora {

/// The gallery without a display, on fakes and manual time.
class GalleryFixture : public ::testing::Test {
 protected:
  explicit GalleryFixture(const std::string& country = "US") {
    installPhoneFormatEnvironment(std::make_shared<PhoneFormatsOf>(country));
    navigation = makeGalleryNavigationController();
    window->setRootViewController(navigation);
    window->makeKeyAndVisible();
    time.settle();
  }

  /// Opens the page of a row, and returns its controller, which is loaded.
  template <typename Controller>
  Controller& open(int row) {
    dynamic_cast<MenuTableViewController&>(*navigation->viewControllers().front())
        .tableView()
        ->select(row);
    time.advance(0.5);
    return top<Controller>();
  }
  template <typename Controller>
  Controller& top() {
    return dynamic_cast<Controller&>(*navigation->topViewController());
  }

  FakeServices fakes = installFakeServices();
  ManualTime time{fakes.mainQueue};
  std::shared_ptr<UIWindow> window = std::make_shared<UIWindow>();
  std::shared_ptr<UINavigationController> navigation;
};

inline constexpr int kScratchRow = 0;
inline constexpr int kCurvesRow = 1;
inline constexpr int kGridRow = 2;
inline constexpr int kPhoneRow = 3;
inline constexpr int kAlertsRow = 4;

}  // namespace kindora
