// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "model/User.h"

#include <gtest/gtest.h>

#include <concepts>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>

namespace kindora {
namespace {

static_assert(!std::is_copy_constructible_v<User> && !std::is_copy_assignable_v<User>);
static_assert(std::same_as<decltype(User::name), std::string>);
static_assert(std::same_as<decltype(User::picture), UIImageRef>);
static_assert(std::same_as<decltype(User::pictureURL), std::optional<URL>>);

TEST(User, FreshOneIsNamedUserWithoutPictureAndAddress) {
  const User user;
  EXPECT_EQ(user.name, "User");
  EXPECT_EQ(user.picture, nullptr);
  EXPECT_EQ(user.pictureURL, std::nullopt);
}

TEST(User, KeepsTheThreeValuesGiven) {
  const UIImageRef picture = UIImage::imageWithRaster(Raster(1, 1));
  const auto address = URL::URLWithString("https://example.org/jane.jpg");
  const User user("Jane Doe", picture, address);
  EXPECT_EQ(user.name, "Jane Doe");
  EXPECT_EQ(user.picture, picture);
  EXPECT_EQ(user.pictureURL, address);
}

TEST(User, NameMayBeEmptyAndPictureAndAddressAbsent) {
  const User user("", nullptr, std::nullopt);
  EXPECT_EQ(user.name, "");
  EXPECT_EQ(user.picture, nullptr);
  EXPECT_EQ(user.pictureURL, std::nullopt);
}

}  // namespace
}  // namespace kindora
