// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/fakes/FakeBundle.h"

#include <gtest/gtest.h>

namespace kindora {
namespace {

TEST(FakeBundle, GivesEveryNameAPictureOfItsOwnAndKeepsIt) {
  FakeBundle bundle;
  const UIImageRef a = bundle.imageNamed("a");
  EXPECT_NE(a, nullptr);
  EXPECT_EQ(bundle.imageNamed("a"), a);
  EXPECT_NE(bundle.imageNamed("b"), a);
}

TEST(FakeBundle, GivesNoneForANameSaidToBeMissing) {
  FakeBundle bundle;
  bundle.setMissing("a");
  EXPECT_EQ(bundle.imageNamed("a"), nullptr);
}

TEST(FakeBundle, GivesOnlyThePicturesThatWereSetWhenTheOthersAreMissing) {
  FakeBundle bundle;
  const UIImageRef image = UIImage::imageWithRaster(Raster(1, 1));
  bundle.setImage("a", image);
  bundle.setOthersMissing();
  EXPECT_EQ(bundle.imageNamed("a"), image);
  EXPECT_EQ(bundle.imageNamed("b"), nullptr);
}

}  // namespace
}  // namespace kindora
