// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <QAccessible>
#include <QPointingDevice>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>
#include <memory>

#include "photos/PhotoCropController.h"
#include "platform/fakes/FakeServices.h"
#include "tests/support/QuickFixture.h"

namespace kindora {
namespace {

// The page in a window of 332 x 500 points: its square is 300 points wide, from (16, 55) on.
class PhotoCropPageTest : public QuickFixture {
 protected:
  PhotoCropPageTest() {
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    window.resize(332, 500);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    QQmlComponent component(&engine, controller->page());
    page.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(
        {{QStringLiteral("controller"), QVariant::fromValue(controller.get())},
         {QStringLiteral("width"), 332},
         {QStringLiteral("height"), 500},
         {QStringLiteral("parent"), QVariant::fromValue(window.contentItem())}})));
    EXPECT_NE(page, nullptr) << component.errorString().toStdString();
  }
  void press(Qt::Key key) { QTest::keyClick(&window, key); }
  [[nodiscard]] CGRect cut() const { return controller->crop().cropRect(); }

  const FakeServices fakes = installFakeServices();
  QQmlEngine engine;
  const std::shared_ptr<PhotoCropController> controller =
      makeViewController<PhotoCropController>(plainPicture(600, 300, kRed));
  std::unique_ptr<QQuickItem> page;
};

TEST_F(PhotoCropPageTest, TellsTheSquaresSide) {
  EXPECT_EQ(controller->crop().side(), 300);
  page->setHeight(300);
  EXPECT_EQ(controller->crop().side(), 170);
}

TEST_F(PhotoCropPageTest, ShowsThePictureInAndAroundTheSquare) {
  const QImage shown = drawn();
  EXPECT_EQ(shown.pixelColor(166, 200), QColor(Qt::red));
  EXPECT_NE(shown.pixelColor(5, 200), QColor(Qt::red));
}

TEST_F(PhotoCropPageTest, AFingerMovesThePicture) {
  QTest::mousePress(&window, Qt::LeftButton, {}, {200, 200});
  for (int x = 200; x >= 140; x -= 10) QTest::mouseMove(&window, {x, 200});
  QTest::mouseRelease(&window, Qt::LeftButton, {}, {140, 200});
  EXPECT_GT(cut().origin.x, 190);
  EXPECT_LE(cut().origin.x, 211);
}

TEST_F(PhotoCropPageTest, TwoFingersZoom) {
  const std::unique_ptr<QPointingDevice> device(QTest::createTouchDevice());
  QTest::touchEvent(&window, device.get()).press(0, {150, 200}).press(1, {180, 200});
  for (int spread = 0; spread <= 60; spread += 5) {
    QTest::touchEvent(&window, device.get())
        .move(0, {150 - spread, 200})
        .move(1, {180 + spread, 200});
  }
  QTest::touchEvent(&window, device.get()).release(0, {90, 200}).release(1, {240, 200});
  EXPECT_GT(controller->zoom(), 1.5);
}

TEST_F(PhotoCropPageTest, TheWheelZooms) {
  const auto turn = [this](int angle) {
    QWheelEvent event({166, 200}, window.mapToGlobal(QPointF(166, 200)), {}, {0, angle},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&window, &event);
  };
  turn(240);
  EXPECT_GT(controller->zoom(), 1.2);
  turn(-1200);
  EXPECT_EQ(controller->zoom(), 1);
}

TEST_F(PhotoCropPageTest, KeysMoveAndZoom) {
  press(Qt::Key_Left);
  EXPECT_EQ(cut().origin.x, 160);
  press(Qt::Key_Right);
  EXPECT_EQ(cut().origin.x, 150);
  press(Qt::Key_Plus);
  EXPECT_NEAR(controller->zoom(), 1.1, 1e-9);
  press(Qt::Key_Down);
  EXPECT_LT(cut().origin.y, 14);
  press(Qt::Key_Up);
  press(Qt::Key_Minus);
  EXPECT_NEAR(controller->zoom(), 1, 1e-9);
}

TEST_F(PhotoCropPageTest, AssistiveActionsMoveAndZoom) {
  auto* const square = page->findChild<QQuickItem*>(QStringLiteral("cropSquare"));
  auto* const actions = QAccessible::queryAccessibleInterface(square)->actionInterface();
  ASSERT_NE(actions, nullptr);
  actions->doAction(QAccessibleActionInterface::scrollRightAction());
  EXPECT_EQ(cut().origin.x, 160);
  actions->doAction(QAccessibleActionInterface::scrollLeftAction());
  EXPECT_EQ(cut().origin.x, 150);
  actions->doAction(QAccessibleActionInterface::increaseAction());
  EXPECT_NEAR(controller->zoom(), 1.1, 1e-9);
  const double top = cut().origin.y;
  actions->doAction(QAccessibleActionInterface::scrollUpAction());
  EXPECT_LT(cut().origin.y, top);
  actions->doAction(QAccessibleActionInterface::scrollDownAction());
  EXPECT_NEAR(cut().origin.y, top, 1e-9);
  actions->doAction(QAccessibleActionInterface::decreaseAction());
  EXPECT_NEAR(controller->zoom(), 1, 1e-9);
}

}  // namespace
}  // namespace kindora
