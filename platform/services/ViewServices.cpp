// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/services/ViewServices.h"

#include <utility>

#include "platform/FatalError.h"

namespace kindora {
namespace {

ViewServices& viewSlot() {
  static ViewServices& installed = *new ViewServices;  // outlives every view
  return installed;
}

}  // namespace

void installViewServices(ViewServices installed) {
  if (!installed.text || !installed.mainScreen || !installed.motion || !installed.looks) {
    fatalError("a view service is missing");
  }
  viewSlot() = std::move(installed);
}

bool hasViewServices() { return viewSlot().text != nullptr; }

const ViewServices& viewServices() {
  if (!hasViewServices()) fatalError("no view services installed");
  return viewSlot();
}

}  // namespace kindora
