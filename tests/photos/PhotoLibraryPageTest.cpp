// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>
#include <memory>
#include <string>

#include "photos/PhotoLibraryController.h"
#include "photos/UIImagePickerController.h"
#include "platform/fakes/FakeServices.h"
#include "tests/support/ManualTime.h"
#include "tests/support/QuickFixture.h"

namespace kindora {
namespace {

// 60 pictures called "0.png" and so on, three a line, in a window that shows some of them.
class PhotoLibraryPageTest : public QuickFixture {
 protected:
  PhotoLibraryPageTest() {
    QAccessible::setActive(true);
    for (int i = 0; i < 60; ++i) {
      fakes.photos->addPhoto("/p/" + std::to_string(i) + ".png", plainPicture(4, 4, kRed));
    }
    picker = makeViewController<UIImagePickerController>(
        UIImagePickerControllerSourceType::photoLibrary);
    picker->beginAppearanceTransition(true, false);
    picker->endAppearanceTransition();
    time.settle();
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    window.resize(kWidth, kHeight);
    window.show();
    window.requestActivate();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    const UIViewControllerRef library = picker->topViewController();
    QQmlComponent component(&engine, library->page());
    page.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(
        {{QStringLiteral("controller"), QVariant::fromValue(library.get())},
         {QStringLiteral("width"), kWidth},
         {QStringLiteral("height"), kHeight},
         {QStringLiteral("parent"), QVariant::fromValue(window.contentItem())}})));
    EXPECT_NE(page, nullptr) << component.errorString().toStdString();
    time.settle();
    press(Qt::Key_Tab);
  }
  void press(Qt::Key key) {
    QTest::keyClick(&window, key);
    time.settle();
  }
  void goesTo(Qt::Key key, const char* name) {
    press(key);
    EXPECT_EQ(focusName(), QString::fromLatin1(name));
    EXPECT_TRUE(focusIsInSight()) << name;
  }
  [[nodiscard]] QString focusName() const {
    QAccessibleInterface* focused = QAccessible::queryAccessibleInterface(window.activeFocusItem());
    return focused != nullptr ? focused->text(QAccessible::Name) : QString();
  }
  [[nodiscard]] bool focusIsInSight() const {
    const QQuickItem& item = *window.activeFocusItem();
    return QRectF(0, 0, kWidth, kHeight)
        .contains(item.mapRectToScene({0, 0, item.width(), item.height()}));
  }

  static constexpr int kWidth = 320;
  static constexpr int kHeight = 480;
  const FakeServices fakes = installFakeServices();
  ManualTime time{fakes.mainQueue};
  QQmlEngine engine;
  std::shared_ptr<UIImagePickerController> picker;
  std::unique_ptr<QQuickItem> page;
};

TEST_F(PhotoLibraryPageTest, TabGoesThroughAllPictures) {
  for (int i = 0; i < 60; ++i) {
    ASSERT_EQ(focusName(), QStringLiteral("%1.png").arg(i));
    ASSERT_TRUE(focusIsInSight()) << i;
    press(Qt::Key_Tab);
  }
  EXPECT_EQ(focusName(), QStringLiteral("Browse Folders"));
}

TEST_F(PhotoLibraryPageTest, KeysGoToThePictureThatLiesThere) {
  goesTo(Qt::Key_Right, "1.png");
  goesTo(Qt::Key_Down, "4.png");
  goesTo(Qt::Key_Left, "3.png");
  goesTo(Qt::Key_Up, "0.png");
  goesTo(Qt::Key_End, "59.png");
  goesTo(Qt::Key_Up, "56.png");
  goesTo(Qt::Key_Home, "0.png");
  goesTo(Qt::Key_PageDown, "12.png");
}

}  // namespace
}  // namespace kindora
