// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/card/QavAlertAction.h"

#include <gmock/gmock.h>

#include <vector>

namespace kindora {
namespace {

using testing::ElementsAre;

TEST(QavAlertAction, StylesHaveTheirNumbers) {
  EXPECT_EQ(static_cast<int>(QavAlertActionStyle::standard), 0);
  EXPECT_EQ(static_cast<int>(QavAlertActionStyle::cancel), 1);
  EXPECT_EQ(static_cast<int>(QavAlertActionStyle::destructive), 2);
}

TEST(QavAlertAction, HasThePlainTitleThatItWasMadeWithAndNoOther) {
  const auto action = QavAlertAction::actionWithTitle("Keep", QavAlertActionStyle::cancel);
  EXPECT_EQ(action->title(), "Keep");
  EXPECT_EQ(action->attributedTitle(), std::nullopt);
  EXPECT_EQ(action->style(), QavAlertActionStyle::cancel);
  EXPECT_FALSE(action->handler());
}

TEST(QavAlertAction, HasTheAttributedTitleThatItWasMadeWithAndNoOther) {
  const NSAttributedString title("Keep", {.foregroundColor = UIColor::redColor()});
  const auto action =
      QavAlertAction::actionWithAttributedTitle(title, QavAlertActionStyle::standard);
  EXPECT_EQ(action->attributedTitle(), title);
  EXPECT_EQ(action->title(), std::nullopt);
}

TEST(QavAlertAction, NoTitleIsNotAnEmptyOne) {
  const auto none = QavAlertAction::actionWithTitle({}, QavAlertActionStyle::standard);
  EXPECT_EQ(none->title(), std::nullopt);
  const auto empty = QavAlertAction::actionWithTitle("", QavAlertActionStyle::standard);
  EXPECT_EQ(empty->title(), "");
}

TEST(QavAlertAction, IsEnabledAtFirst) {
  EXPECT_TRUE(QavAlertAction::actionWithTitle("Keep", QavAlertActionStyle::cancel)->isEnabled());
}

TEST(QavAlertAction, HandlerIsGivenTheAction) {
  QavAlertAction* chosen = nullptr;
  const auto action = QavAlertAction::actionWithTitle(
      "Keep", QavAlertActionStyle::cancel, [&](QavAlertAction& which) { chosen = &which; });
  action->handler()(*action);
  EXPECT_EQ(chosen, action.get());
}

TEST(QavAlertAction, CopyHasTitleStyleAndHandler) {
  int calls = 0;
  const auto action = QavAlertAction::actionWithTitle("Go", QavAlertActionStyle::destructive,
                                                      [&](QavAlertAction&) { ++calls; });
  const auto copy = action->copy();
  EXPECT_NE(copy, action);
  EXPECT_EQ(copy->title(), "Go");
  EXPECT_EQ(copy->style(), QavAlertActionStyle::destructive);
  copy->handler()(*copy);
  EXPECT_EQ(calls, 1);
}

TEST(QavAlertAction, CopyHasNoAttributedTitle) {
  const auto action = QavAlertAction::actionWithAttributedTitle(NSAttributedString("Go"),
                                                                QavAlertActionStyle::standard);
  EXPECT_EQ(action->copy()->attributedTitle(), std::nullopt);
  EXPECT_EQ(action->copy()->title(), std::nullopt);
}

TEST(QavAlertAction, CopyOfADisabledOneIsEnabled) {
  const auto action = QavAlertAction::actionWithTitle("Go", QavAlertActionStyle::standard);
  action->setEnabled(false);
  EXPECT_TRUE(action->copy()->isEnabled());
}

TEST(QavAlertAction, CopyIsNotObserved) {
  const auto action = QavAlertAction::actionWithTitle("Go", QavAlertActionStyle::standard);
  int changes = 0;
  const auto watch = action->observeEnabled([&](QavAlertAction&) { ++changes; });
  action->copy()->setEnabled(false);
  EXPECT_EQ(changes, 0);
}

class QavAlertActionEnabled : public testing::Test {
 protected:
  [[nodiscard]] Subscription watch() {
    return action->observeEnabled(
        [this](QavAlertAction& which) { seen.push_back(which.isEnabled()); });
  }
  const QavAlertActionRef action =
      QavAlertAction::actionWithTitle("Go", QavAlertActionStyle::standard);
  std::vector<bool> seen;
};

TEST_F(QavAlertActionEnabled, TellsChangesAndNotWhatItIsAtFirst) {
  const auto subscription = watch();
  EXPECT_THAT(seen, ElementsAre());
  action->setEnabled(false);
  action->setEnabled(true);
  EXPECT_THAT(seen, ElementsAre(false, true));
}

TEST_F(QavAlertActionEnabled, TheSameAgainIsNoChange) {
  const auto subscription = watch();
  action->setEnabled(true);
  EXPECT_THAT(seen, ElementsAre());
}

TEST_F(QavAlertActionEnabled, TellsNobodyWhoseSubscriptionHasEnded) {
  watch().reset();
  action->setEnabled(false);
  EXPECT_THAT(seen, ElementsAre());
}

TEST_F(QavAlertActionEnabled, AnObserverMayEndItsOwnSubscriptionAndThatOfTheNext) {
  Subscription next;
  Subscription own = action->observeEnabled([&](QavAlertAction&) {
    seen.push_back(false);
    own.reset();
    next.reset();
  });
  next = watch();
  action->setEnabled(false);
  action->setEnabled(true);
  EXPECT_THAT(seen, ElementsAre(false));
}

TEST_F(QavAlertActionEnabled, ASubscriptionMayOutliveTheAction) {
  auto other = QavAlertAction::actionWithTitle("Go", QavAlertActionStyle::standard);
  auto subscription = other->observeEnabled([](QavAlertAction&) {});
  other.reset();
  subscription.reset();
  EXPECT_EQ(other, nullptr);
}

TEST_F(QavAlertActionEnabled, AnObserverMayLetGoOfTheAction) {
  auto passing = QavAlertAction::actionWithTitle("Go", QavAlertActionStyle::standard);
  QavAlertAction& seenAction = *passing;
  const auto first = seenAction.observeEnabled([&](QavAlertAction&) { passing.reset(); });
  const auto second =
      seenAction.observeEnabled([&](QavAlertAction& told) { seen.push_back(told.isEnabled()); });
  seenAction.setEnabled(false);
  EXPECT_THAT(seen, ElementsAre(false));
}

}  // namespace
}  // namespace kindora
