// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include <QAccessible>
#include <QFile>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <QTest>

#include "platform/fakes/FakeServices.h"
#include "tests/support/ManualTime.h"
#include "tests/support/QtWarnings.h"
#include "tests/support/QuickFixture.h"
#include "toolkit/controllers/UIAlertController.h"
#include "toolkit/controllers/UIApplication.h"
#include "toolkit/controllers/UINavigationController.h"
#include "toolkit/controllers/UITabBarController.h"
#include "toolkit/controllers/UIViewController.h"
#include "toolkit/controllers/UIViewControllerTransitioningDelegate.h"
#include "toolkit/controllers/ViewHandle.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;

constexpr UIColor kGreenColor{0, 1, 0, 1};
const QColor kGreenPixel(0, 255, 0);

constexpr const char* kPage = R"(
import QtQuick
import Kindora.Toolkit.Hosts

FocusScope {
    id: root
    required property UIViewController controller
    objectName: "page"
    focus: true
    property int presses: 0

    Rectangle {
        anchors.fill: parent
        color: Appearance.tint
    }

    MouseArea {
        anchors.fill: parent
        onPressed: ++root.presses
    }

    TextInput {
        objectName: "field"
        focus: true
        Accessible.role: Accessible.EditableText
        Accessible.name: "the field"
    }
}
)";

// A screen with a text field, or, without a page, one made in code that is green all over.
class Screen final : public UIViewController {
 public:
  explicit Screen(QUrl page = {}) : page_(std::move(page)) {}

  UIViewRef loadView() override {
    if (!page_.isEmpty()) return UIViewController::loadView();
    auto view = std::make_shared<UIView>();
    view->setBackgroundColor(kGreenColor);
    return view;
  }
  QUrl page() const override { return page_.isEmpty() ? UIViewController::page() : page_; }
  bool goBack() override {
    ++backs;
    return true;
  }
  bool canBecomeFirstResponder() const override { return true; }
  void motionEnded(UIEventSubtype /*motion*/) override { ++shakes; }
  int backs = 0;
  int shakes = 0;

 private:
  QUrl page_;
};

// Presents without animation, as it is.
class PlainDelegate final : public UIViewControllerTransitioningDelegate {
  std::shared_ptr<UIPresentationController> presentationControllerForPresentedViewController(
      UIViewController& /*presented*/, UIViewController& /*presenting*/) override {
    return nullptr;
  }
  std::shared_ptr<UIViewControllerAnimatedTransitioning> animationControllerForPresentedController(
      UIViewController& /*presented*/, UIViewController& /*presenting*/) override {
    return nullptr;
  }
  std::shared_ptr<UIViewControllerAnimatedTransitioning> animationControllerForDismissedController(
      UIViewController& /*dismissed*/) override {
    return nullptr;
  }
};

// The app's window, and an alert's window to be shown above it.
class WindowStackTest : public QuickFixture {
 protected:
  WindowStackTest() {
    QAccessible::setActive(true);
    QFile file(folder.filePath(QStringLiteral("Page.qml")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(kPage);
    file.close();
    root = makeViewController<Screen>(QUrl::fromLocalFile(file.fileName()));
    app->setTintColor({1, 0, 0, 1});
    app->setRootViewController(root);
    app->makeKeyAndVisible();

    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    window.show();
    window.requestActivate();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    draw();
  }

  void draw() {
    QQmlComponent component(&engine);
    component.setData("import Kindora.Toolkit.Hosts\nWindowStack { focus: true }", {});
    stack.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(
        {{QStringLiteral("width"), 100},
         {QStringLiteral("height"), 100},
         {QStringLiteral("parent"), QVariant::fromValue(window.contentItem())}})));
    EXPECT_NE(stack, nullptr) << component.errorString().toStdString();
  }

  void showAlert() {
    alert = makeWindow();
    alert->setWindowLevel(UIWindowLevelAlert);
    alertRoot = makeViewController<Screen>();
    alert->setRootViewController(alertRoot);
    alert->makeKeyAndVisible();
    time.settle();
  }
  void endAlert() {
    app->makeKeyAndVisible();
    alert.reset();
    alertRoot.reset();
    time.settle();
  }
  // Items of a list have no parent but the one in which they are drawn.
  static QQuickItem* found(QQuickItem* in, const QString& name) {
    if (in->objectName() == name) return in;
    for (QQuickItem* child : in->childItems()) {
      if (QQuickItem* item = found(child, name)) return item;
    }
    return nullptr;
  }
  QQuickItem* page() { return found(stack.get(), QStringLiteral("page")); }
  std::string typed() {
    return found(stack.get(), QStringLiteral("field"))->property("text").toString().toStdString();
  }
  void press() { QTest::mouseClick(&window, Qt::LeftButton, {}, {50, 50}); }
  int presses() { return page()->property("presses").toInt(); }
  static bool reaches(QAccessibleInterface* from, const QString& name) {
    if (from == nullptr) return false;
    if (from->text(QAccessible::Name) == name) return true;
    for (int i = 0; i < from->childCount(); ++i) {
      if (reaches(from->child(i), name)) return true;
    }
    return false;
  }
  bool isReadAloud() {
    return reaches(QAccessible::queryAccessibleInterface(&window), QStringLiteral("the field"));
  }

  const QtWarnings warnings;
  const FakeServices fakes = installFakeServices();
  ManualTime time{fakes.mainQueue};
  const QTemporaryDir folder;
  QQmlEngine engine;
  std::shared_ptr<UIWindow> app = makeWindow();
  std::shared_ptr<UIWindow> alert;
  std::shared_ptr<Screen> root;
  std::shared_ptr<Screen> alertRoot;
  std::unique_ptr<QQuickItem> stack;
};

TEST_F(WindowStackTest, DrawsTheWindowAndTellsItsSize) {
  EXPECT_EQ(pixel(50, 90), QColor(255, 0, 0));
  EXPECT_EQ(app->bounds(), (CGRect{{0, 0}, {100, 100}}));
  stack->setWidth(80);
  EXPECT_EQ(app->bounds(), (CGRect{{0, 0}, {80, 100}}));
}

TEST_F(WindowStackTest, DrawsAHigherWindowAbove) {
  showAlert();
  EXPECT_EQ(pixel(50, 90), kGreenPixel);
  endAlert();
  EXPECT_EQ(pixel(50, 90), QColor(255, 0, 0));
}

TEST_F(WindowStackTest, AWindowBelowAnAlertStaysInSightAndIsNotMadeAnew) {
  const QPointer<QQuickItem> before = page();
  showAlert();
  alertRoot->view()->setBackgroundColor(UIColor::clearColor());
  EXPECT_EQ(pixel(50, 90), QColor(255, 0, 0));
  endAlert();
  EXPECT_EQ(page(), before.data());
  EXPECT_FALSE(before.isNull());
}

TEST_F(WindowStackTest, TheKeyboardBelongsToTheKeyWindowAndReturnsWhereItWas) {
  QTest::keyClick(&window, 'a');
  EXPECT_EQ(typed(), "a");
  showAlert();
  QTest::keyClick(&window, 'b');
  QTest::keyClick(&window, Qt::Key_Tab);
  QTest::keyClick(&window, 'c');
  EXPECT_EQ(typed(), "a");
  endAlert();
  QTest::keyClick(&window, 'd');
  EXPECT_EQ(typed(), "ad");
}

TEST_F(WindowStackTest, TheKeyboardGoesThroughTabsAndBarsToThePage) {
  stack.reset();
  app->setRootViewController(
      makeViewController<UITabBarController>(std::vector<UIViewControllerRef>{
          makeViewController<UINavigationController>(makeViewController<Screen>(root->page()))}));
  draw();
  QTest::keyClick(&window, 'a');
  EXPECT_EQ(typed(), "a");
}

TEST_F(WindowStackTest, ThePointerDoesNotReachBelowAnAlert) {
  press();
  EXPECT_EQ(presses(), 1);
  showAlert();
  alertRoot->view()->setUserInteractionEnabled(false);
  press();
  EXPECT_EQ(presses(), 1);
  endAlert();
  press();
  EXPECT_EQ(presses(), 2);
}

TEST_F(WindowStackTest, EscGoesBackInTheKeyWindow) {
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_EQ(root->backs, 1);
  showAlert();
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_EQ(alertRoot->backs, 1);
  EXPECT_EQ(root->backs, 1);
  endAlert();
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_EQ(root->backs, 2);
}

TEST_F(WindowStackTest, TheKeysOfAShakeShakeOnceHoweverLongTheyAreHeld) {
  UIApplication::sharedApplication()->setApplicationSupportsShakeToEdit(true);
  root->becomeFirstResponder();
  const auto press = [this](bool repeats) {
    qt_sendShortcutOverrideEvent(&window, 0, Qt::Key_K, Qt::ControlModifier | Qt::ShiftModifier,
                                 QStringLiteral("K"), repeats);
  };
  press(false);
  for (int i = 0; i < 5; ++i) press(true);
  EXPECT_EQ(root->shakes, 1);
  press(false);
  EXPECT_EQ(root->shakes, 2);
  UIApplication::sharedApplication()->setApplicationSupportsShakeToEdit(false);
}

TEST_F(WindowStackTest, WhatLiesBelowAnAlertIsNotReadAloud) {
  EXPECT_TRUE(isReadAloud());
  showAlert();
  EXPECT_FALSE(isReadAloud());
  endAlert();
  EXPECT_TRUE(isReadAloud());
}

TEST_F(WindowStackTest, ADimmedWindowIsDrawnWithoutColour) {
  app->setTintAdjustmentMode(UIViewTintAdjustmentMode::dimmed);
  EXPECT_EQ(pixel(50, 90), QColor(76, 76, 76));
  app->setTintAdjustmentMode(UIViewTintAdjustmentMode::automatic);
  EXPECT_EQ(pixel(50, 90), QColor(255, 0, 0));
}

TEST_F(WindowStackTest, TheTintIsTheAppsWhicheverWindowIsKey) {
  showAlert();
  alertRoot->view()->setBackgroundColor(UIColor::clearColor());
  EXPECT_EQ(pixel(50, 90), QColor(255, 0, 0));
}

// --- Alerts and sheets that a screen presents ---

class PresentedAlertTest : public WindowStackTest {
 protected:
  void present(UIAlertControllerStyle style, const std::vector<UIAlertAction>& actions) {
    const auto presented = makeViewController<UIAlertController>("Title", std::nullopt, style);
    for (UIAlertAction action : actions) {
      action.handler = [this, title = action.title] { chosen.push_back(title); };
      presented->addAction(action);
    }
    root->presentViewController(presented, true);
    time.advance(0.5);
  }
  void pressKey(Qt::Key key) {
    QTest::keyClick(&window, key);
    time.advance(0.5);
  }

  std::vector<std::string> chosen;
};

TEST_F(PresentedAlertTest, TheKeyboardIsOnAnAlertsLastButtonAndReturns) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    present(UIAlertControllerStyle::alert, {{.title = "Yes"}, {.title = "No"}});
    pressKey(key);
    EXPECT_THAT(chosen, ElementsAre("No")) << key;
    chosen.clear();
  }
  QTest::keyClick(&window, 'a');
  EXPECT_EQ(typed(), "a");
}

TEST_F(PresentedAlertTest, TabGoesRoundItsButtonsOnly) {
  present(UIAlertControllerStyle::alert, {{.title = "Yes"}, {.title = "No"}});
  QTest::keyClick(&window, Qt::Key_Tab);
  QTest::keyClick(&window, Qt::Key_Tab);
  QTest::keyClick(&window, Qt::Key_Tab);
  pressKey(Qt::Key_Return);
  EXPECT_THAT(chosen, ElementsAre("Yes"));
}

TEST_F(PresentedAlertTest, TheKeyboardIsOnASheetsCancellingRow) {
  present(UIAlertControllerStyle::actionSheet,
          {{.title = "Camera"}, {.title = "Cancel", .style = UIAlertActionStyle::cancel}});
  pressKey(Qt::Key_Return);
  EXPECT_THAT(chosen, ElementsAre("Cancel"));
}

TEST_F(PresentedAlertTest, WithoutOneItIsOnTheLastRow) {
  present(UIAlertControllerStyle::actionSheet, {{.title = "Camera"}, {.title = "Photos"}});
  pressKey(Qt::Key_Space);
  EXPECT_THAT(chosen, ElementsAre("Photos"));
}

// --- Custom presentations ---

class CustomPresentationDrawingTest : public WindowStackTest {
 protected:
  CustomPresentationDrawingTest() {
    presented->setModalPresentationStyle(UIModalPresentationStyle::custom);
    presented->setTransitioningDelegate(delegate);
    root->presentViewController(presented, false);
    presented->view()->setFrame({{0, 0}, {100, 40}});
  }
  const std::shared_ptr<PlainDelegate> delegate = std::make_shared<PlainDelegate>();
  const std::shared_ptr<Screen> presented = makeViewController<Screen>();
};

TEST_F(CustomPresentationDrawingTest, IsDrawnAboveThePresenter) {
  EXPECT_EQ(pixel(50, 20), kGreenPixel);
  EXPECT_EQ(pixel(50, 90), QColor(255, 0, 0));
  root->dismissViewController(false);
  EXPECT_EQ(pixel(50, 20), QColor(255, 0, 0));
}

TEST_F(CustomPresentationDrawingTest, KeepsInputFromThePresenter) {
  press();
  QTest::keyClick(&window, 'a');
  EXPECT_EQ(presses(), 0);
  EXPECT_EQ(typed(), "");
  EXPECT_NE(presented->presentingViewController(), nullptr);
  root->dismissViewController(false);
  time.settle();
  press();
  QTest::keyClick(&window, 'b');
  EXPECT_EQ(presses(), 1);
  EXPECT_EQ(typed(), "b");
}

TEST_F(CustomPresentationDrawingTest, FollowsTheWindowsSize) {
  stack->setHeight(90);
  EXPECT_EQ(presented->presentationContainer().view->frame(), (CGRect{{0, 0}, {100, 90}}));
  EXPECT_EQ(presented->view()->frame(), (CGRect{{0, 0}, {100, 30}}));
}

TEST_F(CustomPresentationDrawingTest, EscAsksWhatIsPresented) {
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_EQ(presented->backs, 1);
  EXPECT_EQ(root->backs, 0);
}

}  // namespace
}  // namespace kindora
