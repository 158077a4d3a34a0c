// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "model/User.h"
#include "platform/UIImage.h"

namespace kindora {

/// A small act of kindness. Shared by reference and never copied; two challenges are equal only
/// when they are the same object.
class Challenge final {
 public:
  Challenge() = default;
  Challenge(const Challenge&) = delete;
  Challenge& operator=(const Challenge&) = delete;

  friend bool operator==(const Challenge& a, const Challenge& b) { return &a == &b; }

  std::optional<std::string> title;
  std::optional<std::string> description;
  UIImageRef challengeImage;
  /// The friend it came from; none for a challenge of the user's own.
  UserRef sender;
  /// Whether the user has passed it on to friends.
  bool passedOn = false;
  /// How many people have completed it since the user passed it on.
  std::int64_t numSincePassedOn = 0;
  /// Whether the user made it, rather than received it.
  bool created = false;
};

using ChallengeRef = std::shared_ptr<Challenge>;

}  // namespace kindora
