// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/legacy/QavAlertEnvironment.h"

#include <utility>

#include "platform/FatalError.h"

namespace kindora {
namespace {

// Never destroyed, like the coordinator that uses it.
QavAlertEnvironment& slot() {
  static QavAlertEnvironment& installed = *new QavAlertEnvironment;
  return installed;
}

}  // namespace

void installAlertEnvironment(QavAlertEnvironment installed) {
  if (!installed.keyWindow || !installed.makeAlertWindow) {
    fatalError("part of the alert environment is missing");
  }
  slot() = std::move(installed);
}

const QavAlertEnvironment& alertEnvironment() {
  if (!slot().keyWindow) fatalError("no alert environment installed");
  return slot();
}

}  // namespace kindora
