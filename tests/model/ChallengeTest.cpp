// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "model/Challenge.h"

#include <gtest/gtest.h>

#include <concepts>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>

namespace kindora {
namespace {

static_assert(!std::is_copy_constructible_v<Challenge> && !std::is_copy_assignable_v<Challenge>);
static_assert(!std::is_move_constructible_v<Challenge> && !std::is_move_assignable_v<Challenge>);
static_assert(!std::is_constructible_v<Challenge, std::string>);
static_assert(!std::is_constructible_v<Challenge, std::string, std::string>);
static_assert(!std::is_aggregate_v<Challenge>);
static_assert(std::same_as<decltype(Challenge::title), std::optional<std::string>>);
static_assert(std::same_as<decltype(Challenge::description), std::optional<std::string>>);
static_assert(std::same_as<decltype(Challenge::passedOn), bool>);
static_assert(std::same_as<decltype(Challenge::created), bool>);
static_assert(std::same_as<decltype(Challenge::numSincePassedOn), std::int64_t>);

void fill(Challenge& challenge, const UIImageRef& image, const UserRef& sender) {
  challenge.title = "Hug Challenge";
  challenge.description = "Give a friend a hug!";
  challenge.challengeImage = image;
  challenge.sender = sender;
  challenge.passedOn = true;
  challenge.numSincePassedOn = std::int64_t{1} << 40;
  challenge.created = true;
}

TEST(Challenge, FreshOneHasNoTextsNoImageAndNoSender) {
  const Challenge challenge;
  EXPECT_FALSE(challenge.title.has_value());
  EXPECT_FALSE(challenge.description.has_value());
  EXPECT_EQ(challenge.challengeImage, nullptr);
  EXPECT_EQ(challenge.sender, nullptr);
}

TEST(Challenge, FreshOneIsNeitherPassedOnNorCreatedAndCountsNobody) {
  const Challenge challenge;
  EXPECT_FALSE(challenge.passedOn);
  EXPECT_EQ(challenge.numSincePassedOn, 0);
  EXPECT_FALSE(challenge.created);
}

TEST(Challenge, EveryFieldKeepsWhatIsPutIntoIt) {
  const UIImageRef image = UIImage::imageWithRaster(Raster(1, 1));
  const auto sender = std::make_shared<User>();
  Challenge challenge;
  fill(challenge, image, sender);
  EXPECT_EQ(challenge.title, "Hug Challenge");
  EXPECT_EQ(challenge.description, "Give a friend a hug!");
  EXPECT_EQ(challenge.challengeImage, image);
  EXPECT_EQ(challenge.sender, sender);
  EXPECT_TRUE(challenge.passedOn);
  EXPECT_EQ(challenge.numSincePassedOn, 1099511627776);
  EXPECT_TRUE(challenge.created);
}

TEST(Challenge, AbsentTextIsNotEmptyText) {
  Challenge challenge;
  challenge.title = "";
  EXPECT_TRUE(challenge.title.has_value());
  EXPECT_NE(challenge.title, std::nullopt);
  challenge.title = std::nullopt;
  EXPECT_FALSE(challenge.title.has_value());
}

TEST(Challenge, EqualsItself) {
  const Challenge challenge;
  const Challenge& same = challenge;
  EXPECT_TRUE(challenge == challenge);
  EXPECT_TRUE(challenge == same);
}

TEST(Challenge, DiffersFromOneWithTheSameFields) {
  const UIImageRef image = UIImage::imageWithRaster(Raster(1, 1));
  const auto sender = std::make_shared<User>();
  Challenge a;
  Challenge b;
  EXPECT_FALSE(a == b);
  fill(a, image, sender);
  fill(b, image, sender);
  EXPECT_FALSE(a == b);
  EXPECT_TRUE(a != b);
}

}  // namespace
}  // namespace kindora
