// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessible>
#include <QFile>
#include <QPointingDevice>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <string>
#include <utility>

#include "platform/fakes/FakeServices.h"
#include "platform/fakes/FakeViewServices.h"
#include "tests/support/ManualTime.h"
#include "tests/support/QtWarnings.h"
#include "tests/support/QuickFixture.h"
#include "toolkit/controllers/UIViewController.h"
#include "toolkit/quick/QtViewServices.h"

namespace kindora {

/// A screen whose page is an item named as its title, which counts the presses in "presses".
class PressCounter final : public UIViewController {
 public:
  PressCounter(QUrl page, const QString& title) : page_(std::move(page)) { setTitle(title); }
  [[nodiscard]] QUrl page() const override { return page_; }

 private:
  QUrl page_;
};

/// A window of 320 x 480 points that has the keyboard, and a host that fills it. Time is moved by
/// hand. A warning of QML fails the test.
class HostFixture : public QuickFixture {
 protected:
  static constexpr int kWidth = 320;
  static constexpr int kHeight = 480;

  HostFixture() {
    ViewServices services = makeQtViewServices();
    services.looks = looks;
    installViewServices(services);
    QAccessible::setActive(true);
    // Each move of a finger counts, not only the last before a frame.
    qputenv("QML_NO_TOUCH_COMPRESSION", "1");
    page_ = page(QStringLiteral("Page.qml"), R"(
Rectangle {
    id: root
    required property UIViewController controller
    property int presses: 0
    objectName: root.controller.title

    MouseArea {
        anchors.fill: parent
        onPressed: ++root.presses
    }
})");
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    window.resize(kWidth, kHeight);
    window.show();
    window.requestActivate();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  std::shared_ptr<UIViewController> screen(const QString& title) {
    return makeViewController<PressCounter>(page_, title);
  }

  /// A file with that QML text.
  [[nodiscard]] QUrl page(const QString& name, const QByteArray& text) const {
    QFile file(folder_.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("import QtQuick\nimport Kindora.Toolkit.Hosts\n" + text);
    return QUrl::fromLocalFile(file.fileName());
  }

  /// Makes the host from its QML text, with these properties besides its size.
  void draw(const QByteArray& text, QVariantMap properties) {
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport Kindora.Toolkit.Hosts\n" + text, {});
    properties.insert({{QStringLiteral("width"), kWidth},
                       {QStringLiteral("height"), kHeight},
                       {QStringLiteral("parent"), QVariant::fromValue(window.contentItem())}});
    host.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(properties)));
    ASSERT_NE(host, nullptr) << component.errorString().toStdString();
    host->setFocus(true);
    time.settle();
  }
  /// The same for a host that needs nothing but its controller.
  template <typename Controller>
  void drawHost(const QByteArray& type, Controller* controller) {
    draw(type + " {}", {{QStringLiteral("controller"), QVariant::fromValue(controller)}});
  }

  /// The item of that object name; null without one.
  [[nodiscard]] QQuickItem* found(const QString& name) const { return found(host.get(), name); }
  /// Whether the item is there, shows, and none of those in which it lies is hidden.
  [[nodiscard]] bool shows(const QString& name) const {
    const QQuickItem* item = found(name);
    return item != nullptr && item->isVisible();
  }
  /// The item that shows and is read aloud by that name; null without one.
  [[nodiscard]] QQuickItem* spoken(const QString& name) {
    QAccessibleInterface* reached = accessible(name);
    return reached != nullptr ? qobject_cast<QQuickItem*>(reached->object()) : nullptr;
  }
  [[nodiscard]] QAccessible::Role role(const QString& name) {
    QAccessibleInterface* reached = accessible(name);
    return reached != nullptr ? reached->role() : QAccessible::NoRole;
  }
  /// What an assistive tool may do with it.
  [[nodiscard]] QStringList actions(const QString& name) {
    QAccessibleInterface* reached = accessible(name);
    QAccessibleActionInterface* able = reached != nullptr ? reached->actionInterface() : nullptr;
    return able != nullptr ? able->actionNames() : QStringList();
  }
  void act(const QString& name, const QString& action) {
    ASSERT_TRUE(actions(name).contains(action)) << name.toStdString();
    accessible(name)->actionInterface()->doAction(action);
  }
  /// The names of all that have that role, shown or not, in the order in which they are read aloud.
  [[nodiscard]] QStringList namesOf(QAccessible::Role role) {
    QStringList names;
    collectNames(QAccessible::queryAccessibleInterface(&window), role, names);
    return names;
  }
  /// What assistive tools are told of it.
  [[nodiscard]] QAccessible::State state(const QString& name) {
    QAccessibleInterface* reached = accessible(name);
    return reached != nullptr ? reached->state() : QAccessible::State();
  }

  /// In the window.
  [[nodiscard]] static QRectF place(const QQuickItem* item) {
    return item->mapRectToScene({0, 0, item->width(), item->height()});
  }
  [[nodiscard]] static QPoint middle(const QQuickItem* item) {
    return place(item).center().toPoint();
  }
  void clickAt(QPoint at) { QTest::mouseClick(&window, Qt::LeftButton, {}, at); }
  void click(const QString& name) {
    QQuickItem* item = spoken(name);
    ASSERT_NE(item, nullptr) << "nothing is called " << name.toStdString();
    clickAt(middle(item));
  }
  /// As an assistive tool does.
  void pressByTool(const QString& name) {
    QAccessibleInterface* reached = accessible(name);
    ASSERT_NE(reached, nullptr) << "nothing is called " << name.toStdString();
    ASSERT_NE(reached->actionInterface(), nullptr) << name.toStdString();
    reached->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  }
  /// What has the keyboard is read aloud by that name.
  [[nodiscard]] QString focusName() const {
    QAccessibleInterface* focused = QAccessible::queryAccessibleInterface(window.activeFocusItem());
    return focused != nullptr ? focused->text(QAccessible::Name) : QString();
  }
  /// A finger on the screen that is put down, drawn along a line and, unless it stays, lifted.
  void swipe(QPoint from, QPoint to, bool stays = false) {
    constexpr int kSteps = 10;
    QTest::touchEvent(&window, touchScreen.get()).press(0, from);
    for (int i = 1; i <= kSteps; ++i) {
      QTest::touchEvent(&window, touchScreen.get()).move(0, from + (to - from) * i / kSteps);
    }
    if (!stays) lift(to);
  }
  void lift(QPoint at) { QTest::touchEvent(&window, touchScreen.get()).release(0, at); }
  void tap(QPoint at) {
    QTest::touchEvent(&window, touchScreen.get()).press(0, at);
    lift(at);
  }
  /// The pointer, pressed, drawn along a line and released.
  void drag(QPoint from, QPoint to) {
    constexpr int kSteps = 10;
    QTest::mousePress(&window, Qt::LeftButton, {}, from);
    for (int i = 1; i <= kSteps; ++i) QTest::mouseMove(&window, from + (to - from) * i / kSteps);
    QTest::mouseRelease(&window, Qt::LeftButton, {}, to);
  }
  void press(Qt::Key key) { QTest::keyClick(&window, key); }

  const QtWarnings warnings;
  const std::shared_ptr<FakeLooks> looks = std::make_shared<FakeLooks>();
  const FakeServices fakes = installFakeServices();
  ManualTime time{fakes.mainQueue};
  QQmlEngine engine;
  const std::unique_ptr<QPointingDevice> touchScreen{QTest::createTouchDevice()};
  std::unique_ptr<QQuickItem> host;

 private:
  // Items of a list have no parent but the one in which they are drawn.
  static QQuickItem* found(QQuickItem* in, const QString& name) {
    if (in->objectName() == name) return in;
    for (QQuickItem* child : in->childItems()) {
      if (QQuickItem* item = found(child, name)) return item;
    }
    return nullptr;
  }
  QAccessibleInterface* accessible(const QString& name) {
    return accessible(QAccessible::queryAccessibleInterface(&window), name);
  }
  static QAccessibleInterface* accessible(QAccessibleInterface* from, const QString& name) {
    if (from == nullptr || from->state().invisible) return nullptr;
    if (from->text(QAccessible::Name) == name) return from;
    for (int i = 0; i < from->childCount(); ++i) {
      if (QAccessibleInterface* reached = accessible(from->child(i), name)) return reached;
    }
    return nullptr;
  }

  static void collectNames(QAccessibleInterface* from, QAccessible::Role role, QStringList& names) {
    if (from == nullptr) return;
    if (from->role() == role) names.append(from->text(QAccessible::Name));
    for (int i = 0; i < from->childCount(); ++i) collectNames(from->child(i), role, names);
  }

  const QTemporaryDir folder_;
  QUrl page_;
};

}  // namespace kindora
