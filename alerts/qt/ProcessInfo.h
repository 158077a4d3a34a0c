// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

namespace kindora {

/// Whether the system can be asked for its version, as those can that have presentations of their
/// own kind.
[[nodiscard]] bool canAskForOperatingSystemVersion();

/// Replaces the answer; an empty function brings the system's own back.
void setOperatingSystemVersionQuestion(std::function<bool()> canBeAsked);

}  // namespace kindora
