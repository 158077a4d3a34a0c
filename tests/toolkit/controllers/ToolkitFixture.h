// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/fakes/ManualQueue.h"
#include "tests/support/ManualTime.h"
#include "toolkit/controllers/UIApplication.h"
#include "toolkit/controllers/UINavigationController.h"
#include "toolkit/controllers/UITabBarController.h"
#include "toolkit/controllers/UIWindow.h"

namespace kindora {

using Lines = std::vector<std::string>;

/// A screen that writes down what it is told: "a: will appear".
class RecordingController : public UIViewController {
 public:
  RecordingController(std::string name, std::shared_ptr<Lines> log)
      : name_(std::move(name)), log_(std::move(log)) {}

  void viewDidLoad() override { note("loads"); }
  void viewWillAppear(bool animated) override { note("will appear", animated); }
  void viewDidAppear(bool animated) override { note("did appear", animated); }
  void viewWillDisappear(bool animated) override { note("will disappear", animated); }
  void viewDidDisappear(bool animated) override { note("did disappear", animated); }
  void note(const std::string& what) { log_->push_back(name_ + ": " + what); }

  bool covers = true;
  [[nodiscard]] bool coversPresenter() const override { return covers; }

 private:
  void note(const std::string& what, bool animated) { note(what + (animated ? ", animated" : "")); }
  std::string name_;
  std::shared_ptr<Lines> log_;
};

/// A window, time moved by hand, and screens that write down what they are told.
class ToolkitFixture : public ::testing::Test {
 protected:
  ~ToolkitFixture() override { UIApplication::sharedApplication()->setKeyWindow(nullptr); }

  std::shared_ptr<RecordingController> screen(const std::string& name) {
    return makeViewController<RecordingController>(name, log_);
  }
  void show(const UIViewControllerRef& root) {
    window.setRootViewController(root);
    window.makeKeyAndVisible();
  }
  /// What was written down since the last call.
  Lines log() {
    Lines lines;
    lines.swap(*log_);
    return lines;
  }
  void note(const std::string& what) { log_->push_back(what); }
  /// Where screens of other classes write down what they are told.
  [[nodiscard]] std::shared_ptr<Lines> logged() const { return log_; }

  UIWindow window;
  ManualTime time{std::make_shared<ManualQueue>()};

 private:
  std::shared_ptr<Lines> log_ = std::make_shared<Lines>();
};

}  // namespace kindora
