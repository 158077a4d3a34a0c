// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/toolkit/hosts/TableFixture.h"
#include "toolkit/controllers/UISearchController.h"

namespace kindora {
namespace {

class TableListTest : public TableFixture {
 protected:
  // With that of all in which the row lies.
  double opacityOf(const char* name) {
    double opacity = 1;
    for (const QQuickItem* in = spoken(QString::fromLatin1(name)); in; in = in->parentItem()) {
      opacity *= in->opacity();
    }
    return opacity;
  }
};

TEST_F(TableListTest, IsAListThatBearsTheScreensTitle) {
  show();
  EXPECT_EQ(role(QStringLiteral("Names")), QAccessible::List);
}

TEST_F(TableListTest, RowsStandBelowEachOtherUnderTheirHeading) {
  show();
  EXPECT_EQ(role(QStringLiteral("Friends")), QAccessible::Heading);
  EXPECT_EQ(row("Anna"), QRectF(0, 44, 320, 60));
  EXPECT_EQ(row("Bob"), QRectF(0, 112, 320, 60));
  EXPECT_EQ(row("Cleo"), QRectF(0, 180, 320, 60));
}

TEST_F(TableListTest, ARowThatGoesLetsTheOthersCloseUp) {
  show();
  controller->names.pop_back();
  table().reloadSections({0}, UITableViewRowAnimation::automatic);
  static_cast<void>(drawn());  // the list begins to move its rows with the next frame
  time.advance(1);
  EXPECT_EQ(spoken(QStringLiteral("Cleo")), nullptr);
  controller->names.assign({"Zoe", "Anna"});
  table().reloadData();
  static_cast<void>(drawn());
  time.advance(1);
  EXPECT_EQ(row("Zoe").top(), 44);
  EXPECT_EQ(row("Anna").top(), 112);
}

TEST_F(TableListTest, ASearchBarStandsAboveAllRowsAsWideAsTheTable) {
  UISearchController search;
  search.searchBar()->setFrame({{0, 0}, {0, 44}});
  table().setTableHeaderView(search.searchBar());
  show();
  host->setWidth(300);
  const QQuickItem* field = found(QStringLiteral("searchField"));
  ASSERT_NE(field, nullptr);
  EXPECT_LT(place(field).bottom(), 44);
  EXPECT_NEAR(place(field).right(), 300, 40);
  EXPECT_EQ(row("Anna").top(), 88);
  host->setWidth(240);
  EXPECT_NEAR(place(field).right(), 240, 40);
  host.reset();
}

TEST_F(TableListTest, ScrollingClosesTheOpenRow) {
  controller->names.assign(20, "Somebody");
  controller->names.front() = "Anna";
  controller->editable = {0};
  show();
  table().openRow(1);
  time.advance(0.5);
  ASSERT_EQ(table().editingRow(), 1);
  drag({200, 400}, {200, 300});
  EXPECT_EQ(table().editingRow(), -1);
}

TEST_F(TableListTest, TenThousandRowsTakeTheCellsOfAFewScreenfuls) {
  showMany(10'000);
  EXPECT_LE(controller->asked, 20);
  controller->asked = 0;
  scrollTo(300'000);
  EXPECT_LE(controller->asked, 20);
  EXPECT_EQ(namesOf(QAccessible::Button).size(), controller->asked);
}

TEST_F(TableListTest, RowsThatAreOutOfSightAreInNobodysReach) {
  showMany(1'000);
  for (double y = 0; y < 20'000; y += 70) scrollTo(y);
  const QStringList names = namesOf(QAccessible::Button);
  EXPECT_LE(names.size(), 11);
  for (const QString& name : names) EXPECT_NEAR(name.toInt(), 20'000 / 68 + 3, 7);
}

TEST_F(TableListTest, ANewRowFadesInWhileTheOthersMakeRoom) {
  show();
  controller->names = {"Zoe", "Anna", "Bob", "Cleo"};
  table().reloadSections({0}, UITableViewRowAnimation::automatic);
  time.advance(0.1);
  EXPECT_GT(opacityOf("Zoe"), 0);
  EXPECT_LT(opacityOf("Zoe"), 1);
  EXPECT_GT(row("Anna").top(), 44);
  EXPECT_LT(row("Anna").top(), 112);
  time.advance(1);
  EXPECT_EQ(opacityOf("Zoe"), 1);
  EXPECT_EQ(row("Zoe"), QRectF(0, 44, 320, 60));
  EXPECT_EQ(row("Anna").top(), 112);
}

TEST_F(TableListTest, ARowThatLeavesFadesWhileTheOthersCloseUp) {
  show();
  controller->names = {"Bob", "Cleo"};
  table().reloadSections({0}, UITableViewRowAnimation::automatic);
  time.advance(0.1);
  EXPECT_NE(spoken(QStringLiteral("Anna")), nullptr);
  EXPECT_GT(row("Bob").top(), 44);
  EXPECT_LT(row("Bob").top(), 112);
  time.advance(1);
  EXPECT_EQ(spoken(QStringLiteral("Anna")), nullptr);
  EXPECT_EQ(row("Bob").top(), 44);
}

TEST_F(TableListTest, RowsThatComeAboveMoveNothingThatIsSeen) {
  showMany(1'000);
  scrollTo(20'000);
  const QRectF before = row("300");
  controller->names.insert(controller->names.begin(), {"a", "b"});
  table().reloadSections({0}, UITableViewRowAnimation::automatic);
  EXPECT_EQ(row("300"), before);
  time.advance(1);
  EXPECT_EQ(row("300"), before);
}

TEST_F(TableListTest, AListThatGetsShorterThanItWasScrolledShowsItsEnd) {
  showMany(1'000);
  scrollTo(20'000);
  controller->names = {"a", "b"};
  table().reloadData();
  EXPECT_EQ(row("b"), QRectF(0, 112, 320, 60));
  EXPECT_EQ(scrolled(), 0);
}

// --- By keys and assistive tools ---

class TableKeysTest : public TableFixture {
 protected:
  [[nodiscard]] bool focusIsInSight() const {
    return QRectF(0, 0, kWidth, kHeight).contains(place(window.activeFocusItem()));
  }
  // Presses the key as long as it brings the keyboard to another row, and tells to which.
  QStringList walk(Qt::Key key) {
    QStringList names;
    for (;;) {
      press(key);
      time.settle();
      if (names.contains(focusName()) || focusName().isEmpty()) return names;
      names.append(focusName());
      EXPECT_TRUE(focusIsInSight()) << focusName().toStdString();
    }
  }
  static QStringList numbers(int first, int last) {
    QStringList names;
    for (int i = first; i != last; i += first < last ? 1 : -1) names.append(QString::number(i));
    names.append(QString::number(last));
    return names;
  }
};

TEST_F(TableKeysTest, TabGoesThroughAllRows) {
  showMany();
  EXPECT_EQ(walk(Qt::Key_Tab), numbers(0, 39));
}

TEST_F(TableKeysTest, TabGoesBackThroughAllRows) {
  showMany();
  focus("0");
  press(Qt::Key_End);
  EXPECT_EQ(walk(Qt::Key_Backtab), numbers(38, 0));
}

TEST_F(TableKeysTest, TabGoesBackThroughAllRowsToTheSearchField) {
  UISearchController search;
  search.searchBar()->setFrame({{0, 0}, {0, 44}});
  table().setTableHeaderView(search.searchBar());
  showMany(20);
  focus("0");
  press(Qt::Key_End);
  EXPECT_EQ(walk(Qt::Key_Backtab), numbers(18, 0) << QStringLiteral("Search"));
  host.reset();
}

TEST_F(TableKeysTest, DownAndUpGoThroughAllRows) {
  showMany();
  EXPECT_EQ(walk(Qt::Key_Down), numbers(0, 39));
  press(Qt::Key_Down);
  EXPECT_EQ(focusName(), QStringLiteral("39"));
  EXPECT_EQ(walk(Qt::Key_Up), numbers(38, 0));
}

TEST_F(TableKeysTest, RowsThatDoNothingArePassedOver) {
  for (int i = 1; i < 39; ++i) controller->mute.insert(i);
  showMany();
  focus("0");
  press(Qt::Key_Down);
  EXPECT_EQ(focusName(), QStringLiteral("39"));
  press(Qt::Key_Backtab);
  EXPECT_EQ(focusName(), QStringLiteral("0"));
}

TEST_F(TableKeysTest, EndAndHomeGoToTheLastAndTheFirstRow) {
  showMany();
  focus("3");
  press(Qt::Key_End);
  EXPECT_EQ(focusName(), QStringLiteral("39"));
  EXPECT_TRUE(focusIsInSight());
  press(Qt::Key_Home);
  EXPECT_EQ(focusName(), QStringLiteral("0"));
  EXPECT_EQ(row("0").top(), 44);
}

TEST_F(TableKeysTest, PageDownAndPageUpGoByWhatIsInSight) {
  showMany();
  focus("0");
  press(Qt::Key_PageDown);
  EXPECT_GE(focusName().toInt(), 3);
  EXPECT_LE(focusName().toInt(), 7);
  EXPECT_TRUE(focusIsInSight());
  for (int i = 0; i < 20; ++i) press(Qt::Key_PageDown);
  EXPECT_EQ(focusName(), QStringLiteral("39"));
  for (int i = 0; i < 20; ++i) press(Qt::Key_PageUp);
  EXPECT_EQ(focusName(), QStringLiteral("0"));
  EXPECT_TRUE(focusIsInSight());
}

TEST_F(TableKeysTest, ARowThatAnAssistiveToolFocusesComesIntoSight) {
  showMany();
  const QString last = namesOf(QAccessible::Button).last();
  ASSERT_NE(last, QStringLiteral("39"));
  act(last, QAccessibleActionInterface::setFocusAction());
  EXPECT_EQ(focusName(), last);
  EXPECT_TRUE(focusIsInSight());
  EXPECT_GT(namesOf(QAccessible::Button).last().toInt(), last.toInt());
}

TEST_F(TableKeysTest, AnAssistiveToolScrolls) {
  showMany();
  act(QStringLiteral("Names"), QAccessibleActionInterface::scrollDownAction());
  EXPECT_NEAR(scrolled(), kHeight, 80);
  act(QStringLiteral("Names"), QAccessibleActionInterface::scrollUpAction());
  EXPECT_NEAR(scrolled(), 0, 1);
}

TEST_F(TableKeysTest, ARowKeepsTheKeyboardWhileItIsOutOfSight) {
  showMany(1'000);
  focus("2");
  for (double y = 0; y < 20'000; y += 400) scrollTo(y);
  EXPECT_EQ(focusName(), QStringLiteral("2"));
  press(Qt::Key_Down);
  EXPECT_EQ(focusName(), QStringLiteral("3"));
  EXPECT_TRUE(focusIsInSight());
}

TEST_F(TableKeysTest, AReloadLeavesTheKeyboardToItsRow) {
  showMany();
  focus("2");
  controller->names.insert(controller->names.begin(), "new");
  table().reloadData();
  EXPECT_EQ(focusName(), QStringLiteral("2"));
}

TEST_F(TableKeysTest, TheKeyboardOfARowThatHasLeftGoesToNoOtherRow) {
  showMany(1'000);
  focus("2");
  controller->names.erase(controller->names.begin() + 2);
  table().reloadData();
  for (double y = 0; y < 5'000; y += 100) {
    scrollTo(y);
    ASSERT_FALSE(namesOf(QAccessible::Button).contains(focusName())) << focusName().toStdString();
  }
}

TEST_F(TableKeysTest, APressOnARowAtTheEdgeScrollsNothing) {
  showMany();
  clickAt({160, kHeight - 5});
  EXPECT_EQ(controller->selected.size(), 1U);
  EXPECT_EQ(scrolled(), 0);
}

TEST_F(TableKeysTest, NewRowsAreReadAndReachedWhereTheyStand) {
  show();
  controller->names = {"Zoe", "Anna", "Yves", "Bob", "Cleo"};
  table().reloadSections({0}, UITableViewRowAnimation::automatic);
  static_cast<void>(drawn());  // the list begins to move its rows with the next frame
  time.advance(1);
  const QStringList order =
      QStringLiteral("Zoe Anna Yves Bob Cleo").split(QLatin1Char(' '), Qt::SkipEmptyParts);
  EXPECT_EQ(namesOf(QAccessible::Button), order);
  EXPECT_EQ(walk(Qt::Key_Tab), order);
}

}  // namespace
}  // namespace kindora
