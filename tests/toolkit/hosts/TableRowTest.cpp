// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include <QGuiApplication>
#include <QStyleHints>

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

TEST_F(TableRowTest, ARowThatDoesNothingIsNoButton) {
  controller->mute = {0};
  show();
  EXPECT_EQ(role(QStringLiteral("Anna")), QAccessible::StaticText);
  EXPECT_FALSE(actions(QStringLiteral("Anna")).contains(QAccessibleActionInterface::pressAction()));
  EXPECT_EQ(role(QStringLiteral("Bob")), QAccessible::Button);
}

TEST_F(TableRowTest, ARowThatDoesNothingTakesNeitherPressNorKeyboard) {
  controller->mute = {0};
  show();
  clickAt(row("Anna").center().toPoint());
  EXPECT_THAT(controller->selected, IsEmpty());
  press(Qt::Key_Tab);
  EXPECT_EQ(focusName(), QStringLiteral("Bob"));
}

TEST_F(TableRowTest, OnlyWhatIsThereIsAButton) {
  EXPECT_EQ(namesOf(QAccessible::Button).join(u'/'), QStringLiteral("Anna/Bob/Cleo"));
  dragRow("Bob", -120);
  EXPECT_EQ(namesOf(QAccessible::Button).join(u'/'), QStringLiteral("Anna/Bob/Remove Bob/Cleo"));
}

TEST_F(TableRowTest, AnAssistiveToolPressesARow) {
  act(QStringLiteral("Cleo"), QAccessibleActionInterface::pressAction());
  EXPECT_THAT(controller->selected, ElementsAre(2));
}

TEST_F(TableRowTest, AnAssistiveToolOpensARowAndRemovesIt) {
  act(QStringLiteral("Bob"), QAccessibleActionInterface::scrollLeftAction());
  time.advance(0.5);
  act(QStringLiteral("Remove Bob"), QAccessibleActionInterface::pressAction());
  EXPECT_THAT(controller->deleted, ElementsAre(1));
}

TEST_F(TableRowTest, OnlyARowThatMayBeRemovedCanBeOpenedByAnAssistiveTool) {
  const QString open = QAccessibleActionInterface::scrollLeftAction();
  EXPECT_TRUE(actions(QStringLiteral("Bob")).contains(open));
  EXPECT_FALSE(actions(QStringLiteral("Anna")).contains(open));
}

TEST_F(TableRowTest, ATickIsAStateAndNoPartOfTheName) {
  controller->ticked = {1};
  show();
  EXPECT_TRUE(state(QStringLiteral("Bob")).checkable);
  EXPECT_TRUE(state(QStringLiteral("Bob")).checked);
  EXPECT_FALSE(state(QStringLiteral("Anna")).checked);
  table().cellForRowAtIndexPath({0, 0})->setAccessoryType(UITableViewCellAccessoryType::checkmark);
  EXPECT_TRUE(state(QStringLiteral("Anna")).checked);
}

TEST_F(TableRowTest, WhatIsTickedIsNotForThePressToSay) {
  show();
  click(QStringLiteral("Anna"));
  EXPECT_THAT(controller->selected, ElementsAre(0));
  EXPECT_FALSE(state(QStringLiteral("Anna")).checked);
}

TEST_F(TableRowTest, ATapSelects) {
  tap(row("Cleo").center().toPoint());
  EXPECT_THAT(controller->selected, ElementsAre(2));
}

TEST_F(TableRowTest, AFingerThatMovesUpScrollsAndPressesNothing) {
  showMany();
  const QPoint from = row("4").center().toPoint();
  swipe(from, from - QPoint(0, 150), true);
  EXPECT_GT(scrolled(), 100);
  EXPECT_FALSE(table().cellForRowAtIndexPath({0, 4})->isHighlighted());
  lift(from - QPoint(0, 150));
  time.advance(2);
  EXPECT_THAT(controller->selected, IsEmpty());
}

TEST_F(TableRowTest, AFingerSwipesARowOpenAndBack) {
  swipeRow("Bob", -120);
  EXPECT_EQ(table().editingRow(), kBob);
  EXPECT_EQ(row("Bob").left(), -104);
  EXPECT_FALSE(bob().isHighlighted());
  swipeRow("Bob", 90);
  EXPECT_EQ(table().editingRow(), -1);
  EXPECT_EQ(row("Bob").left(), 0);
  EXPECT_THAT(controller->selected, IsEmpty());
}

TEST_F(TableRowTest, AFingerSwipesNoOtherRow) {
  swipeRow("Anna", -120);
  EXPECT_EQ(table().editingRow(), -1);
  EXPECT_EQ(row("Anna").left(), 0);
  EXPECT_THAT(controller->selected, IsEmpty());
}

TEST_F(TableRowTest, ALongPressIsAPress) {
  QStyleHints& hints = *QGuiApplication::styleHints();
  const int interval = hints.mousePressAndHoldInterval();
  hints.setMousePressAndHoldInterval(0);
  for (const char* name : {"Anna", "Bob"}) {
    const QPoint at = row(name).center().toPoint();
    QTest::mousePress(&window, Qt::LeftButton, {}, at);
    QCoreApplication::processEvents();
    QTest::mouseRelease(&window, Qt::LeftButton, {}, at);
  }
  hints.setMousePressAndHoldInterval(interval);
  EXPECT_THAT(controller->selected, ElementsAre(0, 1));
}

TEST_F(TableRowTest, ASwipeOpensARowThatMayBeRemoved) {
  EXPECT_EQ(spoken(QStringLiteral("Remove Bob")), nullptr);
  dragRow("Bob", -120);
  EXPECT_EQ(table().editingRow(), kBob);
  EXPECT_EQ(row("Bob").left(), -104);
  EXPECT_NE(spoken(QStringLiteral("Remove Bob")), nullptr);
  EXPECT_THAT(controller->selected, IsEmpty());
}

TEST_F(TableRowTest, AShortSwipeComesToNothing) {
  dragRow("Bob", -40);
  EXPECT_EQ(table().editingRow(), -1);
  EXPECT_EQ(row("Bob").left(), 0);
  EXPECT_THAT(controller->selected, IsEmpty());
}

TEST_F(TableRowTest, ASwipeNeitherOpensNorPressesAnotherRow) {
  dragRow("Anna", -120);
  EXPECT_EQ(table().editingRow(), -1);
  EXPECT_EQ(row("Anna").left(), 0);
  EXPECT_THAT(controller->selected, IsEmpty());
}

TEST_F(TableRowTest, OpeningOneRowClosesTheOther) {
  controller->editable = {0, 1};
  table().reloadData();
  dragRow("Bob", -120);
  dragRow("Anna", -120);
  EXPECT_EQ(row("Anna").left(), -104);
  EXPECT_EQ(row("Bob").left(), 0);
}

TEST_F(TableRowTest, ASwipeBackCloses) {
  dragRow("Bob", -120);
  dragRow("Bob", 90);
  EXPECT_EQ(table().editingRow(), -1);
  EXPECT_EQ(row("Bob").left(), 0);
}

TEST_F(TableRowTest, APressOnAnOpenRowOnlyClosesIt) {
  dragRow("Bob", -120);
  clickAt({60, row("Bob").center().toPoint().y()});
  time.advance(0.5);
  EXPECT_EQ(table().editingRow(), -1);
  EXPECT_THAT(controller->selected, IsEmpty());
}

TEST_F(TableRowTest, APressOnAnotherRowOnlyClosesTheOpenOne) {
  dragRow("Bob", -120);
  const QPoint at = row("Cleo").center().toPoint();
  QTest::mousePress(&window, Qt::LeftButton, {}, at);
  EXPECT_FALSE(table().cellForRowAtIndexPath({0, 2})->isHighlighted());
  QTest::mouseRelease(&window, Qt::LeftButton, {}, at);
  EXPECT_EQ(table().editingRow(), -1);
  EXPECT_THAT(controller->selected, IsEmpty());
  click(QStringLiteral("Cleo"));
  EXPECT_THAT(controller->selected, ElementsAre(2));
}

TEST_F(TableRowTest, TabGoesFromAnOpenRowToItsButtonAndOn) {
  focus("Bob");
  press(Qt::Key_Menu);
  time.advance(0.5);
  press(Qt::Key_Tab);
  EXPECT_EQ(focusName(), QStringLiteral("Remove Bob"));
  press(Qt::Key_Tab);
  EXPECT_EQ(focusName(), QStringLiteral("Cleo"));
  press(Qt::Key_Backtab);
  EXPECT_EQ(focusName(), QStringLiteral("Remove Bob"));
  press(Qt::Key_Backtab);
  EXPECT_EQ(focusName(), QStringLiteral("Bob"));
}

TEST_F(TableRowTest, ARowThatIsOpenAloneIsOpenWhenItComesBack) {
  showMany(1'000);
  table().openRow(kBob);
  time.advance(0.5);
  ASSERT_EQ(row("1").left(), -104);
  for (double y = 0; y < 5'000; y += 100) {
    scrollTo(y);
    const QString other = namesOf(QAccessible::Button).last();
    EXPECT_EQ(place(spoken(other)).left(), 0);
  }
  EXPECT_EQ(spoken(QStringLiteral("1")), nullptr);
  scrollTo(0);
  EXPECT_EQ(row("1").left(), -104);
}

TEST_F(TableRowTest, NoTickTravels) {
  controller->ticked = {1};
  showMany(1'000);
  for (double y = 0; y < 5'000; y += 100) {
    scrollTo(y);
    for (const QString& name : namesOf(QAccessible::Button)) {
      EXPECT_EQ(state(name).checked, name == QStringLiteral("1"));
    }
  }
  scrollTo(0);
  EXPECT_TRUE(state(QStringLiteral("1")).checked);
}

TEST_F(TableRowTest, ThePressOnTheButtonRemoves) {
  dragRow("Bob", -120);
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
