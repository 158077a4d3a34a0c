// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <any>

#include "platform/Geometry.h"
#include "platform/NotificationCenter.h"
#include "platform/ObserverList.h"
#include "platform/Subscription.h"
#include "platform/fakes/FakeHttp.h"
#include "platform/fakes/ManualQueue.h"

namespace kindora {
namespace {

class PlatformExamples : public ::testing::Test {
 protected:
  void take(const CGSize& size) { taken_ = size; }

  CGSize taken_;
  Subscription subscription_;
};

TEST_F(PlatformExamples, AnObserverHearsOfAPost) {
  NotificationCenter center;
  const CGSize size{3, 4};
#include "examples/platform/NotificationCenter.h.1"
  EXPECT_EQ(taken_, size);
}

TEST_F(PlatformExamples, AnObserverIsToldAValue) {
  int heard = 0;
#include "examples/platform/ObserverList.h.1"
  EXPECT_EQ(heard, 3);
}

TEST_F(PlatformExamples, ARequestIsAnsweredWhenTold) {
  const URL url = *URL::URLWithString("http://127.0.0.1/");
  bool answered = false;
  const auto completion = [&](const HttpResult&) { answered = true; };
#include "examples/platform/fakes/FakeHttp.h.1"
  EXPECT_TRUE(answered);
}

TEST_F(PlatformExamples, AQueueRunsWhatIsDue) {
  bool ran = false;
  const auto closure = [&] { ran = true; };
#include "examples/platform/fakes/ManualQueue.h.1"
  EXPECT_TRUE(ran);
}

}  // namespace
}  // namespace kindora
