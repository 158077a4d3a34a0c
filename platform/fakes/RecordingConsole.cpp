// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/fakes/RecordingConsole.h"

namespace kindora {

void RecordingConsole::printLine(std::string_view text) {
  const std::lock_guard lock(mutex_);
  lines_.emplace_back(text);
}

std::vector<std::string> RecordingConsole::lines() const {
  const std::lock_guard lock(mutex_);
  return lines_;
}

}  // namespace kindora
