// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UITableViewCell.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace kindora {
namespace {

class UITableViewCellTest : public ::testing::Test {
 protected:
  UITableViewCell cell;
  QSignalSpy looks{&cell, &UIReusableCell::lookChanged};
};

TEST_F(UITableViewCellTest, HasNoAccessoryAtTheStart) {
  EXPECT_EQ(cell.accessoryType(), UITableViewCellAccessoryType::none);
  EXPECT_FALSE(cell.hasCheckmark());
}

TEST_F(UITableViewCellTest, TellsItsCheckmarkOnce) {
  cell.setAccessoryType(UITableViewCellAccessoryType::checkmark);
  cell.setAccessoryType(UITableViewCellAccessoryType::checkmark);
  EXPECT_TRUE(cell.hasCheckmark());
  EXPECT_EQ(looks.count(), 1);
  cell.setAccessoryType(UITableViewCellAccessoryType::none);
  EXPECT_FALSE(cell.hasCheckmark());
  EXPECT_EQ(looks.count(), 2);
}

TEST_F(UITableViewCellTest, APressShowsOnIt) {
  EXPECT_FALSE(cell.showsSelection());
  cell.setHighlighted(true, false);
  EXPECT_TRUE(cell.showsSelection());
  cell.setHighlighted(false, false);
  EXPECT_FALSE(cell.showsSelection());
}

TEST_F(UITableViewCellTest, APressDoesNotShowOnOneWithoutSelectionStyle) {
  cell.setSelectionStyle(UITableViewCellSelectionStyle::none);
  cell.setHighlighted(true, false);
  EXPECT_TRUE(cell.isHighlighted());
  EXPECT_FALSE(cell.showsSelection());
}

TEST_F(UITableViewCellTest, TellsItsSelectionStyleOnce) {
  EXPECT_EQ(cell.selectionStyle(), UITableViewCellSelectionStyle::standard);
  cell.setSelectionStyle(UITableViewCellSelectionStyle::none);
  cell.setSelectionStyle(UITableViewCellSelectionStyle::none);
  EXPECT_EQ(looks.count(), 1);
}

TEST(UITableViewHeaderFooterView, HasALabel) {
  UITableViewHeaderFooterView header;
  ASSERT_NE(header.textLabel.lock(), nullptr);
  EXPECT_EQ(header.outlet("textLabel"), header.textLabel.lock());
}

}  // namespace
}  // namespace kindora
