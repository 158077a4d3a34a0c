// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include "platform/services/DispatchQueue.h"

namespace kindora {

/// Runs the closure once on the queue after that many seconds and returns at once; there is no way
/// to cancel it. A delay of 0 or less runs it as soon as possible, never inside this call. Stops
/// when the delay is not finite or its nanoseconds do not fit a signed 64-bit integer.
void runAfterDelay(double seconds, DispatchQueue& queue, std::function<void()> closure);

}  // namespace kindora
