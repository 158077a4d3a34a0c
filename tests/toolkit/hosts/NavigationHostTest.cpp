// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <string>
#include <utility>

#include "tests/toolkit/hosts/TableFixture.h"
#include "toolkit/controllers/UINavigationController.h"
#include "toolkit/view/UILabel.h"

namespace kindora {
namespace {

const QString kOne = QStringLiteral("One");
const QString kTwo = QStringLiteral("Two");

// A screen made in code that shows a text.
class Saying final : public UIViewController {
 public:
  explicit Saying(std::string text) : text_(std::move(text)) {}
  UIViewRef loadView() override {
    auto root = std::make_shared<UIView>();
    auto label = std::make_shared<UILabel>();
    label->setFrame({{10, 10}, {200, 40}});
    label->setText(text_);
    root->addSubview(label);
    return root;
  }

 private:
  std::string text_;
};

// A stack whose lowest page is called "One".
class NavigationHostTest : public HostFixture {
 protected:
  NavigationHostTest() { drawHost("NavigationHost", navigation.get()); }
  void push(bool animated) {
    navigation->pushViewController(screen(kTwo), animated);
    time.settle();
  }
  // A finger that comes to rest before it is lifted.
  void swipeFromTheEdge(int to) {
    moveFromTheEdge(to);
    time.advance(0.15);
    lift(to);
  }
  void flingFromTheEdge(int to) {
    moveFromTheEdge(to);
    lift(to);
  }
  void moveFromTheEdge(int to) {
    QTest::mousePress(&window, Qt::LeftButton, {}, {3, 300});
    for (int i = 1; i <= 10; ++i) QTest::mouseMove(&window, {3 + (to - 3) * i / 10, 300});
  }
  void lift(int at) {
    QTest::mouseRelease(&window, Qt::LeftButton, {}, {at, 300});
    time.advance(0.5);
  }
  // Whether assistive tools find it at all, be it in sight or not.
  [[nodiscard]] bool isInTheTree(const QString& name) {
    return isIn(QAccessible::queryAccessibleInterface(&window), name);
  }
  static bool isIn(QAccessibleInterface* from, const QString& name) {
    if (from == nullptr) return false;
    if (from->text(QAccessible::Name) == name) return true;
    for (int i = 0; i < from->childCount(); ++i) {
      if (isIn(from->child(i), name)) return true;
    }
    return false;
  }
  [[nodiscard]] std::size_t depth() const { return navigation->viewControllers().size(); }

  const std::shared_ptr<UINavigationController> navigation =
      makeViewController<UINavigationController>(screen(kOne));
};

TEST_F(NavigationHostTest, ThePageFillsTheRoomBelowTheBar) {
  EXPECT_EQ(place(found(kOne)), QRectF(0, 44, 320, 436));
  navigation->topViewController()->navigationItem()->setPrompt(QStringLiteral("Prompt"));
  EXPECT_EQ(place(found(kOne)), QRectF(0, 74, 320, 406));
}

TEST_F(NavigationHostTest, APageComesInFromTheRightAndHidesTheOneBelow) {
  push(true);
  EXPECT_NEAR(place(found(kTwo)).left(), 320, 1);
  time.advance(0.1);
  EXPECT_LT(place(found(kTwo)).left(), 320);
  EXPECT_GT(place(found(kTwo)).left(), 0);
  EXPECT_LT(place(found(kOne)).left(), 0);
  EXPECT_TRUE(shows(kOne));
  time.advance(0.5);
  EXPECT_EQ(place(found(kTwo)).left(), 0);
  EXPECT_FALSE(shows(kOne));
}

TEST_F(NavigationHostTest, WithoutMotionAPageFadesIn) {
  looks->change({.reducedMotion = true});
  push(true);
  const QQuickItem* page = found(kTwo)->parentItem()->parentItem();
  EXPECT_EQ(place(page).left(), 0);
  EXPECT_EQ(page->opacity(), 0);
  time.advance(0.1);
  EXPECT_GT(page->opacity(), 0);
  EXPECT_LT(page->opacity(), 1);
  EXPECT_EQ(place(found(kOne)).left(), 0);
  time.advance(0.5);
  EXPECT_EQ(page->opacity(), 1);
}

TEST_F(NavigationHostTest, APageOnItsWayTakesNoPresses) {
  push(true);
  time.advance(0.2);
  clickAt({310, 300});
  EXPECT_EQ(found(kTwo)->property("presses").toInt(), 0);
  time.advance(0.5);
  clickAt({310, 300});
  EXPECT_EQ(found(kTwo)->property("presses").toInt(), 1);
}

TEST_F(NavigationHostTest, APageThatLeavesIsDrawnUntilItHasGone) {
  push(false);
  navigation->popViewController(true);
  time.advance(0.1);
  EXPECT_TRUE(shows(kTwo));
  EXPECT_TRUE(shows(kOne));
  time.advance(0.5);
  EXPECT_EQ(found(kTwo), nullptr);
  EXPECT_EQ(place(found(kOne)).left(), 0);
}

TEST_F(NavigationHostTest, ASwipeFromTheLeftEdgeGoesBack) {
  push(false);
  swipeFromTheEdge(250);
  EXPECT_EQ(depth(), 1U);
}

TEST_F(NavigationHostTest, ThePageFollowsTheSwipe) {
  push(false);
  QTest::mousePress(&window, Qt::LeftButton, {}, {3, 300});
  for (int x = 3; x <= 163; x += 10) QTest::mouseMove(&window, {x, 300});
  EXPECT_NEAR(place(found(kTwo)).left(), 160, 25);
  EXPECT_TRUE(shows(kOne));
  QTest::mouseRelease(&window, Qt::LeftButton, {}, {163, 300});
}

TEST_F(NavigationHostTest, AShortSwipeComesToNothing) {
  push(false);
  swipeFromTheEdge(70);
  EXPECT_EQ(depth(), 2U);
  EXPECT_EQ(place(found(kTwo)).left(), 0);
}

TEST_F(NavigationHostTest, AShortFlingGoesBack) {
  push(false);
  flingFromTheEdge(70);
  EXPECT_EQ(depth(), 1U);
}

TEST_F(NavigationHostTest, ALongSwipeThatIsFlungBackComesToNothing) {
  push(false);
  moveFromTheEdge(250);
  for (int x = 240; x >= 200; x -= 10) QTest::mouseMove(&window, {x, 300});
  lift(200);
  EXPECT_EQ(depth(), 2U);
}

TEST_F(NavigationHostTest, OnlyTheTopPageIsReachedByAssistiveTools) {
  const QString first = QStringLiteral("First text");
  const QString second = QStringLiteral("Second text");
  navigation->pushViewController(makeViewController<Saying>("First text"), false);
  time.settle();
  EXPECT_TRUE(isInTheTree(first));
  navigation->pushViewController(makeViewController<Saying>("Second text"), false);
  time.settle();
  EXPECT_FALSE(isInTheTree(first));
  EXPECT_TRUE(isInTheTree(second));
  navigation->popViewController(false);
  time.settle();
  EXPECT_TRUE(isInTheTree(first));
}

TEST_F(NavigationHostTest, ASwipeThatBeginsElsewhereDoesNotGoBack) {
  push(false);
  drag({40, 300}, {300, 300});
  time.advance(0.5);
  EXPECT_EQ(depth(), 2U);
}

TEST_F(NavigationHostTest, AFingerSwipesBackFromTheRowsOfATable) {
  const auto table = makeViewController<NamesController>();
  table->drawnBy = page(QStringLiteral("Table.qml"), R"(
TableList {
    prototypes: ({ "cell": look })
    Component {
        id: look
        TableCell { implicitHeight: 60; spoken: cell?.objectName ?? "" }
    }
})");
  table->editable = {1};
  table->tableView()->reloadData();
  for (const char* name : {"Anna", "Bob"}) {
    navigation->pushViewController(table, false);
    time.settle();
    QQuickItem* row = spoken(QString::fromLatin1(name));
    ASSERT_NE(row, nullptr);
    const QPoint to(250, middle(row).y());
    swipe({3, to.y()}, to, true);
    time.advance(0.15);
    HostFixture::lift(to);
    time.advance(0.5);
    EXPECT_EQ(depth(), 1U) << name;
  }
  EXPECT_TRUE(table->selected.empty());
  host.reset();
}

TEST_F(NavigationHostTest, ASwipeDoesNotGoBackWhereTheWayIsHidden) {
  push(false);
  navigation->topViewController()->navigationItem()->setHidesBackButton(true);
  swipeFromTheEdge(250);
  EXPECT_EQ(depth(), 2U);
}

}  // namespace
}  // namespace kindora
