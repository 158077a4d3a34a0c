// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "platform/services/Console.h"

namespace kindora {

/// A console that keeps its lines.
class RecordingConsole final : public Console {
 public:
  void printLine(std::string_view text) override;

  /// All lines so far, without their newlines.
  [[nodiscard]] std::vector<std::string> lines() const;

 private:
  mutable std::mutex mutex_;
  std::vector<std::string> lines_;
};

}  // namespace kindora
