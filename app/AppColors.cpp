// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/AppColors.h"

namespace kindora {

UIColor appColor() { return {.red = 0.396, .green = 0.784, .blue = 0.208, .alpha = 1.0}; }

}  // namespace kindora
