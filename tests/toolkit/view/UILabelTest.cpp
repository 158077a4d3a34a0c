// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UILabel.h"

#include <gtest/gtest.h>

#include <memory>

namespace kindora {
namespace {

class UILabelTest : public ::testing::Test {
 protected:
  const std::shared_ptr<UILabel> label = std::make_shared<UILabel>();
  int changes = 0;
  const Subscription subscription = label->observe([this] { ++changes; });
};

TEST_F(UILabelTest, LeavesEverythingToTheStoryboardAtTheStart) {
  EXPECT_EQ(label->text(), std::nullopt);
  EXPECT_EQ(label->textColor(), std::nullopt);
  EXPECT_EQ(label->font(), std::nullopt);
  EXPECT_EQ(label->textAlignment(), std::nullopt);
}

TEST_F(UILabelTest, TellsANewTextOnce) {
  label->setText("text");
  label->setText("text");
  EXPECT_EQ(label->text(), "text");
  EXPECT_EQ(changes, 1);
}

TEST_F(UILabelTest, AnEmptyTextIsNotAnAbsentOne) {
  label->setText("");
  EXPECT_EQ(changes, 1);
  label->setText(std::nullopt);
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(label->text(), std::nullopt);
}

TEST_F(UILabelTest, TellsANewColourOnce) {
  label->setTextColor(UIColor::yellowColor());
  label->setTextColor(UIColor::yellowColor());
  EXPECT_EQ(label->textColor(), UIColor::yellowColor());
  EXPECT_EQ(changes, 1);
}

TEST_F(UILabelTest, TellsANewFontOnce) {
  label->setFont({"AvenirNext-Medium", 16});
  label->setFont({"AvenirNext-Medium", 16});
  EXPECT_EQ(label->font(), (UIFont{"AvenirNext-Medium", 16}));
  EXPECT_EQ(changes, 1);
  label->setFont({"AvenirNext-Medium", 20});
  EXPECT_EQ(changes, 2);
}

TEST_F(UILabelTest, TellsANewAlignmentOnce) {
  label->setTextAlignment(NSTextAlignment::center);
  label->setTextAlignment(NSTextAlignment::center);
  EXPECT_EQ(label->textAlignment(), NSTextAlignment::center);
  EXPECT_EQ(changes, 1);
}

}  // namespace
}  // namespace kindora
