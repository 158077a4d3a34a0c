// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/quick/QtViewServices.h"

#include "platform/qt/quick/QtScreen.h"
#include "platform/qt/quick/QtTextMeasurer.h"
#include "platform/qt/services/TiltSensor.h"

namespace kindora {

ViewServices makeQtViewServices() {
  return {.text = std::make_shared<QtTextMeasurer>(),
          .mainScreen = std::make_shared<QtScreen>(),
          .motion = std::make_shared<TiltSensor>()};
}

void ensureViewServices() {
  if (!hasViewServices()) installViewServices(makeQtViewServices());
}

}  // namespace kindora
