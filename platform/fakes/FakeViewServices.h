// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "platform/fakes/FakeTextMeasurer.h"
#include "platform/services/MotionService.h"
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

/// The fakes in force, each shared with the installed view services.
struct FakeViewServices {
  std::shared_ptr<FakeTextMeasurer> text;
  std::shared_ptr<FakeScreen> mainScreen;
  std::shared_ptr<FakeMotion> motion;
};

/// Installs fresh fakes and returns them.
FakeViewServices installFakeViewServices();

}  // namespace kindora
