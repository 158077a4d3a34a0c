// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/NotificationCenter.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace kindora {
namespace {

class NotificationCenterTest : public ::testing::Test {
 protected:
  // Writes down the number that comes with the post, and which observer heard it.
  Subscription listen(std::string_view name, int who) {
    return center.observe(name, [this, who](const std::any& info) {
      heard.emplace_back(who, std::any_cast<int>(info));
    });
  }

  using Heard = std::vector<std::pair<int, int>>;
  Heard heard;
  NotificationCenter center;
};

TEST_F(NotificationCenterTest, ReachesWhoeverObservesTheNameInOrder) {
  const Subscription first = listen("a", 1);
  const Subscription second = listen("a", 2);
  const Subscription other = listen("b", 3);
  center.post("a", 7);
  EXPECT_EQ(heard, (Heard{{1, 7}, {2, 7}}));
}

TEST_F(NotificationCenterTest, ReachesNobodyElse) {
  center.post("a", 7);
  const Subscription late = listen("a", 1);
  EXPECT_EQ(heard, Heard{});
}

TEST_F(NotificationCenterTest, MayComeWithoutInformation) {
  bool empty = false;
  const Subscription subscription =
      center.observe("a", [&](const std::any& info) { empty = !info.has_value(); });
  center.post("a");
  EXPECT_TRUE(empty);
}

TEST_F(NotificationCenterTest, ASubscriptionEndsWithItsOwner) {
  { const Subscription subscription = listen("a", 1); }
  center.post("a", 7);
  EXPECT_EQ(heard, Heard{});
}

TEST_F(NotificationCenterTest, ASubscriptionThatIsReplacedEnds) {
  Subscription subscription = listen("a", 1);
  subscription = listen("a", 2);
  center.post("a", 7);
  EXPECT_EQ(heard, (Heard{{2, 7}}));
}

TEST_F(NotificationCenterTest, ASubscriptionThatIsMovedStays) {
  Subscription first = listen("a", 1);
  const Subscription second = std::move(first);
  center.post("a", 7);
  EXPECT_EQ(heard, (Heard{{1, 7}}));
}

TEST_F(NotificationCenterTest, AnObserverMayEndItselfAndOthers) {
  std::optional<Subscription> first;
  std::optional<Subscription> second;
  first = center.observe("a", [&](const std::any&) {
    first.reset();
    second.reset();
    heard.emplace_back(1, 0);
  });
  second = listen("a", 2);
  center.post("a", 7);
  center.post("a", 8);
  EXPECT_EQ(heard, (Heard{{1, 0}}));
}

TEST_F(NotificationCenterTest, WhoeverBeginsMeanwhileHearsTheNextOne) {
  std::vector<Subscription> later;
  const Subscription first = center.observe("a", [&](const std::any&) {
    if (later.empty()) later.push_back(listen("a", 2));
  });
  center.post("a", 7);
  EXPECT_EQ(heard, Heard{});
  center.post("a", 8);
  EXPECT_EQ(heard, (Heard{{2, 8}}));
}

TEST_F(NotificationCenterTest, AnObserverMayPost) {
  const Subscription first = center.observe("a", [&](const std::any&) { center.post("b", 9); });
  const Subscription second = listen("b", 2);
  center.post("a");
  EXPECT_EQ(heard, (Heard{{2, 9}}));
}

TEST(NotificationCenter, ASubscriptionMayOutliveTheCentre) {
  auto center = std::make_unique<NotificationCenter>();
  Subscription subscription = center->observe("a", [](const std::any&) {});
  center.reset();
  subscription = {};
}

TEST(NotificationCenter, ThereIsOneForAll) {
  EXPECT_EQ(&NotificationCenter::defaultCenter(), &NotificationCenter::defaultCenter());
}

}  // namespace
}  // namespace kindora
