// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/URL.h"

namespace kindora {

/// The address of the random-user web service, a constant of the build. Stops when it is no
/// address.
[[nodiscard]] URL randomUserAddress();

}  // namespace kindora
