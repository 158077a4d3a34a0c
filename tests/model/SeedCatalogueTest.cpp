// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "model/SeedCatalogue.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/fakes/FakeServices.h"

namespace kindora {
namespace {

struct Expected {
  std::string row;
  std::string title;
  std::string image;
  std::string description;
  std::string sender;
  std::string face;
  SeedPlace place;
};

const std::array<Expected, 8> kExpected{{
    {"Coffee", "Cup o' Coffee", "coffee", "Buy a coffee for someone!", "Bob the Astronaut", "face0",
     SeedPlace::kNew},
    {"Smile", "Smile Challenge", "smile", "Smile at the next 5 people!", "Joe in the Red Shirt",
     "face1", SeedPlace::kNew},
    {"Door", "Love is an Open Door", "door", "Open a door for someone!", "Sarah the Sloth", "face2",
     SeedPlace::kNew},
    {"Air", "Catch Your Breath", "air", "Get a breath of fresh air!", "Josh the Whale", "face3",
     SeedPlace::kInProgress},
    {"Compliment", "Compliment Challenge", "compliment", "Give someone a compliment!", "Your Boss",
     "face4", SeedPlace::kInProgress},
    {"Chocolate", "Chocolate Challenge", "chocolate", "Indulge in something sweet!",
     "Jane the Cactus", "face5", SeedPlace::kHidden},
    {"Hug", "Hug Challenge", "hug", "Give a friend a hug!", "Sally the Eye", "face6",
     SeedPlace::kHidden},
    {"Music", "Music Challenge", "music", "Share your favorite song with someone!",
     "Horace the Smiley", "face7", SeedPlace::kHidden},
}};

class SeedCatalogueRow : public ::testing::TestWithParam<std::size_t> {
 protected:
  FakeServices fakes = installFakeServices();
  const Expected& expected = kExpected[GetParam()];
};

TEST_P(SeedCatalogueRow, HoldsItsTextsAndPictures) {
  const SeedChallenge seed = makeSeedCatalogue().at(GetParam());
  EXPECT_EQ(seed.challenge->title, expected.title);
  EXPECT_EQ(seed.challenge->description, expected.description);
  EXPECT_EQ(seed.challenge->challengeImage, fakes.bundle->imageNamed(expected.image));
  EXPECT_EQ(seed.challenge->sender->name, expected.sender);
  EXPECT_EQ(seed.challenge->sender->picture, fakes.bundle->imageNamed(expected.face));
  EXPECT_EQ(seed.place, expected.place);
}

TEST_P(SeedCatalogueRow, KeepsTheDefaultsOfEverythingElse) {
  const SeedChallenge seed = makeSeedCatalogue().at(GetParam());
  EXPECT_FALSE(seed.challenge->passedOn);
  EXPECT_EQ(seed.challenge->numSincePassedOn, 0);
  EXPECT_FALSE(seed.challenge->created);
  EXPECT_EQ(seed.challenge->sender->pictureURL, std::nullopt);
}

TEST_P(SeedCatalogueRow, LacksAPictureWhoseResourceIsMissing) {
  fakes.bundle->setMissing(expected.image);
  fakes.bundle->setMissing(expected.face);
  const SeedChallenge seed = makeSeedCatalogue().at(GetParam());
  EXPECT_EQ(seed.challenge->challengeImage, nullptr);
  EXPECT_EQ(seed.challenge->sender->picture, nullptr);
  EXPECT_EQ(seed.challenge->title, expected.title);
}

INSTANTIATE_TEST_SUITE_P(Rows, SeedCatalogueRow, ::testing::Range<std::size_t>(0, kExpected.size()),
                         [](const auto& row) { return kExpected[row.param].row; });

TEST(SeedCatalogue, HasEightChallenges) {
  const FakeServices fakes = installFakeServices();
  EXPECT_EQ(makeSeedCatalogue().size(), 8u);
}

TEST(SeedCatalogue, MakesNewRecordsAndSendersEachTime) {
  const FakeServices fakes = installFakeServices();
  std::set<ChallengeRef> challenges;
  std::set<UserRef> senders;
  for (int i = 0; i < 2; ++i) {
    for (const SeedChallenge& seed : makeSeedCatalogue()) {
      challenges.insert(seed.challenge);
      senders.insert(seed.challenge->sender);
    }
  }
  EXPECT_EQ(challenges.size(), 16u);
  EXPECT_EQ(senders.size(), 16u);
}

TEST(SeedCatalogue, PrintsNothingWhenAllResourcesAreMissing) {
  const FakeServices fakes = installFakeServices();
  fakes.bundle->setOthersMissing();
  ::testing::internal::CaptureStdout();
  ::testing::internal::CaptureStderr();
  const std::vector<SeedChallenge> catalogue = makeSeedCatalogue();
  EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
  EXPECT_TRUE(fakes.console->lines().empty());
  EXPECT_EQ(catalogue.size(), 8u);
}

}  // namespace
}  // namespace kindora
