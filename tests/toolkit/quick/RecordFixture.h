// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessible>
#include <QQmlContext>
#include <QQmlEngine>
#include <QTest>
#include <memory>

#include "platform/fakes/FakeServices.h"
#include "platform/fakes/FakeViewServices.h"
#include "tests/support/QuickFixture.h"
#include "toolkit/quick/QtViewServices.h"
#include "toolkit/quick/RecordItem.h"

namespace kindora {

/// A white window of 200 x 200 points that shows a tree of views made in code and has the keyboard.
class RecordFixture : public QuickFixture {
 protected:
  RecordFixture() {
    ViewServices services = makeQtViewServices();
    services.looks = looks;
    installViewServices(services);
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QQmlEngine::setContextForObject(item.get(), engine.rootContext());
    window.resize(200, 200);
    window.show();
    window.requestActivate();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    item->setRecord({root});
  }

  template <typename View>
  std::shared_ptr<View> add(std::shared_ptr<View> view, CGRect frame,
                            const UIViewRef& parent = nullptr) {
    view->setFrame(frame);
    (parent ? parent : root)->addSubview(view);
    return view;
  }
  UIViewRef addGround(CGRect frame, const UIColor& color, const UIViewRef& parent = nullptr) {
    const auto view = add(std::make_shared<UIView>(), frame, parent);
    view->setBackgroundColor(color);
    return view;
  }
  // What is read aloud there, by role.
  [[nodiscard]] QStringList names(QAccessible::Role role) {
    QStringList found;
    collect(QAccessible::queryAccessibleInterface(&window), role, found);
    return found;
  }
  /// Presses the button of that name as an assistive tool does.
  void pressByTool(const QString& name) {
    pressByTool(QAccessible::queryAccessibleInterface(&window), name);
  }
  void click(QPoint at) { QTest::mouseClick(&window, Qt::LeftButton, Qt::NoModifier, at); }

  const std::shared_ptr<FakeLooks> looks = std::make_shared<FakeLooks>();
  const FakeServices fakes = installFakeServices();
  QQmlEngine engine;
  const UIViewRef root = std::make_shared<UIView>();
  const std::unique_ptr<RecordItem> item = place<RecordItem>({0, 0, 200, 200});

 private:
  static void pressByTool(QAccessibleInterface* from, const QString& name) {
    if (from == nullptr) return;
    if (from->role() == QAccessible::Button && from->text(QAccessible::Name) == name) {
      from->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }
    for (int i = 0; i < from->childCount(); ++i) pressByTool(from->child(i), name);
  }
  static void collect(QAccessibleInterface* from, QAccessible::Role role, QStringList& found) {
    if (from == nullptr) return;
    if (from->role() == role) found.push_back(from->text(QAccessible::Name));
    for (int i = 0; i < from->childCount(); ++i) collect(from->child(i), role, found);
  }
};

}  // namespace kindora
