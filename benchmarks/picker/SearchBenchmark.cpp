// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// One iteration is one letter typed into the picker's search: the whole list is searched anew. The
// floor looks for the same bytes in the same names.
#include <benchmark/benchmark.h>

#include <array>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "model/FriendSearch.h"
#include "platform/fakes/FakeServices.h"
#include "platform/qt/IcuTextService.h"
#include "platform/services/Services.h"

namespace kindora {
namespace {

constexpr std::string_view kText = "an";

// Made-up names; one in five has a letter beyond ASCII.
std::vector<UserRef> friends(std::size_t count) {
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

void searchKeystroke(benchmark::State& state) {
  const std::vector<UserRef> users = friends(static_cast<std::size_t>(state.range(0)));
  for (auto iteration : state) benchmark::DoNotOptimize(usersWithNameContaining(users, kText));
}
BENCHMARK(searchKeystroke)
    ->Name("Picker/SearchKeystroke")
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMicrosecond);

void byteScan(benchmark::State& state) {
  const std::vector<UserRef> users = friends(static_cast<std::size_t>(state.range(0)));
  for (auto iteration : state) {
    std::vector<UserRef> found;
    for (const UserRef& user : users) {
      if (user->name.find(kText) != std::string::npos) found.push_back(user);
    }
    benchmark::DoNotOptimize(found);
  }
}
BENCHMARK(byteScan)
    ->Name("Picker/ByteScan")
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kindora

int main(int argc, char** argv) {
  kindora::installFakeServices();
  kindora::Services services = kindora::services();
  services.text = std::make_shared<kindora::IcuTextService>();
  kindora::installServices(services);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
