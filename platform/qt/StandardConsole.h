// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/services/Console.h"

namespace kindora {

/// The console on standard output. Each line is on its way when the call returns.
class StandardConsole final : public Console {
 public:
  void printLine(std::string_view text) override;
};

}  // namespace kindora
