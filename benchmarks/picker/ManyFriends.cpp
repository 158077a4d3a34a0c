// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/picker/ManyFriends.h"

#include <array>
#include <memory>
#include <random>
#include <string>

namespace kindora {

std::vector<UserRef> manyFriends(std::size_t count) {
  constexpr std::array<const char*, 10> kFirst{"Diana", "Bob",   "Horace", "Jane",  "José",
                                               "Sally", "Sarah", "Zoë",    "Marek", "Priya"};
  constexpr std::array<const char*, 8> kLast{"Anderson",  "Field",  "Okafor", "van Dam",
                                             "Lindqvist", "Moreno", "Tanaka", "Rossi"};
  std::mt19937 random(7);
  std::vector<UserRef> users;
  users.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    const std::string name =
        std::string(kFirst[random() % kFirst.size()]) + " " + kLast[random() % kLast.size()];
    users.push_back(std::make_shared<User>(name, nullptr, std::nullopt));
  }
  return users;
}

}  // namespace kindora
