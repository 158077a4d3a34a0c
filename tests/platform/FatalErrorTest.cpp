// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/FatalError.h"

#include <gtest/gtest.h>

#include <csignal>

namespace kindora {
namespace {

TEST(FatalErrorDeathTest, PrintsTheMessageToStandardErrorAndAborts) {
  EXPECT_EXIT(fatalError("invalid section"), ::testing::KilledBySignal(SIGABRT),
              "^fatal error: invalid section\n$");
}

}  // namespace
}  // namespace kindora
