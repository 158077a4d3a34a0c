// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "effects/keyframes/NSValue.h"
#include "platform/UIColor.h"

namespace kindora {

inline NSValue number(double value) { return NSValue::numberWithDouble(value); }

inline NSValue color(const UIColor& value) {
  return NSValue::valueWithObject(std::make_shared<const UIColor>(value));
}

}  // namespace kindora
