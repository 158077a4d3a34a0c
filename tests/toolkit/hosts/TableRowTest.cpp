// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include "tests/toolkit/hosts/TableFixture.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// "Bob", the row after the heading and "Anna", may be removed.
class TableRowTest : public TableFixture {
 protected:
  static constexpr int kBob = 2;

  TableRowTest() {
    controller->editable = {1};
    show();
  }
  void focus(const char* name) {
    spoken(QString::fromLatin1(name))->forceActiveFocus(Qt::TabFocusReason);
  }
  [[nodiscard]] UITableViewCell& bob() const { return *table().cellForRowAtIndexPath({0, 1}); }
};

TEST_F(TableRowTest, APressSelects) {
  click(QStringLiteral("Cleo"));
  EXPECT_THAT(controller->selected, ElementsAre(2));
}

TEST_F(TableRowTest, APressShowsAsLongAsItLasts) {
  const QPoint at = row("Bob").center().toPoint();
  QTest::mousePress(&window, Qt::LeftButton, {}, at);
  EXPECT_TRUE(bob().isHighlighted());
  QTest::mouseRelease(&window, Qt::LeftButton, {}, at);
  EXPECT_FALSE(bob().isHighlighted());
}

TEST_F(TableRowTest, TheHeadingTakesNoPress) {
  clickAt({160, 30});
  EXPECT_THAT(controller->selected, IsEmpty());
}

TEST_F(TableRowTest, ReturnSelects) {
  focus("Bob");
  press(Qt::Key_Return);
  EXPECT_THAT(controller->selected, ElementsAre(1));
}

TEST_F(TableRowTest, ATickIsReadAloudAsAState) {
  EXPECT_TRUE(state(QStringLiteral("Bob")).checkable);
  EXPECT_FALSE(state(QStringLiteral("Bob")).checked);
  bob().setAccessoryType(UITableViewCellAccessoryType::checkmark);
  EXPECT_TRUE(state(QStringLiteral("Bob")).checked);
  EXPECT_FALSE(state(QStringLiteral("Anna")).checked);
}

TEST_F(TableRowTest, ARowThatDoesNothingShowsNoPressAndGetsNoKeyboard) {
  controller->mute = {0};
  show();
  const QPoint at = row("Anna").center().toPoint();
  QTest::mousePress(&window, Qt::LeftButton, {}, at);
  EXPECT_FALSE(table().cellForRowAtIndexPath({0, 0})->isHighlighted());
  QTest::mouseRelease(&window, Qt::LeftButton, {}, at);
  const auto focusPolicy = [this](const char* name) {
    return found(QString::fromLatin1(name))->property("focusPolicy").value<Qt::FocusPolicy>();
  };
  EXPECT_EQ(focusPolicy("row1"), Qt::NoFocus);
  EXPECT_EQ(focusPolicy("row2"), Qt::StrongFocus);
}

TEST_F(TableRowTest, ASwipeOpensARowThatMayBeRemoved) {
  EXPECT_EQ(spoken(QStringLiteral("Remove Bob")), nullptr);
  swipe("Bob", -120);
  EXPECT_EQ(table().editingRow(), kBob);
  EXPECT_EQ(row("Bob").left(), -104);
  EXPECT_NE(spoken(QStringLiteral("Remove Bob")), nullptr);
  EXPECT_THAT(controller->selected, IsEmpty());
}

TEST_F(TableRowTest, AShortSwipeComesToNothing) {
  swipe("Bob", -40);
  EXPECT_EQ(table().editingRow(), -1);
  EXPECT_EQ(row("Bob").left(), 0);
  EXPECT_THAT(controller->selected, IsEmpty());
}

TEST_F(TableRowTest, ASwipeNeitherOpensNorPressesAnotherRow) {
  swipe("Anna", -120);
  EXPECT_EQ(table().editingRow(), -1);
  EXPECT_EQ(row("Anna").left(), 0);
  EXPECT_THAT(controller->selected, IsEmpty());
}

TEST_F(TableRowTest, OpeningOneRowClosesTheOther) {
  controller->editable = {0, 1};
  table().reloadData();
  swipe("Bob", -120);
  swipe("Anna", -120);
  EXPECT_EQ(row("Anna").left(), -104);
  EXPECT_EQ(row("Bob").left(), 0);
}

TEST_F(TableRowTest, ASwipeBackCloses) {
  swipe("Bob", -120);
  swipe("Bob", 90);
  EXPECT_EQ(table().editingRow(), -1);
  EXPECT_EQ(row("Bob").left(), 0);
}

TEST_F(TableRowTest, APressOnAnOpenRowOnlyClosesIt) {
  swipe("Bob", -120);
  clickAt({60, row("Bob").center().toPoint().y()});
  time.advance(0.5);
  EXPECT_EQ(table().editingRow(), -1);
  EXPECT_THAT(controller->selected, IsEmpty());
}

TEST_F(TableRowTest, ThePressOnTheButtonRemoves) {
  swipe("Bob", -120);
  click(QStringLiteral("Remove Bob"));
  EXPECT_THAT(controller->deleted, ElementsAre(1));
}

TEST_F(TableRowTest, TheKeyboardOpensAndRemoves) {
  focus("Bob");
  press(Qt::Key_Menu);
  EXPECT_EQ(table().editingRow(), kBob);
  press(Qt::Key_Delete);
  EXPECT_THAT(controller->deleted, ElementsAre(1));
}

}  // namespace
}  // namespace kindora
