// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "app/shell/AppPhoneFormatEnvironment.h"
#include "gallery/GalleryStoryboard.h"
#include "gallery/menu/MenuTableViewController.h"
#include "platform/fakes/FakeServices.h"
#include "platform/qt/toolkit/UIWindow.h"
#include "tests/support/ManualTime.h"

namespace kindora {

// The app's formats, in a country of the test's own.
class PhoneFormatsOf final : public PhoneFormatEnvironment {
 public:
  explicit PhoneFormatsOf(std::string country) : country_(std::move(country)) {}
  PhoneFormatData data(std::string_view name, std::string_view type) override {
    return AppPhoneFormatEnvironment().data(name, type);
  }
  std::string countryCode() override { return country_; }

 private:
  std::string country_;
};

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

}  // namespace kindora
