// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "model/RandomUserAddress.h"

#include <optional>

#include "platform/FatalError.h"

namespace kindora {

URL randomUserAddress() {
  std::optional<URL> address = URL::URLWithString(KINDORA_RANDOM_USER_URL);
  if (!address) fatalError("the random-user service has no valid address");
  return *std::move(address);
}

}  // namespace kindora
