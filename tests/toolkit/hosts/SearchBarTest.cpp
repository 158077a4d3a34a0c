// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <QInputMethodEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>
#include <memory>

#include "platform/fakes/FakeServices.h"
#include "tests/support/QuickFixture.h"
#include "toolkit/controllers/PageUrl.h"
#include "toolkit/controllers/UISearchController.h"

namespace kindora {
namespace {

// The bar of a search in a window of 320 x 44 points, with the keyboard.
class SearchBarTest : public QuickFixture {
 protected:
  SearchBarTest() {
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    window.resize(320, 44);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    search.searchBar()->setFrame({{0, 0}, {320, 44}});
    QQmlComponent component(&engine, pageUrl(u"Kindora.Toolkit.Hosts", u"SearchBar"));
    item.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(
        {{QStringLiteral("bar"), QVariant::fromValue(search.searchBar())},
         {QStringLiteral("width"), 320},
         {QStringLiteral("parent"), QVariant::fromValue(window.contentItem())}})));
    EXPECT_NE(item, nullptr) << component.errorString().toStdString();
    field = item->findChild<QQuickItem*>(QStringLiteral("searchField"));
    field->forceActiveFocus();
  }
  void compose(const QString& text) {
    QInputMethodEvent event(text, {});
    QCoreApplication::sendEvent(field, &event);
  }
  void commit(const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(field, &event);
  }
  [[nodiscard]] QString shown() const { return field->property("displayText").toString(); }

  const FakeServices fakes = installFakeServices();
  UISearchController search;
  QQmlEngine engine;
  std::unique_ptr<QQuickItem> item;
  QQuickItem* field = nullptr;
};

TEST_F(SearchBarTest, TheKeyboardBeginsTheSearch) { EXPECT_TRUE(search.isActive()); }

TEST_F(SearchBarTest, ComposedTextCounts) {
  commit(QStringLiteral("A"));
  compose(QStringLiteral("n"));
  EXPECT_EQ(search.searchBar()->text(), QStringLiteral("An"));
}

TEST_F(SearchBarTest, ComposedTextIsCommittedOnce) {
  compose(QStringLiteral("An"));
  commit(QStringLiteral("An"));
  EXPECT_EQ(shown(), QStringLiteral("An"));
  EXPECT_EQ(search.searchBar()->text(), QStringLiteral("An"));
}

TEST_F(SearchBarTest, ShowsTextThatTheProgramSets) {
  search.searchBar()->setText(QStringLiteral("Di"));
  EXPECT_EQ(shown(), QStringLiteral("Di"));
}

TEST_F(SearchBarTest, TheEndOfTheSearchEmptiesTheField) {
  commit(QStringLiteral("An"));
  search.setActive(false);
  EXPECT_EQ(shown(), QString());
  EXPECT_FALSE(search.isActive());
}

TEST_F(SearchBarTest, TheEndOfTheSearchDropsComposedText) {
  compose(QStringLiteral("An"));
  search.setActive(false);
  EXPECT_EQ(shown(), QString());
  EXPECT_FALSE(search.isActive());
}

}  // namespace
}  // namespace kindora
