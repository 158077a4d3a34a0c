// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/KeyboardSource.h"

#include "platform/NotificationCenter.h"
#include "tests/support/QuickFixture.h"

namespace kindora {
namespace {

// The windows' area lies at (20, 0) in the window and is 60 x 100 points large.
class KeyboardSourceTest : public QuickFixture {
 protected:
  KeyboardSourceTest() {
    for (const std::string_view name :
         {UIKeyboardWillChangeFrameNotification, UIKeyboardWillShowNotification,
          UIKeyboardWillHideNotification}) {
      subscriptions.push_back(
          NotificationCenter::defaultCenter().observe(name, [this, name](const std::any& info) {
            heard.emplace_back(name);
            last = std::any_cast<KeyboardNotification>(info);
          }));
    }
  }
  std::vector<std::string_view> told() { return std::exchange(heard, {}); }

  using Names = std::vector<std::string_view>;
  const std::unique_ptr<KeyboardSource> source = place<KeyboardSource>({20, 0, 60, 100});
  std::vector<Subscription> subscriptions;
  Names heard;
  KeyboardNotification last;
};

TEST_F(KeyboardSourceTest, TellsWhereTheKeyboardWillBe) {
  source->keyboardMoves({0, 70, 100, 30}, true);
  EXPECT_EQ(told(), (Names{UIKeyboardWillChangeFrameNotification, UIKeyboardWillShowNotification}));
  EXPECT_EQ(last.endFrame, (CGRect{{-20, 70}, {100, 30}}));
  EXPECT_GT(last.duration, 0);
}

TEST_F(KeyboardSourceTest, TellsEachPlaceOnce) {
  source->keyboardMoves({0, 70, 100, 30}, true);
  told();
  source->keyboardMoves({0, 70, 100, 30}, true);
  EXPECT_EQ(told(), Names{});
  source->keyboardMoves({0, 60, 100, 40}, true);
  EXPECT_EQ(told(), Names{UIKeyboardWillChangeFrameNotification});
  EXPECT_EQ(last.endFrame.origin.y, 60);
}

TEST_F(KeyboardSourceTest, AKeyboardThatGoesLeavesAllTheRoom) {
  source->keyboardMoves({0, 70, 100, 30}, true);
  told();
  source->keyboardMoves({0, 70, 100, 30}, false);
  EXPECT_EQ(told(), (Names{UIKeyboardWillChangeFrameNotification, UIKeyboardWillHideNotification}));
  EXPECT_EQ(last.endFrame, (CGRect{{0, 100}, {60, 0}}));
  source->keyboardMoves({}, false);
  EXPECT_EQ(told(), Names{});
}

TEST_F(KeyboardSourceTest, AKeyboardOfNoSizeIsNone) {
  source->keyboardMoves({}, true);
  EXPECT_EQ(told(), Names{});
  source->keyboardMoves({0, 70, 100, 30}, true);
  told();
  source->keyboardMoves({}, true);
  EXPECT_EQ(told(), (Names{UIKeyboardWillChangeFrameNotification, UIKeyboardWillHideNotification}));
}

TEST_F(KeyboardSourceTest, TellsTheNewPlaceWhenTheWindowMovesUnderTheKeyboard) {
  source->setX(10);
  source->setHeight(120);
  EXPECT_EQ(told(), Names{});
  source->keyboardMoves({0, 70, 100, 30}, true);
  told();
  source->setX(0);
  EXPECT_EQ(told(), Names{UIKeyboardWillChangeFrameNotification});
  EXPECT_EQ(last.endFrame.origin.x, 0);
}

}  // namespace
}  // namespace kindora
