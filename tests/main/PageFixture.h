// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <memory>

#include "tests/support/PhoneFormatsOf.h"
#include "tests/support/QtWarnings.h"
#include "tests/support/app/AppFixture.h"
#include "toolkit/quick/QtViewServices.h"

namespace kindora {

/// What the screen before hands over: the first challenge in progress, or nothing.
using Prepare = void (*)(UIViewController&, const ChallengeRef&);
template <typename Controller>
void withChallenge(UIViewController& controller, const ChallengeRef& challenge) {
  dynamic_cast<Controller&>(controller).challenge = challenge;
}
inline void asItIs(UIViewController& /*controller*/, const ChallengeRef& /*challenge*/) {}

/// A scene's page, drawn with its controller in a window of the page's size.
class PageFixture : public AppFixture {
 protected:
  PageFixture() {
    installViewServices(makeQtViewServices());
    installPhoneFormatEnvironment(std::make_shared<PhoneFormatsOf>("US"));
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
  }

  void draw(const char* scene, Prepare prepare, QSize size) {
    controller = mainStoryboard().instantiateViewController(scene);
    prepare(*controller, store().inProgressChallenges[0]);
    navigation().pushViewController(controller, false);
    window.resize(size);
    window.show();
    window.requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QQmlComponent component(&engine);
    component.setData("import Kindora.Toolkit.Hosts\nPageLoader {}", {});
    loader.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(
        {{QStringLiteral("controller"), QVariant::fromValue(controller.get())},
         {QStringLiteral("parent"), QVariant::fromValue(window.contentItem())},
         {QStringLiteral("width"), size.width()},
         {QStringLiteral("height"), size.height()}})));
    ASSERT_NE(loader, nullptr) << component.errorString().toStdString();
    loader->setFocus(true);
    time.advance(0.5);
  }

  const QtWarnings warnings;
  std::shared_ptr<UIViewController> controller;
  QQmlEngine engine;
  QQuickWindow window;
  std::unique_ptr<QQuickItem> loader;
};

}  // namespace kindora
