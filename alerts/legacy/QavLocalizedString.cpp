// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/legacy/QavLocalizedString.h"

#include <utility>

namespace kindora {
namespace {

QavLocalizer& localizerSlot() {
  static QavLocalizer& installed = *new QavLocalizer;
  return installed;
}

}  // namespace

void installAlertLocalizer(QavLocalizer localizer) { localizerSlot() = std::move(localizer); }

std::string qav_localizedString(std::string_view english) {
  return localizerSlot() ? localizerSlot()(english) : std::string(english);
}

}  // namespace kindora
