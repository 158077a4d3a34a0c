// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <QAccessible>
#include <QPointingDevice>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>
#include <memory>

#include "tests/support/QtWarnings.h"
#include "tests/support/QuickFixture.h"

namespace kindora {
namespace {

// A window with a button of 20 x 20 points around (100, 100), which is called "Press me".
class ButtonBaseTest : public QuickFixture {
 protected:
  ButtonBaseTest() {
    QAccessible::setActive(true);
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    window.resize(200, 200);
    window.show();
    window.requestActivate();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    draw(R"(ButtonBase { text: "Press me" })");
  }

  /// Another button in its place, which counts its clicks in "clicks" and its presses in "presses".
  void draw(const QByteArray& text) {
    const qsizetype end = text.lastIndexOf('}');
    QQmlComponent component(&engine);
    component.setData(
        "import QtQuick\nimport QtQuick.Templates as T\n"
        "import Kindora.Toolkit.Quick\n" +
            text.first(end) + R"(
                        property int clicks: 0
                        property int presses: 0
                        onClicked: ++clicks
                        onPressedChanged: if (pressed) ++presses
                      })",
        {});
    button.reset(qobject_cast<QQuickItem*>(component.create()));
    ASSERT_NE(button, nullptr) << component.errorString().toStdString();
    button->setParentItem(window.contentItem());
    button->setPosition({90, 90});
    button->setSize({20, 20});
  }

  [[nodiscard]] int clicks() const { return button->property("clicks").toInt(); }
  [[nodiscard]] int presses() const { return button->property("presses").toInt(); }
  [[nodiscard]] QAccessibleInterface& spoken() const {
    return *QAccessible::queryAccessibleInterface(button.get());
  }
  void act(const QString& action) const { spoken().actionInterface()->doAction(action); }
  void touch(QPoint at) {
    QTest::touchEvent(&window, finger.get()).press(0, at);
    QTest::touchEvent(&window, finger.get()).release(0, at);
  }
  void focus() const { button->forceActiveFocus(Qt::TabFocusReason); }

  const QtWarnings warnings;
  QQmlEngine engine;
  std::unique_ptr<QQuickItem> button;
  const std::unique_ptr<QPointingDevice> finger{QTest::createTouchDevice()};
};

TEST_F(ButtonBaseTest, IsAButtonCalledByItsText) {
  EXPECT_EQ(spoken().role(), QAccessible::Button);
  EXPECT_EQ(spoken().text(QAccessible::Name), QStringLiteral("Press me"));
  EXPECT_EQ(spoken().text(QAccessible::Description), QString());
}

TEST_F(ButtonBaseTest, AnAssistiveToolPresses) {
  act(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(clicks(), 1);
}

TEST_F(ButtonBaseTest, APointerPresses) {
  QTest::mouseClick(&window, Qt::LeftButton, {}, {100, 100});
  EXPECT_EQ(clicks(), 1);
  EXPECT_EQ(presses(), 1);
}

TEST_F(ButtonBaseTest, AFingerPressesFortyEightPointsAroundTheMiddle) {
  int expected = 0;
  for (const QPoint at : {QPoint(100, 100), QPoint(77, 77), QPoint(123, 77), QPoint(77, 123)}) {
    touch(at);
    EXPECT_EQ(clicks(), ++expected) << at.x() << ", " << at.y();
  }
  for (const QPoint at : {QPoint(75, 100), QPoint(125, 100), QPoint(100, 75), QPoint(100, 125)}) {
    touch(at);
    EXPECT_EQ(clicks(), expected) << at.x() << ", " << at.y();
  }
}

TEST_F(ButtonBaseTest, OneThatIsDrawnLargerIsHitWhereItIsDrawn) {
  button->setSize({80, 60});
  touch({91, 91});
  touch({169, 149});
  EXPECT_EQ(clicks(), 2);
  touch({89, 100});
  touch({100, 151});
  EXPECT_EQ(clicks(), 2);
}

TEST_F(ButtonBaseTest, AFingerThatLeavesDoesNotPress) {
  QTest::touchEvent(&window, finger.get()).press(0, {100, 100});
  EXPECT_EQ(presses(), 1);
  QTest::touchEvent(&window, finger.get()).move(0, {100, 180});
  QTest::touchEvent(&window, finger.get()).release(0, {100, 180});
  EXPECT_EQ(clicks(), 0);
  EXPECT_FALSE(button->property("pressed").toBool());
}

TEST_F(ButtonBaseTest, ReturnEnterAndSpacePress) {
  focus();
  int expected = 0;
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    QTest::keyClick(&window, key);
    EXPECT_EQ(clicks(), ++expected) << key;
  }
}

TEST_F(ButtonBaseTest, AKeyThatIsHeldPressesOnce) {
  focus();
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    const int before = clicks();
    for (const bool repeats : {false, true, true}) {
      QKeyEvent event(QEvent::KeyPress, key, {}, {}, repeats);
      QCoreApplication::sendEvent(&window, &event);
    }
    EXPECT_EQ(clicks(), before + 1) << key;
  }
}

TEST_F(ButtonBaseTest, IsReachedByTabAndShowsIt) {
  const QImage before = drawn();
  QTest::keyClick(&window, Qt::Key_Tab);
  EXPECT_TRUE(button->hasActiveFocus());
  EXPECT_NE(drawn(), before);
}

TEST_F(ButtonBaseTest, TheRingIsNotForFingers) {
  const QImage before = drawn();
  touch({100, 100});
  EXPECT_TRUE(button->hasActiveFocus());
  EXPECT_EQ(drawn(), before);
}

TEST_F(ButtonBaseTest, ADisabledOneSaysSoAndIsPressedByNobody) {
  button->setEnabled(false);
  EXPECT_EQ(spoken().text(QAccessible::Description), QStringLiteral("Unavailable"));
  act(QAccessibleActionInterface::pressAction());
  touch({100, 100});
  QTest::keyClick(&window, Qt::Key_Tab);
  QTest::keyClick(&window, Qt::Key_Return);
  EXPECT_EQ(clicks(), 0);
  button->setEnabled(true);
  EXPECT_EQ(spoken().text(QAccessible::Description), QString());
}

TEST_F(ButtonBaseTest, ASwitchIsToggledByEveryHand) {
  draw(R"(T.Switch {
            id: toggle
            property int toggles: 0
            focusPolicy: Qt.StrongFocus
            onToggled: ++toggles
            ButtonBehavior { button: toggle }
          })");
  int expected = 0;
  const auto expectToggled = [&](const char* by) {
    ++expected;
    EXPECT_EQ(button->property("toggles").toInt(), expected) << by;
    EXPECT_EQ(clicks(), expected) << by;
    EXPECT_EQ(button->property("checked").toBool(), expected % 2 == 1) << by;
    EXPECT_EQ(spoken().state().checked, expected % 2 == 1) << by;
  };
  act(QAccessibleActionInterface::pressAction());
  expectToggled("press");
  act(QAccessibleActionInterface::toggleAction());
  expectToggled("toggle");
  focus();
  QTest::keyClick(&window, Qt::Key_Return);
  expectToggled("Return");
  touch({100, 100});
  expectToggled("finger");
}

TEST_F(ButtonBaseTest, OneOfAFewStaysChosenHoweverOftenItIsPressed) {
  draw(R"(T.RadioButton {
            id: choice
            ButtonBehavior { button: choice }
          })");
  for (int i = 1; i <= 2; ++i) {
    act(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks(), i);
    EXPECT_TRUE(button->property("checked").toBool());
    EXPECT_TRUE(spoken().state().checked);
  }
}

TEST_F(ButtonBaseTest, ATabOffersAPress) {
  draw(R"(T.TabButton {
            id: tab
            ButtonBehavior { button: tab }
          })");
  EXPECT_EQ(spoken().role(), QAccessible::PageTab);
  EXPECT_TRUE(spoken().actionInterface()->actionNames().contains(
      QAccessibleActionInterface::pressAction()));
  act(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(clicks(), 1);
}

}  // namespace
}  // namespace kindora
