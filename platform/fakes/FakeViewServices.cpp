// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/fakes/FakeViewServices.h"

#include "platform/services/ViewServices.h"

namespace kindora {

FakeViewServices installFakeViewServices() {
  FakeViewServices fakes{.text = std::make_shared<FakeTextMeasurer>(),
                         .mainScreen = std::make_shared<FakeScreen>(),
                         .motion = std::make_shared<FakeMotion>(),
                         .looks = std::make_shared<FakeLooks>()};
  installViewServices({.text = fakes.text,
                       .mainScreen = fakes.mainScreen,
                       .motion = fakes.motion,
                       .looks = fakes.looks});
  return fakes;
}

}  // namespace kindora
