// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIReusableCell.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "toolkit/view/UILabel.h"

namespace kindora {
namespace {

class UIReusableCellTest : public ::testing::Test {
 protected:
  UIReusableCell cell;
  QSignalSpy looks{&cell, &UIReusableCell::lookChanged};
};

TEST_F(UIReusableCellTest, KeepsItsKind) {
  EXPECT_EQ(cell.reuseIdentifier(), "");
  cell.setReuseIdentifier("badgeCell");
  EXPECT_EQ(cell.reuseIdentifier(), "badgeCell");
}

TEST_F(UIReusableCellTest, FindsOutletsInItsContent) {
  std::weak_ptr<UILabel> label;
  connectOutlet(label, "label", cell.contentView());
  EXPECT_EQ(cell.outlet("label"), label.lock());
  EXPECT_EQ(cell.outlet("picture"), nullptr);
}

TEST_F(UIReusableCellTest, TellsOnceThatItIsPressedAndNoLonger) {
  EXPECT_FALSE(cell.isHighlighted());
  cell.setHighlighted(true, false);
  cell.setHighlighted(true, true);
  EXPECT_TRUE(cell.isHighlighted());
  EXPECT_EQ(looks.count(), 1);
  cell.setHighlighted(false, false);
  EXPECT_FALSE(cell.isHighlighted());
  EXPECT_EQ(looks.count(), 2);
}

}  // namespace
}  // namespace kindora
