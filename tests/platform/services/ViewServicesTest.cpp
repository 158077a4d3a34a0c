// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/services/ViewServices.h"

#include <gtest/gtest.h>

#include "platform/fakes/FakeViewServices.h"

namespace kindora {
namespace {

TEST(ViewServicesDeathTest, AskingBeforeAnyAreInstalledStops) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");  // in a program started anew
  EXPECT_DEATH(static_cast<void>(viewServices()), "^fatal error: no view services installed\n");
}

TEST(ViewServicesDeathTest, InstallingWithOneMissingStops) {
  const FakeViewServices fakes = installFakeViewServices();
  const ViewServices all{.text = fakes.text,
                         .mainScreen = fakes.mainScreen,
                         .motion = fakes.motion,
                         .looks = fakes.looks};
  const auto installWithout = [&all](auto service) {
    ViewServices most = all;
    (most.*service).reset();
    installViewServices(most);
  };
  const char* const complaint = "^fatal error: a view service is missing\n";
  EXPECT_DEATH(installWithout(&ViewServices::text), complaint);
  EXPECT_DEATH(installWithout(&ViewServices::mainScreen), complaint);
  EXPECT_DEATH(installWithout(&ViewServices::motion), complaint);
  EXPECT_DEATH(installWithout(&ViewServices::looks), complaint);
}

TEST(ViewServices, ThoseInstalledLastAreInForce) {
  installFakeViewServices();
  const FakeViewServices fakes = installFakeViewServices();
  EXPECT_TRUE(hasViewServices());
  EXPECT_EQ(viewServices().text, fakes.text);
  EXPECT_EQ(viewServices().mainScreen, fakes.mainScreen);
  EXPECT_EQ(viewServices().motion, fakes.motion);
  EXPECT_EQ(viewServices().looks, fakes.looks);
}

}  // namespace
}  // namespace kindora
