// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "model/SeedCatalogue.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "platform/services/Services.h"

namespace kindora {
namespace {

struct Row {
  std::string_view title;
  std::string_view image;
  std::string_view description;
  std::string_view senderName;
  std::string_view senderPicture;
  SeedPlace place;
};

constexpr std::array<Row, 8> kRows{{
    {"Cup o' Coffee", "coffee", "Buy a coffee for someone!", "Bob the Astronaut", "face0",
     SeedPlace::kNew},
    {"Smile Challenge", "smile", "Smile at the next 5 people!", "Joe in the Red Shirt", "face1",
     SeedPlace::kNew},
    {"Love is an Open Door", "door", "Open a door for someone!", "Sarah the Sloth", "face2",
     SeedPlace::kNew},
    {"Catch Your Breath", "air", "Get a breath of fresh air!", "Josh the Whale", "face3",
     SeedPlace::kInProgress},
    {"Compliment Challenge", "compliment", "Give someone a compliment!", "Your Boss", "face4",
     SeedPlace::kInProgress},
    {"Chocolate Challenge", "chocolate", "Indulge in something sweet!", "Jane the Cactus", "face5",
     SeedPlace::kHidden},
    {"Hug Challenge", "hug", "Give a friend a hug!", "Sally the Eye", "face6", SeedPlace::kHidden},
    {"Music Challenge", "music", "Share your favorite song with someone!", "Horace the Smiley",
     "face7", SeedPlace::kHidden},
}};

ChallengeRef makeChallenge(const Row& row) {
  ResourceBundle& bundle = *services().bundle;
  auto challenge = std::make_shared<Challenge>();
  challenge->title = row.title;
  challenge->challengeImage = bundle.imageNamed(row.image);
  challenge->description = row.description;
  challenge->sender = std::make_shared<User>(std::string(row.senderName),
                                             bundle.imageNamed(row.senderPicture), std::nullopt);
  return challenge;
}

}  // namespace

std::vector<SeedChallenge> makeSeedCatalogue() {
  std::vector<SeedChallenge> catalogue;
  catalogue.reserve(kRows.size());
  for (const Row& row : kRows) catalogue.push_back({makeChallenge(row), row.place});
  return catalogue;
}

}  // namespace kindora
