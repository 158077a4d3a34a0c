// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/KeyValueObserving.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace kindora {
namespace {

// Its sum depends on both parts, its report on the sum.
class Account final : public KeyValueObserving {
 public:
  Account() = default;
  Account(const Account&) = default;

  void setLeft(int value) { change(left_, value, "left"); }
  void setRight(int value) { change(right_, value, "right"); }
  void setColor(int value) { change(color_, value, "color"); }
  [[nodiscard]] int sum() const { return left_ + right_; }

  [[nodiscard]] Keys keyPathsForValuesAffectingValueForKey(std::string_view key) const override {
    if (key == "sum") return {"left", "right"};
    if (key == "report") return {"sum"};
    return KeyValueObserving::keyPathsForValuesAffectingValueForKey(key);
  }

 private:
  int left_ = 0;
  int right_ = 0;
  int color_ = 0;
};

TEST(KeyValueObserving, TellsOfEveryChangeOfTheKeyAfterIt) {
  Account account;
  std::vector<int> seen;
  const auto subscription = account.addObserver("left", [&] { seen.push_back(account.sum()); });
  account.setLeft(3);
  account.setLeft(3);
  EXPECT_EQ(seen, (std::vector<int>{3, 3}));
}

TEST(KeyValueObserving, OtherKeysAreNotToldOf) {
  Account account;
  int told = 0;
  const auto subscription = account.addObserver("left", [&] { ++told; });
  account.setRight(1);
  account.setColor(1);
  EXPECT_EQ(told, 0);
}

TEST(KeyValueObserving, DependentKeyChangesWithWhatItDependsOn) {
  Account account;
  int told = 0;
  const auto subscription = account.addObserver("sum", [&] { ++told; });
  account.setLeft(1);
  account.setRight(1);
  account.setColor(1);
  EXPECT_EQ(told, 2);
}

TEST(KeyValueObserving, DependenciesReachOverSeveralSteps) {
  Account account;
  int told = 0;
  const auto subscription = account.addObserver("report", [&] { ++told; });
  account.setRight(1);
  EXPECT_EQ(told, 1);
}

TEST(KeyValueObserving, EndsWithTheSubscription) {
  Account account;
  int told = 0;
  {
    const auto subscription = account.addObserver("left", [&] { ++told; });
    account.setLeft(1);
  }
  account.setLeft(2);
  EXPECT_EQ(told, 1);
}

TEST(KeyValueObserving, NewSubscriptionReplacesTheOldOne) {
  Account account;
  int old = 0;
  int now = 0;
  auto subscription = account.addObserver("left", [&] { ++old; });
  subscription = account.addObserver("left", [&] { ++now; });
  account.setLeft(1);
  EXPECT_EQ(old, 0);
  EXPECT_EQ(now, 1);
}

TEST(KeyValueObserving, SubscriptionMayOutliveTheObserved) {
  Subscription subscription;
  {
    Account account;
    subscription = account.addObserver("left", [] {});
  }
  subscription = {};
}

TEST(KeyValueObserving, ObserverRemovedByAnotherIsNotCalledAnyMore) {
  Account account;
  int told = 0;
  std::optional<Subscription> second;
  const auto first = account.addObserver("left", [&] { second.reset(); });
  second = account.addObserver("left", [&] { ++told; });
  account.setLeft(1);
  EXPECT_EQ(told, 0);
}

TEST(KeyValueObserving, ObserverAddedByAnotherHearsOfTheNextChange) {
  Account account;
  int told = 0;
  std::optional<Subscription> second;
  const auto first = account.addObserver("left", [&] {
    if (!second) second = account.addObserver("left", [&] { ++told; });
  });
  account.setLeft(1);
  EXPECT_EQ(told, 0);
  account.setLeft(2);
  EXPECT_EQ(told, 1);
}

TEST(KeyValueObserving, CopyHasNoObservers) {
  Account account;
  int told = 0;
  const auto subscription = account.addObserver("left", [&] { ++told; });
  Account copy(account);
  copy.setLeft(1);
  EXPECT_EQ(told, 0);
}

}  // namespace
}  // namespace kindora
