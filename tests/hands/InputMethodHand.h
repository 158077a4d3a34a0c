// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "tests/hands/FingerHand.h"

namespace kindora {

/// Fingers, and a keyboard on the screen that composes what it writes: each character is shown
/// before it is committed, together with the next one.
class InputMethodHand final : public FingerHand {
 public:
  using FingerHand::FingerHand;
  void type(const std::string& field, const std::string& text) override;
};

}  // namespace kindora
