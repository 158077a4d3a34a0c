// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/picker/FriendTableViewCell.h"

#include <gtest/gtest.h>

namespace kindora {
namespace {

class FriendTableViewCellTest : public ::testing::Test {
 protected:
  const std::shared_ptr<FriendTableViewCell> cell = FriendTableViewCell::fromPrototype();
  const User diana{"Diana", UIImage::imageWithRaster(Raster(1, 1)), std::nullopt};
};

TEST_F(FriendTableViewCellTest, ThePrototypeConnectsItsOutlets) {
  EXPECT_EQ(cell->outlet("friendImageView"), cell->friendImageView.lock());
  EXPECT_EQ(cell->outlet("nameLabel"), cell->nameLabel.lock());
  EXPECT_NE(cell->nameLabel.lock(), nullptr);
}

TEST_F(FriendTableViewCellTest, ShowsPictureAndName) {
  cell->setUser(diana);
  EXPECT_EQ(cell->friendImageView.lock()->image(), diana.picture);
  EXPECT_EQ(cell->nameLabel.lock()->text(), "Diana");
}

TEST_F(FriendTableViewCellTest, AFriendWithoutAPictureClearsTheOneBefore) {
  cell->setUser(diana);
  cell->setUser({"Joe", nullptr, std::nullopt});
  EXPECT_EQ(cell->friendImageView.lock()->image(), nullptr);
  EXPECT_EQ(cell->nameLabel.lock()->text(), "Joe");
}

TEST_F(FriendTableViewCellTest, AForgottenOutletStops) {
  FriendTableViewCell bare;
  EXPECT_DEATH(bare.setUser(diana), "fatal error: an outlet is not connected");
}

}  // namespace
}  // namespace kindora
