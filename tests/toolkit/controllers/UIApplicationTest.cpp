// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIApplication.h"

#include <gtest/gtest.h>

#include <memory>

#include "toolkit/controllers/UISearchBar.h"
#include "toolkit/view/UITextField.h"

namespace kindora {
namespace {

class Listener final : public UIResponder {
 public:
  int shakes = 0;
  [[nodiscard]] bool canBecomeFirstResponder() const override { return true; }
  void motionEnded(UIEventSubtype motion) override {
    if (motion == UIEventSubtype::motionShake) ++shakes;
  }
};

class UIApplicationTest : public ::testing::Test {
 protected:
  UIApplicationTest() { application.setApplicationSupportsShakeToEdit(true); }
  ~UIApplicationTest() override { application.setApplicationSupportsShakeToEdit(false); }

  UIApplication& application = *UIApplication::sharedApplication();
  Listener listener;
};

TEST(UIApplication, SupportsNoShakesAtTheStart) {
  EXPECT_FALSE(UIApplication::sharedApplication()->applicationSupportsShakeToEdit());
}

TEST(UIApplication, IsOneForTheProcess) {
  EXPECT_EQ(UIApplication::sharedApplication(), UIApplication::sharedApplication());
}

TEST_F(UIApplicationTest, AShakeReachesTheFirstResponder) {
  listener.becomeFirstResponder();
  application.shake();
  EXPECT_EQ(listener.shakes, 1);
}

TEST_F(UIApplicationTest, AShakeReachesNobodyElse) {
  Listener other;
  listener.becomeFirstResponder();
  other.becomeFirstResponder();
  application.shake();
  EXPECT_EQ(listener.shakes, 0);
  EXPECT_EQ(other.shakes, 1);
}

TEST_F(UIApplicationTest, AShakeThatNobodyListensToIsLost) {
  application.shake();
  EXPECT_EQ(listener.shakes, 0);
  EXPECT_FALSE(application.listensForMotion());
}

TEST_F(UIApplicationTest, WithoutSupportNoShakeIsDelivered) {
  listener.becomeFirstResponder();
  application.setApplicationSupportsShakeToEdit(false);
  application.shake();
  EXPECT_EQ(listener.shakes, 0);
  EXPECT_FALSE(application.listensForMotion());
}

TEST_F(UIApplicationTest, AShakeIsHeardWhileATextFieldHasTheKeyboard) {
  UITextField field;
  listener.becomeFirstResponder();
  field.becomeFirstResponder();
  EXPECT_TRUE(field.isFirstResponder());
  EXPECT_TRUE(application.listensForMotion());
  application.shake();
  EXPECT_EQ(listener.shakes, 1);
}

TEST_F(UIApplicationTest, AShakeIsHeardWhileASearchBarHasTheKeyboard) {
  UISearchBar bar;
  listener.becomeFirstResponder();
  bar.press();
  EXPECT_FALSE(listener.isFirstResponder());
  application.shake();
  EXPECT_EQ(listener.shakes, 1);
}

TEST_F(UIApplicationTest, ListensToNobodyWhoOnlyTakesKeys) {
  UITextField field;
  field.becomeFirstResponder();
  EXPECT_FALSE(application.listensForMotion());
  application.shake();
  EXPECT_EQ(listener.shakes, 0);
}

TEST_F(UIApplicationTest, TheKeyboardIsNoneOfItsConcern) {
  UITextField field;
  listener.becomeFirstResponder();
  int changes = 0;
  QObject context;
  QObject::connect(&application, &UIApplication::listensForMotionChanged, &context,
                   [&changes] { ++changes; });
  field.becomeFirstResponder();
  field.resignFirstResponder();
  EXPECT_EQ(changes, 0);
}

TEST_F(UIApplicationTest, ListensWhileThereIsAFirstResponder) {
  listener.becomeFirstResponder();
  EXPECT_TRUE(application.listensForMotion());
  listener.resignFirstResponder();
  EXPECT_FALSE(application.listensForMotion());
}

TEST_F(UIApplicationTest, TellsWhenItBeginsAndEndsToListen) {
  std::vector<bool> heard;
  QObject context;
  QObject::connect(&application, &UIApplication::listensForMotionChanged, &context,
                   [&] { heard.push_back(application.listensForMotion()); });
  listener.becomeFirstResponder();
  listener.resignFirstResponder();
  EXPECT_EQ(heard, (std::vector{true, false}));
}

TEST_F(UIApplicationTest, TellsWhenSupportIsTurnedOff) {
  listener.becomeFirstResponder();
  std::vector<bool> heard;
  QObject context;
  QObject::connect(&application, &UIApplication::listensForMotionChanged, &context,
                   [&] { heard.push_back(application.listensForMotion()); });
  application.setApplicationSupportsShakeToEdit(false);
  application.setApplicationSupportsShakeToEdit(false);
  EXPECT_EQ(heard, std::vector{false});
}

TEST_F(UIApplicationTest, AWindowThatHasGoneIsNotItsKeyWindow) {
  auto window = std::make_unique<UIWindow>();
  application.setKeyWindow(window.get());
  EXPECT_EQ(application.keyWindow(), window.get());
  window.reset();
  EXPECT_EQ(application.keyWindow(), nullptr);
}

// --- Windows ---

using Windows = std::vector<UIWindow*>;

TEST_F(UIApplicationTest, ListsVisibleWindowsByLevel) {
  UIWindow alert;
  alert.setWindowLevel(UIWindowLevelAlert);
  UIWindow first;
  UIWindow second;
  for (UIWindow* window : {&alert, &first, &second}) window->makeKeyAndVisible();
  EXPECT_EQ(application.windows(), (Windows{&first, &second, &alert}));
  EXPECT_EQ(application.keyWindow(), &second);
}

TEST_F(UIApplicationTest, AWindowMadeKeyAgainComesToTheTopOfItsLevel) {
  UIWindow first;
  UIWindow second;
  UIWindow alert;
  alert.setWindowLevel(UIWindowLevelAlert);
  for (UIWindow* window : {&first, &second, &alert, &first}) window->makeKeyAndVisible();
  EXPECT_EQ(application.windows(), (Windows{&second, &first, &alert}));
}

TEST_F(UIApplicationTest, AWindowThatChangesItsLevelMoves) {
  UIWindow first;
  UIWindow second;
  for (UIWindow* window : {&first, &second}) window->makeKeyAndVisible();
  first.setWindowLevel(1);
  EXPECT_EQ(application.windows(), (Windows{&second, &first}));
  first.setWindowLevel(-1);
  EXPECT_EQ(application.windows(), (Windows{&first, &second}));
}

TEST_F(UIApplicationTest, AWindowThatHasGoneIsListedNoLonger) {
  UIWindow first;
  first.makeKeyAndVisible();
  auto second = std::make_unique<UIWindow>();
  second->makeKeyAndVisible();
  int changes = 0;
  QObject context;
  QObject::connect(&application, &UIApplication::keyWindowChanged, &context,
                   [&changes] { ++changes; });
  second.reset();
  EXPECT_EQ(application.windows(), Windows{&first});
  EXPECT_EQ(application.keyWindow(), nullptr);
  EXPECT_EQ(changes, 1);
}

}  // namespace
}  // namespace kindora
