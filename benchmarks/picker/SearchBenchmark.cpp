// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// One iteration is one letter typed into the picker's search: the whole list is searched anew. The
// floor looks for the same bytes in the same names.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

#include "benchmarks/picker/ManyFriends.h"
#include "model/FriendSearch.h"
#include "platform/fakes/FakeServices.h"
#include "platform/qt/IcuTextService.h"
#include "platform/services/Services.h"

namespace kindora {
namespace {

constexpr std::string_view kText = "an";

void searchKeystroke(benchmark::State& state) {
  const std::vector<UserRef> users = manyFriends(static_cast<std::size_t>(state.range(0)));
  for (auto iteration : state) benchmark::DoNotOptimize(usersWithNameContaining(users, kText));
}
BENCHMARK(searchKeystroke)
    ->Name("Picker/SearchKeystroke")
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMicrosecond);

void byteScan(benchmark::State& state) {
  const std::vector<UserRef> users = manyFriends(static_cast<std::size_t>(state.range(0)));
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
