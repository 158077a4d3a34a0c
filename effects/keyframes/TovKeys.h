// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Keys that several animations report or depend on.
#pragma once

#include <string_view>

namespace kindora {

inline constexpr std::string_view kTovAnimationBlockKey = "animationBlock";
inline constexpr std::string_view kTovFromValueKey = "fromValue";
inline constexpr std::string_view kTovToValueKey = "toValue";
// Declared as dependencies and reported by nobody, so that new end values alone notify no observer
// of an animation block. That silence is part of the engine's promise.
inline constexpr std::string_view kTovFromKey = "from";
inline constexpr std::string_view kTovToKey = "to";

}  // namespace kindora
