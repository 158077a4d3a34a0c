// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "phoneformat/tool/Arguments.h"

namespace kindora {

enum class ExitCode { success = 0, badInput = 1, usage = 2 };

/// Does what the arguments say: results on standard output, what is wrong on standard error.
[[nodiscard]] ExitCode runCommand(const Arguments& arguments);

/// How the program is called, for people.
void printUsage();

}  // namespace kindora
