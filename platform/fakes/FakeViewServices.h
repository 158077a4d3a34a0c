// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "platform/ObserverList.h"
#include "platform/fakes/FakeTextMeasurer.h"
#include "platform/services/MotionService.h"
#include "platform/services/SystemLooks.h"
#include "platform/services/UIScreen.h"

namespace kindora {

/// A screen of the given size and scale.
struct FakeScreen final : UIScreen {
  double pixelsPerPoint = 2;
  CGRect rectangle{{0, 0}, {320, 480}};
  [[nodiscard]] double scale() const override { return pixelsPerPoint; }
  [[nodiscard]] CGRect bounds() const override { return rectangle; }
};

/// A phone that is tilted by calling the handler.
struct FakeMotion final : MotionService {
  TiltHandler handler;
  void setTiltHandler(TiltHandler wanted) override { handler = std::move(wanted); }
};

/// A system whose user changes the looks by change().
class FakeLooks final : public SystemLooks {
 public:
  [[nodiscard]] const Looks& looks() const override { return looks_; }
  [[nodiscard]] Subscription observe(std::function<void()> observer) override {
    return observers_.add(std::move(observer));
  }
  void change(const Looks& looks) {
    looks_ = looks;
    observers_.notify();
  }

 private:
  Looks looks_;
  ObserverList<> observers_;
};

/// The fakes in force, each shared with the installed view services.
struct FakeViewServices {
  std::shared_ptr<FakeTextMeasurer> text;
  std::shared_ptr<FakeScreen> mainScreen;
  std::shared_ptr<FakeMotion> motion;
  std::shared_ptr<FakeLooks> looks;
};

/// Installs fresh fakes and returns them.
FakeViewServices installFakeViewServices();

}  // namespace kindora
