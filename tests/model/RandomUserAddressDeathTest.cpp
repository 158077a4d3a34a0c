// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Built with an address that is none, see the CMake file.
#include <gtest/gtest.h>

#include "model/RandomUserAddress.h"

namespace kindora {
namespace {

TEST(RandomUserAddressDeathTest, AnAddressThatFormsNoUrlStops) {
  EXPECT_DEATH(static_cast<void>(randomUserAddress()),
               "^fatal error: the random-user service has no valid address\n");
}

}  // namespace
}  // namespace kindora
