// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIResponder.h"

#include "toolkit/controllers/UIApplication.h"

namespace kindora {

UIResponder::UIResponder() : Responder(ResponderEvents::motions) {}

UIResponder::~UIResponder() { resignFirstResponder(); }

bool UIResponder::becomeFirstResponder() {
  if (!canBecomeFirstResponder()) return false;
  enterResponderChain();
  return true;
}

bool UIResponder::resignFirstResponder() {
  leaveResponderChain();
  return true;
}

UIResponder* UIResponder::motionResponder() {
  return dynamic_cast<UIResponder*>(responderFor(ResponderEvents::motions));
}

void UIResponder::respondingDidChange() {
  emit UIApplication::sharedApplication()->listensForMotionChanged();
}

}  // namespace kindora
