// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/RunAfterDelay.h"

#include <chrono>
#include <cstdint>
#include <utility>

#include "platform/FatalError.h"

namespace kindora {

void runAfterDelay(double seconds, DispatchQueue& queue, std::function<void()> closure) {
  const double nanoseconds = seconds * 1e9;
  // Written so that a delay which is not a number fails too. 2^63 itself does not fit.
  if (!(nanoseconds >= -0x1p63 && nanoseconds < 0x1p63)) {
    fatalError("the delay is not a number of nanoseconds");
  }
  queue.after(std::chrono::nanoseconds(static_cast<std::int64_t>(nanoseconds)), std::move(closure));
}

}  // namespace kindora
