// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessible>
#include <QFile>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <string>
#include <utility>

#include "platform/fakes/FakeServices.h"
#include "tests/support/ManualTime.h"
#include "tests/support/QtWarnings.h"
#include "tests/support/QuickFixture.h"
#include "toolkit/controllers/UIViewController.h"

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
    QAccessible::setActive(true);
    QFile file(folder_.filePath(QStringLiteral("Page.qml")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(R"(
import QtQuick
import Kindora.Toolkit.Hosts

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
    page_ = QUrl::fromLocalFile(file.fileName());
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    window.resize(kWidth, kHeight);
    window.show();
    window.requestActivate();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  std::shared_ptr<UIViewController> screen(const QString& title) {
    return makeViewController<PressCounter>(page_, title);
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
  /// A finger that is put down, drawn along a line and lifted.
  void drag(QPoint from, QPoint to) {
    constexpr int kSteps = 10;
    QTest::mousePress(&window, Qt::LeftButton, {}, from);
    for (int i = 1; i <= kSteps; ++i) QTest::mouseMove(&window, from + (to - from) * i / kSteps);
    QTest::mouseRelease(&window, Qt::LeftButton, {}, to);
  }
  void press(Qt::Key key) { QTest::keyClick(&window, key); }

  const QtWarnings warnings;
  const FakeServices fakes = installFakeServices();
  ManualTime time{fakes.mainQueue};
  QQmlEngine engine;
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

  const QTemporaryDir folder_;
  QUrl page_;
};

}  // namespace kindora
