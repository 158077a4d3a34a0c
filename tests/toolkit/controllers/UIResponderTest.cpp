// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIResponder.h"

#include <gtest/gtest.h>

#include <memory>

#include "toolkit/controllers/UIApplication.h"

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

TEST(UIResponder, NobodyIsFirstAtTheStart) { EXPECT_EQ(UIResponder::firstResponder(), nullptr); }

TEST(UIResponder, MayNotBecomeFirstUnlessItSaysSo) {
  UIResponder responder;
  EXPECT_FALSE(responder.becomeFirstResponder());
  EXPECT_FALSE(responder.isFirstResponder());
}

TEST(UIResponder, BecomesFirst) {
  Listener listener;
  EXPECT_TRUE(listener.becomeFirstResponder());
  EXPECT_TRUE(listener.isFirstResponder());
  EXPECT_EQ(UIResponder::firstResponder(), &listener);
}

TEST(UIResponder, TheNextTakesOver) {
  Listener one;
  Listener other;
  one.becomeFirstResponder();
  other.becomeFirstResponder();
  EXPECT_FALSE(one.isFirstResponder());
  EXPECT_TRUE(other.isFirstResponder());
}

TEST(UIResponder, OneThatMayNotDoesNotTakeOver) {
  Listener listener;
  UIResponder responder;
  listener.becomeFirstResponder();
  responder.becomeFirstResponder();
  EXPECT_TRUE(listener.isFirstResponder());
}

TEST(UIResponder, Resigns) {
  Listener listener;
  listener.becomeFirstResponder();
  EXPECT_TRUE(listener.resignFirstResponder());
  EXPECT_EQ(UIResponder::firstResponder(), nullptr);
}

TEST(UIResponder, ResigningLeavesAnotherFirst) {
  Listener one;
  Listener other;
  other.becomeFirstResponder();
  EXPECT_TRUE(one.resignFirstResponder());
  EXPECT_TRUE(other.isFirstResponder());
}

TEST(UIResponder, OneThatHasGoneIsNotFirst) {
  auto listener = std::make_unique<Listener>();
  listener->becomeFirstResponder();
  listener.reset();
  EXPECT_EQ(UIResponder::firstResponder(), nullptr);
}

}  // namespace
}  // namespace kindora
