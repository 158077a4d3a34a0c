// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/TapItem.h"

#include "toolkit/view/UITapGestureRecognizer.h"

namespace kindora {

bool TapItem::isTappable() const {
  return view() && view()->tapGestureRecognizer() && view()->tapGestureRecognizer()->enabled;
}

void TapItem::tap() {
  if (!isTappable()) return;
  // The view, or its recogniser, may go while it is told.
  const UIViewRef tapped = view();
  const auto recognizer = tapped->tapGestureRecognizer();
  if (recognizer->action) recognizer->action(*tapped);
}

void TapItem::press(bool pressed) {
  const UIViewRef touched = view();
  const auto recognizer = touched ? touched->tapGestureRecognizer() : nullptr;
  if (recognizer && recognizer->pressedChanged) recognizer->pressedChanged(*touched, pressed);
}

}  // namespace kindora
