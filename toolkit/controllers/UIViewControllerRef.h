// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

namespace kindora {

class UIViewController;

using UIViewControllerRef = std::shared_ptr<UIViewController>;

}  // namespace kindora
