// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

namespace kindora {

class UIView;

/// Makes a view something that is pressed: by finger, pointer, keyboard or a screen reader.
struct UITapGestureRecognizer {
  /// Told the view that was tapped.
  std::function<void(UIView& view)> action;
  /// Told while a finger rests on the view, for feedback; may be empty.
  std::function<void(UIView& view, bool pressed)> pressedChanged;
  bool enabled = true;
};

}  // namespace kindora
