// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What views need of the phone to be laid out, installed before the first of them is shown.
#pragma once

#include <memory>

#include "platform/services/MotionService.h"
#include "platform/services/SystemLooks.h"
#include "platform/services/TextMeasurer.h"
#include "platform/services/UIScreen.h"

namespace kindora {

struct ViewServices {
  std::shared_ptr<TextMeasurer> text;
  std::shared_ptr<UIScreen> mainScreen;
  std::shared_ptr<MotionService> motion;
  std::shared_ptr<SystemLooks> looks;
};

/// Installs the services, all of which must be given; those installed last are in force. A
/// program's start does it (startProgram), or the first QML item that needs them
/// (ensureViewServices).
void installViewServices(ViewServices installed);

[[nodiscard]] bool hasViewServices();

/// The services in force; stops when none were installed.
[[nodiscard]] const ViewServices& viewServices();

}  // namespace kindora
