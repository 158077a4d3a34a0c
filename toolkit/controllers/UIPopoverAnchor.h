// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "platform/Geometry.h"

namespace kindora {

class UIView;

enum class UIPopoverArrowDirection { up, down };

/// What a presented controller belongs to, where it is shown as a bubble beside it. Kept for the
/// platform's interface: on a phone's screen sheets and pages come from below instead.
struct UIPopoverAnchor {
  std::weak_ptr<UIView> sourceView;
  CGRect sourceRect;  ///< in the source view's space
  UIPopoverArrowDirection permittedArrowDirection = UIPopoverArrowDirection::up;
};

}  // namespace kindora
