// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/KeyboardReach.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/QuickFixture.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;

// An area of 100 x 200 points, the first that Tab reaches in a window of the same size.
class ReachFixture : public QuickFixture {
 protected:
  explicit ReachFixture(const QByteArray& qml) {
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    window.resize(100, 200);
    window.show();
    window.requestActivate();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    area.reset(make(qml, {{QStringLiteral("parent"), QVariant::fromValue(window.contentItem())},
                          {QStringLiteral("width"), 100},
                          {QStringLiteral("height"), 200}}));
    reach = area->findChild<KeyboardReach*>();
    EXPECT_NE(reach, nullptr);
  }

  QQuickItem* make(const QByteArray& qml, const QVariantMap& properties) {
    QQmlComponent component(&engine);
    component.setData(
        "import QtQuick\nimport QtQuick.Templates as T\n"
        "import Kindora.Toolkit.Quick\n" +
            qml,
        {});
    auto* made = qobject_cast<QQuickItem*>(component.createWithInitialProperties(properties));
    EXPECT_NE(made, nullptr) << component.errorString().toStdString();
    return made;
  }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&window, key, modifiers);
  }
  static void focus(QQuickItem* item) { item->forceActiveFocus(Qt::TabFocusReason); }
  // The object name of what has the keyboard.
  [[nodiscard]] std::string focused() const {
    return window.activeFocusItem()->objectName().toStdString();
  }
  [[nodiscard]] std::string after(Qt::Key key) {
    press(key);
    return focused();
  }
  [[nodiscard]] double offset() const { return area->property("contentY").toDouble(); }
  void scroll(double contentY) { area->setProperty("contentY", contentY); }

  QQmlEngine engine;
  std::unique_ptr<QQuickItem> area;
  KeyboardReach* reach = nullptr;
};

// A content of 1000 points in which each test puts what it needs.
class KeyboardReachTest : public ReachFixture {
 protected:
  KeyboardReachTest()
      : ReachFixture(R"(Flickable {
                          id: root
                          objectName: "area"
                          contentWidth: 100
                          contentHeight: 1000
                          KeyboardReach { area: root }
                        })") {}

  QQuickItem* add(const char* name, double x, double y, const QByteArray& qml) {
    return make(qml, {{QStringLiteral("objectName"), QString::fromLatin1(name)},
                      {QStringLiteral("parent"), area->property("contentItem")},
                      {QStringLiteral("x"), x},
                      {QStringLiteral("y"), y},
                      {QStringLiteral("width"), 40},
                      {QStringLiteral("height"), 20}});
  }
  QQuickItem* addButton(const char* name, double x, double y) {
    return add(name, x, y, "T.Control { focusPolicy: Qt.StrongFocus }");
  }
  QQuickItem* addField(const char* name, double y) {
    return add(name, 0, y, "TextInput { activeFocusOnTab: true; text: \"text\" }");
  }
  // Two columns of five lines each, "00" to "41", of which the last three lie out of sight.
  void addGrid() {
    for (const int line : {4, 0, 3, 1, 2}) {
      for (const int column : {1, 0}) {
        const std::string name = std::to_string(line) + std::to_string(column);
        addButton(name.c_str(), 50 * column, 100 * line);
      }
    }
    QCoreApplication::processEvents();
  }
  [[nodiscard]] QQuickItem* item(const char* name) const {
    for (QQuickItem* child : area->property("contentItem").value<QQuickItem*>()->childItems()) {
      if (child->objectName() == QLatin1String(name)) return child;
    }
    return nullptr;
  }
  [[nodiscard]] std::vector<std::string> order() const {
    std::vector<std::string> names;
    for (const QQuickItem* child :
         area->property("contentItem").value<QQuickItem*>()->childItems()) {
      names.push_back(child->objectName().toStdString());
    }
    return names;
  }
};

// --- The order of the tree ---

TEST_F(KeyboardReachTest, ItemsStandInTheTreeAsOnTheScreen) {
  addButton("below", 0, 50);
  addButton("right", 50, 0);
  addButton("left", 0, 0);
  QCoreApplication::processEvents();
  EXPECT_THAT(order(), ElementsAre("left", "right", "below"));
}

TEST_F(KeyboardReachTest, AnItemThatMovesDownMovesOnInTheTree) {
  QQuickItem* first = addButton("first", 0, 0);
  addButton("second", 0, 50);
  QCoreApplication::processEvents();
  first->setY(80);
  QCoreApplication::processEvents();
  EXPECT_THAT(order(), ElementsAre("second", "first"));
}

// --- Into sight ---

TEST_F(KeyboardReachTest, WhatGetsTheKeyboardComesIntoSightWithItsSurroundings) {
  QQuickItem* far = addButton("far", 0, 500);
  QQuickItem* near = addButton("near", 0, 100);
  focus(far);
  EXPECT_EQ(offset(), 500 + 20 + 60 - 200);
  focus(near);
  EXPECT_EQ(offset(), 100 - 60);
}

TEST_F(KeyboardReachTest, WhatAPointerGaveTheKeyboardStaysWhereItIs) {
  addButton("half", 0, 190)->forceActiveFocus(Qt::MouseFocusReason);
  EXPECT_EQ(focused(), "half");
  EXPECT_EQ(offset(), 0);
}

TEST_F(KeyboardReachTest, AKeyboardThatIsHandedOnScrollsNothing) {
  QQuickItem* top = addButton("top", 0, 0);
  QQuickItem* low = addButton("low", 0, 500);
  focus(low);
  const double before = offset();
  low->setVisible(false);
  focus(top);
  EXPECT_EQ(offset(), before);
  low->setVisible(true);
  focus(low);
  focus(top);
  EXPECT_EQ(offset(), 0);
}

TEST_F(KeyboardReachTest, TurningPagesLeavesALittleOfTheOldOneAndStopsAtTheEnds) {
  const QSignalSpy scrolled(reach, &KeyboardReach::scrolled);
  reach->turnPage(1);
  EXPECT_EQ(offset(), 140);
  reach->turnPage(-1);
  EXPECT_EQ(offset(), 0);
  EXPECT_EQ(scrolled.count(), 2);
  reach->turnPage(-1);
  EXPECT_EQ(scrolled.count(), 2);
  reach->turnPage(100);
  EXPECT_EQ(offset(), 800);
}

// --- Keys ---

TEST_F(KeyboardReachTest, TabGoesThroughAllAndOut) {
  addGrid();
  focus(item("00"));
  for (const char* name : {"01", "10", "11", "20", "21", "30", "31", "40", "41"}) {
    ASSERT_EQ(after(Qt::Key_Tab), name);
  }
  QQuickItem* outside = make("T.Control { objectName: \"outside\"; focusPolicy: Qt.StrongFocus }",
                             {{QStringLiteral("parent"),  //
                               QVariant::fromValue(window.contentItem())}});
  EXPECT_EQ(after(Qt::Key_Tab), "outside");
  delete outside;
}

TEST_F(KeyboardReachTest, BacktabGoesBackThroughAll) {
  addGrid();
  focus(item("41"));
  for (const char* name : {"40", "31", "30", "21", "20", "11", "10", "01", "00"}) {
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    ASSERT_EQ(focused(), name);
  }
}

TEST_F(KeyboardReachTest, UpAndDownKeepTheColumn) {
  addGrid();
  focus(item("01"));
  for (const char* name : {"11", "21", "31", "41", "41"}) ASSERT_EQ(after(Qt::Key_Down), name);
  for (const char* name : {"31", "21", "11", "01", "01"}) ASSERT_EQ(after(Qt::Key_Up), name);
}

TEST_F(KeyboardReachTest, LeftAndRightKeepTheLine) {
  addGrid();
  focus(item("10"));
  EXPECT_EQ(after(Qt::Key_Left), "10");
  EXPECT_EQ(after(Qt::Key_Right), "11");
  EXPECT_EQ(after(Qt::Key_Right), "11");
  EXPECT_EQ(after(Qt::Key_Left), "10");
}

TEST_F(KeyboardReachTest, HomeAndEndGoToTheFirstAndTheLast) {
  addGrid();
  focus(item("10"));
  EXPECT_EQ(after(Qt::Key_End), "41");
  EXPECT_EQ(after(Qt::Key_Home), "00");
  EXPECT_EQ(offset(), 0);
}

TEST_F(KeyboardReachTest, TheLastMayStandFarFromTheEnd) {
  addGrid();
  focus(item("10"));
  EXPECT_EQ(after(Qt::Key_End), "41");
  EXPECT_EQ(offset(), 400 - 60);
}

TEST_F(KeyboardReachTest, PagesGoByWhatIsInSight) {
  addGrid();
  focus(item("00"));
  EXPECT_EQ(after(Qt::Key_PageDown), "10");
  EXPECT_EQ(after(Qt::Key_PageDown), "20");
  EXPECT_EQ(after(Qt::Key_PageUp), "10");
}

TEST_F(KeyboardReachTest, DownReachesWhatIsFarAway) {
  addButton("first", 0, 0);
  addButton("last", 0, 900);
  focus(item("first"));
  EXPECT_EQ(after(Qt::Key_Down), "last");
  EXPECT_EQ(offset(), 780);
}

TEST_F(KeyboardReachTest, WhereNothingIsBelowNothingMoves) {
  addButton("only", 0, 100);
  focus(item("only"));
  scroll(30);
  EXPECT_EQ(after(Qt::Key_Down), "only");
  EXPECT_EQ(offset(), 30);
  EXPECT_EQ(after(Qt::Key_PageDown), "only");
  EXPECT_EQ(offset(), 40);
}

TEST_F(KeyboardReachTest, KeysComeInFromTheUpperEdge) {
  addGrid();
  scroll(250);
  focus(area.get());
  EXPECT_EQ(after(Qt::Key_Down), "30");
}

TEST_F(KeyboardReachTest, KeysWithModifiersAreNotItsOwn) {
  addGrid();
  focus(item("00"));
  press(Qt::Key_Down, Qt::ControlModifier);
  press(Qt::Key_End, Qt::ShiftModifier);
  EXPECT_EQ(focused(), "00");
  press(Qt::Key_Down, Qt::KeypadModifier);
  EXPECT_EQ(focused(), "10");
}

TEST_F(KeyboardReachTest, KeysElsewhereAreNotItsOwn) {
  addGrid();
  const std::unique_ptr<QQuickItem> outside(
      make("T.Control { objectName: \"outside\"; focusPolicy: Qt.StrongFocus }",
           {{QStringLiteral("parent"), QVariant::fromValue(window.contentItem())}}));
  focus(outside.get());
  EXPECT_EQ(after(Qt::Key_End), "outside");
  EXPECT_EQ(after(Qt::Key_Down), "outside");
}

TEST_F(KeyboardReachTest, AFieldKeepsTheKeysThatItHasUseFor) {
  addButton("above", 0, 0);
  QQuickItem* field = addField("field", 50);
  addButton("below", 0, 100);
  QCoreApplication::processEvents();
  focus(field);
  for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Right, Qt::Key_Left, Qt::Key_End, Qt::Key_Up}) {
    ASSERT_EQ(after(key), "field");
  }
  EXPECT_EQ(field->property("cursorPosition").toInt(), 4);
  EXPECT_EQ(after(Qt::Key_Down), "below");
}

TEST_F(KeyboardReachTest, OnlyTabLeadsIntoAField) {
  addButton("above", 0, 0);
  addField("field", 50);
  addButton("below", 0, 100);
  QCoreApplication::processEvents();
  focus(item("above"));
  EXPECT_EQ(after(Qt::Key_Down), "below");
  EXPECT_EQ(after(Qt::Key_Up), "above");
  EXPECT_EQ(after(Qt::Key_Tab), "field");
}

TEST_F(KeyboardReachTest, WhatIsHiddenOrDisabledIsPassedOver) {
  addGrid();
  item("10")->setVisible(false);
  item("11")->setVisible(false);
  item("20")->setEnabled(false);
  item("21")->setEnabled(false);
  focus(item("00"));
  EXPECT_EQ(after(Qt::Key_Down), "30");
}

// --- A list, which makes its rows only near what is in sight ---

class KeyboardReachInAListTest : public ReachFixture {
 protected:
  static constexpr int kRows = 30;

  KeyboardReachInAListTest()
      : ReachFixture(R"(ListView {
                          id: root
                          property real rowHeight: 40
                          objectName: "area"
                          model: 30
                          cacheBuffer: 0
                          currentIndex: -1
                          keyNavigationEnabled: false
                          delegate: T.Control {
                            required property int index
                            objectName: "row " + index
                            width: 100
                            height: root.rowHeight
                            focusPolicy: Qt.StrongFocus
                          }
                          KeyboardReach { area: root }
                        })") {}
};

TEST_F(KeyboardReachInAListTest, TabReachesRowsThatAreNotMadeYet) {
  for (int i = 0; i < kRows; ++i) {
    ASSERT_EQ(after(Qt::Key_Tab), "row " + std::to_string(i));
  }
  for (int i = kRows - 1; i > 0; --i) {
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    ASSERT_EQ(focused(), "row " + std::to_string(i - 1));
  }
}

TEST_F(KeyboardReachInAListTest, TabGoesOnBehindARowThatFillsTheArea) {
  area->setProperty("rowHeight", 240);
  for (const char* name : {"row 0", "row 1", "row 2"}) ASSERT_EQ(after(Qt::Key_Tab), name);
  press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(focused(), "row 1");
}

TEST_F(KeyboardReachInAListTest, TheEndsAreReachedInOneStep) {
  press(Qt::Key_Tab);
  EXPECT_EQ(after(Qt::Key_End), "row 29");
  EXPECT_EQ(offset(), kRows * 40 - 200);
  EXPECT_EQ(after(Qt::Key_Home), "row 0");
  EXPECT_EQ(offset(), 0);
}

TEST_F(KeyboardReachInAListTest, ARowThatLeavesWithTheKeyboardScrollsNothingBack) {
  press(Qt::Key_Tab);
  ASSERT_EQ(focused(), "row 0");
  scroll(600);
  QCoreApplication::processEvents();
  EXPECT_EQ(offset(), 600);
  EXPECT_EQ(after(Qt::Key_Down), "row 15");
}

}  // namespace
}  // namespace kindora
