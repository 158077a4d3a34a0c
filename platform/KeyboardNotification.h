// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

#include "platform/Geometry.h"

namespace kindora {

inline constexpr std::string_view UIKeyboardWillChangeFrameNotification =
    "UIKeyboardWillChangeFrameNotification";
inline constexpr std::string_view UIKeyboardWillShowNotification = "UIKeyboardWillShowNotification";
inline constexpr std::string_view UIKeyboardWillHideNotification = "UIKeyboardWillHideNotification";

/// What comes with each notification of the keyboard on the screen.
struct KeyboardNotification {
  /// Where it will be, in the window's space. Empty at the window's lower edge when it goes, so
  /// that what ends at the top of it always has all the room there is.
  CGRect endFrame;
  double duration = 0;  ///< seconds that the change takes
  friend constexpr bool operator==(const KeyboardNotification&,
                                   const KeyboardNotification&) = default;
};

}  // namespace kindora
