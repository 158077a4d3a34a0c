// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>

#include "model/Challenge.h"

namespace kindora {

inline ChallengeRef badge(const std::string& title) {
  auto challenge = std::make_shared<Challenge>();
  challenge->title = title;
  return challenge;
}

}  // namespace kindora
