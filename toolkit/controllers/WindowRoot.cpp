// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/WindowRoot.h"

#include "toolkit/controllers/UIWindow.h"

namespace kindora {

UIWindow* WindowRoot::ownWindow() const { return window_; }

}  // namespace kindora
