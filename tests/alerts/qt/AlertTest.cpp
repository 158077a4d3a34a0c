// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Alerts as QML writes them, in a window that is no window of the toolkit.
#include "alerts/qt/Alert.h"

#include <gtest/gtest.h>

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <memory>

#include "alerts/legacy/QavAlertView.h"
#include "alerts/qt/QavAlertController.h"
#include "tests/support/ManualTime.h"

namespace kindora {
namespace {

constexpr const char* kWindow = R"(
import QtQuick
import Kindora.Alerts

Window {
    id: root
    width: 320
    height: 480
    visible: true
    property string chosen
    property var offered
    property string typed: field.text
    property int presses: 0
    property int escapes: 0
    property string name: name.text

    MouseArea { anchors.fill: parent; onPressed: ++root.presses }
    FocusScope {
        focus: true
        TextInput { id: field; focus: true; activeFocusOnTab: true }
        TextInput { activeFocusOnTab: true }
    }
    Shortcut { sequence: "Esc"; onActivated: ++root.escapes }
    AlertLayer { objectName: "layer" }
    Alert {
        objectName: "question"
        title: "Delete?"
        message: "For good."
        AlertAction {
            text: "Keep"
            style: AlertAction.Cancel
            onTriggered: root.chosen += "keep "
        }
        AlertAction {
            objectName: "delete"
            text: "Delete"
            style: AlertAction.Destructive
            onTriggered: root.chosen += "delete "
        }
    }
    Alert {
        objectName: "form"
        title: "Who?"
        textFields: [
            AlertTextField { id: name; objectName: "name"; placeholder: "Name" },
            AlertTextField { placeholder: "Password"; secure: true }
        ]
        AlertAction { text: "Done"; onTriggered: root.chosen += name.text }
    }
}
)";

QStringList& warnings() {
  static QStringList list;
  return list;
}

class AlertTest : public ::testing::Test {
 protected:
  AlertTest() {
    warnings().clear();
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
      if (type != QtDebugMsg && type != QtInfoMsg) warnings() << text;
    });
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    load(kWindow);
  }
  ~AlertTest() override {
    window.reset();
    time.settle();
    qInstallMessageHandler(nullptr);
    EXPECT_EQ(warnings().join(u'\n').toStdString(), "");
  }

  void load(const char* qml) {
    window.reset();  // a program has one layer
    QQmlComponent component(&engine);
    component.setData(qml, {});
    window.reset(qobject_cast<QQuickWindow*>(component.create()));
    ASSERT_NE(window, nullptr) << component.errorString().toStdString();
    window->requestActivate();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }
  Alert& alert(const char* name = "question") {
    return *window->findChild<Alert*>(QLatin1String(name));
  }
  QQuickItem& layer() { return *window->findChild<QQuickItem*>(QStringLiteral("layer")); }
  // Long enough for an alert to have come, or gone.
  void pass() {
    time.advance(0.5);
    static_cast<void>(window->grabWindow());
  }
  void open(const char* name = "question") {
    alert(name).open();
    pass();
  }
  static QQuickItem* found(QQuickItem* in, const QString& text) {
    if (in->inherits("QQuickAbstractButton") && in->property("text") == text) return in;
    for (QQuickItem* child : in->childItems()) {
      if (QQuickItem* item = found(child, text)) return item;
    }
    return nullptr;
  }
  void press(const QString& text) {
    QQuickItem* button = found(&layer(), text);
    ASSERT_NE(button, nullptr);
    const QRectF place = button->mapRectToScene(button->boundingRect());
    QTest::mouseClick(window.get(), Qt::LeftButton, {}, place.center().toPoint());
  }
  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(window.get(), key, modifiers);
  }
  std::string text(const char* property) {
    return window->property(property).toString().toStdString();
  }
  int count(const char* property) { return window->property(property).toInt(); }

  ManualTime time{std::make_shared<ManualQueue>()};
  QQmlEngine engine;
  std::unique_ptr<QQuickWindow> window;
};

TEST_F(AlertTest, AnActionIsTriggeredOnceTheAlertHasGone) {
  open();
  EXPECT_TRUE(alert().isOpened());
  press(QStringLiteral("Delete"));
  EXPECT_EQ(text("chosen"), "");
  pass();
  EXPECT_EQ(text("chosen"), "delete ");
  EXPECT_FALSE(alert().isOpened());
  EXPECT_FALSE(layer().isVisible());
}

TEST_F(AlertTest, OpensAgainAsItIsThen) {
  open();
  press(QStringLiteral("Delete"));
  pass();
  window->findChild<AlertAction*>(QStringLiteral("delete"))->setText(QStringLiteral("Remove"));
  open();
  press(QStringLiteral("Remove"));
  pass();
  EXPECT_EQ(text("chosen"), "delete delete ");
}

TEST_F(AlertTest, TellsWhenItHasCome) {
  int presented = 0;
  QObject::connect(&alert(), &Alert::presented, [&] { ++presented; });
  alert().open();
  EXPECT_EQ(presented, 0);
  pass();
  EXPECT_EQ(presented, 1);
  alert().open();
  pass();
  EXPECT_EQ(presented, 1);
}

TEST_F(AlertTest, GoesWithoutAnActionWhenItIsClosed) {
  open();
  alert().close();
  pass();
  EXPECT_EQ(text("chosen"), "");
  EXPECT_FALSE(alert().isOpened());
}

TEST_F(AlertTest, GoesFromTheScreenWithItself) {
  open();
  delete &alert();
  pass();
  EXPECT_FALSE(layer().isVisible());
}

TEST_F(AlertTest, AFunctionMayKeepItOpen) {
  const QJSValue refuse = engine.evaluate(
      QStringLiteral("(function f(action) { f.asked = [f.asked, action.text].join(' ');"
                     " return action.text !== 'Delete' })"));
  alert().setShouldDismiss(refuse);
  open();
  press(QStringLiteral("Delete"));
  pass();
  EXPECT_TRUE(alert().isOpened());
  press(QStringLiteral("Keep"));
  pass();
  EXPECT_EQ(text("chosen"), "keep ");
  EXPECT_EQ(refuse.property(QStringLiteral("asked")).toString().toStdString(), " Delete Keep");
}

TEST_F(AlertTest, AFunctionThatFailsIsWarnedOfAndKeepsNothingOpen) {
  alert().setShouldDismiss(
      engine.evaluate(QStringLiteral("(function() { throw new Error('oh') })")));
  open();
  press(QStringLiteral("Keep"));
  pass();
  EXPECT_FALSE(alert().isOpened());
  EXPECT_EQ(warnings().join(u'\n').toStdString(), "Alert.shouldDismiss: Error: oh");
  warnings().clear();
}

TEST_F(AlertTest, ADisabledActionIsNotChosen) {
  auto* remove = window->findChild<AlertAction*>(QStringLiteral("delete"));
  remove->setEnabled(false);
  open();
  press(QStringLiteral("Delete"));
  pass();
  EXPECT_TRUE(alert().isOpened());
  remove->setEnabled(true);
  press(QStringLiteral("Delete"));
  pass();
  EXPECT_EQ(text("chosen"), "delete ");
}

TEST_F(AlertTest, WhatIsTypedIsKeptInTheFields) {
  open("form");
  key(Qt::Key_A);
  key(Qt::Key_B);
  EXPECT_EQ(text("name"), "ab");
  EXPECT_EQ(text("typed"), "");
  press(QStringLiteral("Done"));
  pass();
  EXPECT_EQ(text("chosen"), "ab");
  open("form");
  key(Qt::Key_C);
  EXPECT_EQ(text("name"), "abc");
}

TEST_F(AlertTest, AFieldFollowsItsText) {
  open("form");
  window->findChild<AlertTextField*>(QStringLiteral("name"))->setText(QStringLiteral("xy"));
  key(Qt::Key_End);
  key(Qt::Key_Z);
  EXPECT_EQ(text("name"), "xyz");
}

TEST_F(AlertTest, AnAlertMayOpenAnother) {
  open();
  open("form");
  press(QStringLiteral("Done"));
  pass();
  EXPECT_FALSE(alert("form").isOpened());
  EXPECT_TRUE(alert().isOpened());
  press(QStringLiteral("Keep"));
  pass();
  EXPECT_EQ(text("chosen"), "keep ");
}

TEST_F(AlertTest, OpensOnceTheOneThatIsGoingHasGone) {
  open();
  alert().close();
  alert("form").open();
  EXPECT_FALSE(alert("form").isOpened());
  pass();
  pass();
  EXPECT_FALSE(alert().isOpened());
  EXPECT_TRUE(alert("form").isOpened());
  press(QStringLiteral("Done"));
  pass();
  EXPECT_FALSE(alert("form").isOpened());
}

TEST_F(AlertTest, ClosedBeforeItOpensItDoesNot) {
  open();
  alert().close();
  alert("form").open();
  alert("form").close();
  pass();
  pass();
  EXPECT_FALSE(alert("form").isOpened());
  EXPECT_FALSE(layer().isVisible());
}

// --- The layer ---

using AlertLayer = AlertTest;

TEST_F(AlertLayer, BlocksNothingWhileNoAlertIsOpen) {
  EXPECT_FALSE(layer().isVisible());
  QTest::mouseClick(window.get(), Qt::LeftButton, {}, {160, 240});
  EXPECT_EQ(count("presses"), 1);
  key(Qt::Key_A);
  EXPECT_EQ(text("typed"), "a");
  key(Qt::Key_Escape);
  EXPECT_EQ(count("escapes"), 1);
}

TEST_F(AlertLayer, CoversAWindowsHeaderToo) {
  load(R"(
    import QtQuick
    import QtQuick.Templates as T
    import Kindora.Alerts
    T.ApplicationWindow {
        id: root
        width: 320; height: 480; visible: true
        property Item layer: layer
        property int presses: 0
        header: Item {
            implicitHeight: 60
            MouseArea { anchors.fill: parent; onPressed: ++root.presses }
        }
        AlertLayer { id: layer }
    })");
  const auto* covering = window->property("layer").value<QQuickItem*>();
  EXPECT_EQ(covering->mapRectToScene(covering->boundingRect()), QRectF(0, 0, 320, 480));
  QTest::mouseClick(window.get(), Qt::LeftButton, {}, {10, 10});
  EXPECT_EQ(count("presses"), 1);
  const auto shown = QavAlertController::showAlertControllerWithTitle("Title", "Message", "OK");
  pass();
  QTest::mouseClick(window.get(), Qt::LeftButton, {}, {10, 10});
  EXPECT_EQ(count("presses"), 1);
  shown->dismissWithCompletion();
  pass();
}

TEST_F(AlertLayer, ShowsAlertViewsToo) {
  int dismissed = -1;
  const auto view = QavAlertView::alertWithTitleMessageButtons("Title", "Message", {"No", "Yes"});
  view->showWithDismissHandler([&](int index) { dismissed = index; });
  pass();
  pass();
  EXPECT_TRUE(layer().isVisible());
  key(Qt::Key_A);
  EXPECT_EQ(text("typed"), "");
  press(QStringLiteral("Yes"));
  pass();
  pass();
  EXPECT_EQ(dismissed, 1);
  EXPECT_FALSE(layer().isVisible());
  key(Qt::Key_B);
  EXPECT_EQ(text("typed"), "b");
}

TEST_F(AlertLayer, KeepsThePointerToItself) {
  open();
  QTest::mouseClick(window.get(), Qt::LeftButton, {}, {10, 10});
  EXPECT_EQ(count("presses"), 0);
  alert().close();
  pass();
  QTest::mouseClick(window.get(), Qt::LeftButton, {}, {10, 10});
  EXPECT_EQ(count("presses"), 1);
}

TEST_F(AlertLayer, TheKeyboardReturnsWhereItWas) {
  key(Qt::Key_A);
  open();
  key(Qt::Key_B);
  alert().close();
  pass();
  key(Qt::Key_C);
  EXPECT_EQ(text("typed"), "ac");
}

TEST_F(AlertLayer, TabGoesRoundInTheAlert) {
  open();
  QList<QQuickItem*> visited;
  for (int i = 0; i < 4; ++i) {
    key(Qt::Key_Tab);
    visited << window->activeFocusItem();
    EXPECT_TRUE(layer().isAncestorOf(visited.back()));
  }
  EXPECT_NE(visited[0], visited[1]);
  EXPECT_EQ(visited[0], visited[2]);
  key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(window->activeFocusItem(), visited[2]);
}

TEST_F(AlertLayer, ReturnChoosesTheButtonThatHasTheKeyboard) {
  open();
  while (window->activeFocusItem() != found(&layer(), QStringLiteral("Delete"))) {
    const QQuickItem* before = window->activeFocusItem();
    key(Qt::Key_Tab);
    ASSERT_NE(window->activeFocusItem(), before);
  }
  key(Qt::Key_Return);
  pass();
  EXPECT_EQ(text("chosen"), "delete ");
}

TEST_F(AlertLayer, EscCancelsAndTriggersNoShortcutOfTheProgram) {
  open();
  key(Qt::Key_Escape);
  pass();
  EXPECT_EQ(text("chosen"), "keep ");
  EXPECT_EQ(count("escapes"), 0);
  key(Qt::Key_Escape);
  EXPECT_EQ(count("escapes"), 1);
}

TEST_F(AlertLayer, TheKeyboardStaysWhereTheProgramPutsItMeanwhile) {
  open();
  window->contentItem()->childItems().front()->forceActiveFocus();
  alert().close();
  pass();
  EXPECT_EQ(window->activeFocusItem(), window->contentItem()->childItems().front());
}

TEST_F(AlertLayer, WithoutOneAnAlertDoesNotOpen) {
  delete &layer();
  alert().open();
  EXPECT_FALSE(alert().isOpened());
  EXPECT_EQ(warnings().size(), 1);
  warnings().clear();
}

}  // namespace
}  // namespace kindora
