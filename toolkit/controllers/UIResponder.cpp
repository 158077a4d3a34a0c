// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIResponder.h"

#include "toolkit/controllers/UIApplication.h"

namespace kindora {
namespace {

UIResponder* first = nullptr;  // main thread only

void setFirst(UIResponder* responder) {
  first = responder;
  emit UIApplication::sharedApplication()->listensForMotionChanged();
}

}  // namespace

UIResponder::~UIResponder() {
  if (first == this) setFirst(nullptr);
}

bool UIResponder::becomeFirstResponder() {
  if (!canBecomeFirstResponder()) return false;
  setFirst(this);
  return true;
}

bool UIResponder::resignFirstResponder() {
  if (first == this) setFirst(nullptr);
  return true;
}

bool UIResponder::isFirstResponder() const { return first == this; }

UIResponder* UIResponder::firstResponder() { return first; }

}  // namespace kindora
