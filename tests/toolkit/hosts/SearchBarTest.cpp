// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <QAccessible>
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

// The bar of a search in a window of 320 x 44 points, reached by Tab.
class SearchBarTest : public QuickFixture {
 protected:
  SearchBarTest() {
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    window.resize(320, 44);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.requestActivate();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    search.searchBar()->setFrame({{0, 0}, {0, 44}});
    QQmlComponent component(&engine, pageUrl(u"Kindora.Toolkit.Hosts", u"SearchBar"));
    item.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(
        {{QStringLiteral("bar"), QVariant::fromValue(search.searchBar())},
         {QStringLiteral("width"), 320},
         {QStringLiteral("parent"), QVariant::fromValue(window.contentItem())}})));
    EXPECT_NE(item, nullptr) << component.errorString().toStdString();
    field = item->findChild<QQuickItem*>(QStringLiteral("searchField"))->childItems().first();
    field->forceActiveFocus(Qt::TabFocusReason);
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

TEST_F(SearchBarTest, TheKeyboardPassingThroughBeginsNothing) {
  EXPECT_TRUE(search.searchBar()->isFirstResponder());
  QTest::keyClick(&window, Qt::Key_Left);
  EXPECT_FALSE(search.isActive());
}

TEST_F(SearchBarTest, TypingBeginsTheSearch) {
  QTest::keyClick(&window, Qt::Key_A);
  EXPECT_TRUE(search.isActive());
  EXPECT_EQ(search.searchBar()->text(), QStringLiteral("a"));
}

TEST_F(SearchBarTest, APressBeginsTheSearch) {
  QTest::mouseClick(&window, Qt::LeftButton, Qt::NoModifier, {160, 22});
  EXPECT_TRUE(search.isActive());
  EXPECT_TRUE(field->hasActiveFocus());
}

TEST_F(SearchBarTest, AnAssistiveToolsPressBeginsTheSearch) {
  QAccessible::queryAccessibleInterface(field)->actionInterface()->doAction(
      QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(search.isActive());
}

TEST_F(SearchBarTest, AnAssistiveToolsTextIsSearchedFor) {
  QAccessible::queryAccessibleInterface(field)->setText(QAccessible::Value, QStringLiteral("An"));
  EXPECT_TRUE(search.isActive());
  EXPECT_EQ(search.searchBar()->text(), QStringLiteral("An"));
}

TEST_F(SearchBarTest, EscEndsTheSearchAndIsNothingWithoutOne) {
  QKeyEvent override(QEvent::ShortcutOverride, Qt::Key_Escape, Qt::NoModifier);
  override.ignore();
  QCoreApplication::sendEvent(field, &override);
  EXPECT_FALSE(override.isAccepted());
  QTest::keyClick(&window, Qt::Key_A);
  QCoreApplication::sendEvent(field, &override);
  EXPECT_TRUE(override.isAccepted());
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_FALSE(search.isActive());
}

TEST_F(SearchBarTest, ReturnPutsTheKeyboardAwayAndLeavesWhatWasFound) {
  QTest::keyClick(&window, Qt::Key_A);
  QTest::keyClick(&window, Qt::Key_Return);
  EXPECT_FALSE(field->hasActiveFocus());
  EXPECT_TRUE(search.isActive());
  EXPECT_EQ(shown(), QStringLiteral("a"));
}

TEST_F(SearchBarTest, ClearingTheTextGoesOnSearching) {
  QTest::keyClick(&window, Qt::Key_A);
  compose(QStringLiteral("n"));
  auto* const clear = item->findChild<QQuickItem*>(QStringLiteral("clearButton"));
  const QPointF middle = clear->mapToScene({clear->width() / 2, clear->height() / 2});
  QTest::mouseClick(&window, Qt::LeftButton, Qt::NoModifier, middle.toPoint());
  EXPECT_EQ(shown(), QString());
  EXPECT_EQ(search.searchBar()->text(), QString());
  EXPECT_TRUE(search.isActive());
  EXPECT_TRUE(field->hasActiveFocus());
}

TEST_F(SearchBarTest, TabLeadsToWhatClearsTheTextAndThenHandsTheKeyboardBack) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
    QTest::keyClick(&window, Qt::Key_A);
    QTest::keyClick(&window, Qt::Key_Tab);
    ASSERT_EQ(window.activeFocusItem()->objectName(), QStringLiteral("clearButton"));
    QTest::keyClick(&window, key);
    EXPECT_EQ(shown(), QString());
    EXPECT_TRUE(search.isActive());
    EXPECT_TRUE(field->hasActiveFocus());
  }
}

TEST_F(SearchBarTest, TheRecordIsAsWideAsTheBar) {
  EXPECT_EQ(search.searchBar()->frame(), (CGRect{{0, 0}, {320, 44}}));
  item->setWidth(300);
  EXPECT_EQ(search.searchBar()->frame(), (CGRect{{0, 0}, {300, 44}}));
}

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
