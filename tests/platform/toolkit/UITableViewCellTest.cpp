// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/toolkit/UITableViewCell.h"

#include <gtest/gtest.h>

namespace kindora {
namespace {

TEST(UITableViewCell, KeepsItsKind) {
  UITableViewCell cell;
  EXPECT_EQ(cell.reuseIdentifier(), "");
  cell.setReuseIdentifier("textCell");
  EXPECT_EQ(cell.reuseIdentifier(), "textCell");
}

TEST(UITableViewCell, FindsOutletsInItsContent) {
  UITableViewCell cell;
  std::weak_ptr<UILabel> label;
  connectOutlet(label, "label", cell.contentView());
  EXPECT_EQ(cell.outlet("label"), label.lock());
  EXPECT_EQ(cell.outlet("picture"), nullptr);
}

TEST(UITableViewCell, RemembersThatItIsPressed) {
  UITableViewCell cell;
  EXPECT_FALSE(cell.isHighlighted());
  cell.setHighlighted(true, false);
  EXPECT_TRUE(cell.isHighlighted());
}

TEST(UITableViewHeaderFooterView, HasALabel) {
  UITableViewHeaderFooterView header;
  ASSERT_NE(header.textLabel.lock(), nullptr);
  EXPECT_EQ(header.outlet("textLabel"), header.textLabel.lock());
}

}  // namespace
}  // namespace kindora
