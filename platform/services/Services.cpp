// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/services/Services.h"

#include <utility>

#include "platform/FatalError.h"

namespace kindora {
namespace {

// Never destroyed, so that a reply which arrives while the program ends still finds its services.
Services& serviceSlot() {
  static Services& installed = *new Services;
  return installed;
}

}  // namespace

void installServices(Services installed) {
  if (!installed.mainQueue || !installed.http || !installed.json || !installed.bundle ||
      !installed.text || !installed.console || !installed.photos) {
    fatalError("a service is missing");
  }
  serviceSlot() = std::move(installed);
}

const Services& services() {
  if (!serviceSlot().mainQueue) fatalError("no services installed");
  return serviceSlot();
}

}  // namespace kindora
