// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UINavigationBar.h"

namespace kindora {

UINavigationBarAppearance& UINavigationBar::appearance() {
  static UINavigationBarAppearance look;
  return look;
}

}  // namespace kindora
