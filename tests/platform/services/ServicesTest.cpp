// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/services/Services.h"

#include <gtest/gtest.h>

#include "platform/fakes/FakeServices.h"

namespace kindora {
namespace {

TEST(ServicesDeathTest, AskingBeforeAnyAreInstalledStops) {
  // In a program started anew, whatever other tests have installed in this one.
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(static_cast<void>(services()), "^fatal error: no services installed\n");
}

TEST(ServicesDeathTest, InstallingWithOneMissingStops) {
  installFakeServices();
  for (int missing = 0; missing < 7; ++missing) {
    Services incomplete = services();
    if (missing == 0) incomplete.mainQueue = nullptr;
    if (missing == 1) incomplete.http = nullptr;
    if (missing == 2) incomplete.json = nullptr;
    if (missing == 3) incomplete.bundle = nullptr;
    if (missing == 4) incomplete.text = nullptr;
    if (missing == 5) incomplete.console = nullptr;
    if (missing == 6) incomplete.photos = nullptr;
    EXPECT_DEATH(installServices(incomplete), "^fatal error: a service is missing\n") << missing;
  }
}

TEST(Services, ThoseInstalledLastAreInForce) {
  installFakeServices();
  const FakeServices fakes = installFakeServices();
  EXPECT_EQ(services().mainQueue, fakes.mainQueue);
  EXPECT_EQ(services().http, fakes.http);
  EXPECT_EQ(services().json, fakes.json);
  EXPECT_EQ(services().bundle, fakes.bundle);
  EXPECT_EQ(services().text, fakes.text);
  EXPECT_EQ(services().console, fakes.console);
  EXPECT_EQ(services().photos, fakes.photos);
}

}  // namespace
}  // namespace kindora
