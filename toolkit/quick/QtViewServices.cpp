// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/QtViewServices.h"

#include "platform/qt/QtSystemLooks.h"
#include "platform/qt/TiltSensor.h"
#include "toolkit/quick/QtScreen.h"
#include "toolkit/quick/QtTextMeasurer.h"

namespace kindora {

ViewServices makeQtViewServices() {
  return {.text = std::make_shared<QtTextMeasurer>(),
          .mainScreen = std::make_shared<QtScreen>(),
          .motion = std::make_shared<TiltSensor>(),
          .looks = std::make_shared<QtSystemLooks>()};
}

void ensureViewServices() {
  if (!hasViewServices()) installViewServices(makeQtViewServices());
}

}  // namespace kindora
