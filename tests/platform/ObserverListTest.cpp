// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/ObserverList.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

namespace kindora {
namespace {

class ObserverListTest : public ::testing::Test {
 protected:
  // Writes down the number that it is told, and which observer heard it.
  Subscription listen(int who) {
    return list.add([this, who](int number) { heard.emplace_back(who, number); });
  }

  using Heard = std::vector<std::pair<int, int>>;
  Heard heard;
  ObserverList<int> list;
};

TEST_F(ObserverListTest, TellsEveryObserverInTheOrderInWhichTheyCame) {
  const Subscription first = listen(1);
  const Subscription second = listen(2);
  list.notify(7);
  EXPECT_EQ(heard, (Heard{{1, 7}, {2, 7}}));
}

TEST_F(ObserverListTest, TellsNobodyOfWhatWasBefore) {
  list.notify(7);
  const Subscription late = listen(1);
  EXPECT_EQ(heard, Heard{});
}

TEST_F(ObserverListTest, ASubscriptionEndsWithItsOwner) {
  { const Subscription subscription = listen(1); }
  list.notify(7);
  EXPECT_EQ(heard, Heard{});
}

TEST_F(ObserverListTest, ASubscriptionMayBeEnded) {
  Subscription subscription = listen(1);
  subscription.reset();
  list.notify(7);
  EXPECT_EQ(heard, Heard{});
}

TEST_F(ObserverListTest, ASubscriptionThatIsReplacedEnds) {
  Subscription subscription = listen(1);
  subscription = listen(2);
  list.notify(7);
  EXPECT_EQ(heard, (Heard{{2, 7}}));
}

TEST_F(ObserverListTest, ASubscriptionThatIsMovedStays) {
  Subscription first = listen(1);
  const Subscription second = std::move(first);
  first.reset();  // NOLINT(bugprone-use-after-move): what was moved from stands for nobody
  list.notify(7);
  EXPECT_EQ(heard, (Heard{{1, 7}}));
}

TEST(Subscription, HasOneOwner) {
  static_assert(!std::is_copy_constructible_v<Subscription>);
  static_assert(!std::is_copy_assignable_v<Subscription>);
}

TEST_F(ObserverListTest, AnObserverMayEndItselfAndStillUseWhatItHolds) {
  Subscription own;
  own = list.add([this, &own, who = std::make_shared<int>(5)](int number) {
    own.reset();
    heard.emplace_back(*who, number);
  });
  list.notify(7);
  list.notify(8);
  EXPECT_EQ(heard, (Heard{{5, 7}}));
}

TEST_F(ObserverListTest, WhoHasEndedMeanwhileIsNotTold) {
  std::optional<Subscription> second;
  const Subscription first = list.add([&second](int) { second.reset(); });
  second = listen(2);
  list.notify(7);
  EXPECT_EQ(heard, Heard{});
}

TEST_F(ObserverListTest, WhoBeginsMeanwhileIsToldTheNextTime) {
  std::vector<Subscription> later;
  const Subscription first = list.add([&](int) {
    if (later.empty()) later.push_back(listen(2));
  });
  list.notify(7);
  EXPECT_EQ(heard, Heard{});
  list.notify(8);
  EXPECT_EQ(heard, (Heard{{2, 8}}));
}

TEST_F(ObserverListTest, AnObserverMayNotify) {
  const Subscription first = list.add([this](int number) {
    if (number > 0) list.notify(number - 1);
  });
  const Subscription second = listen(2);
  list.notify(2);
  EXPECT_EQ(heard, (Heard{{2, 0}, {2, 1}, {2, 2}}));
}

TEST_F(ObserverListTest, AnObserverMayEndTheList) {
  auto passing = std::make_unique<ObserverList<int>>();
  const Subscription first = passing->add([&passing](int) { passing.reset(); });
  const Subscription second = passing->add([this](int number) { heard.emplace_back(2, number); });
  passing->notify(7);
  EXPECT_EQ(heard, (Heard{{2, 7}}));
}

TEST_F(ObserverListTest, ASubscriptionMayOutliveTheList) {
  auto passing = std::make_unique<ObserverList<int>>();
  Subscription subscription = passing->add([](int) {});
  passing.reset();
  subscription.reset();
  EXPECT_EQ(passing, nullptr);
}

TEST_F(ObserverListTest, ACopyTellsTheSameObservers) {
  const Subscription first = listen(1);
  const ObserverList<int> copy = list;
  copy.notify(7);
  EXPECT_EQ(heard, (Heard{{1, 7}}));
}

TEST_F(ObserverListTest, LetsGoOfAnObserverWithItsSubscription) {
  auto held = std::make_shared<int>(1);
  const std::weak_ptr<int> gone = held;
  Subscription subscription = list.add([held](int) {});
  held.reset();
  EXPECT_FALSE(gone.expired());
  subscription.reset();
  EXPECT_TRUE(gone.expired());
}

}  // namespace
}  // namespace kindora
