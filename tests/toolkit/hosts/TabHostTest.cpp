// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/toolkit/hosts/HostFixture.h"
#include "toolkit/controllers/UITabBarController.h"

namespace kindora {
namespace {

const QString kOne = QStringLiteral("One");
const QString kTwo = QStringLiteral("Two");

// Two tabs, of which the first is selected; their titles are those of their pages.
class TabHostTest : public HostFixture {
 protected:
  TabHostTest() {
    for (const auto& page : tabs->viewControllers()) {
      page->tabBarItem()->setTitleAndImage(page->title() + QStringLiteral(" tab"), {});
    }
    drawHost("TabHost", tabs.get());
  }

  const std::shared_ptr<UITabBarController> tabs = makeViewController<UITabBarController>(
      std::vector<UIViewControllerRef>{screen(kOne), screen(kTwo)});
};

TEST_F(TabHostTest, TheSelectedPageFillsTheRoomAboveTheBar) {
  EXPECT_TRUE(shows(kOne));
  EXPECT_EQ(place(found(kOne)), QRectF(0, 0, 320, 431));
  EXPECT_EQ(place(found(QStringLiteral("tabBar"))), QRectF(0, 431, 320, 49));
}

TEST_F(TabHostTest, APressOnATabShowsItsPage) {
  click(QStringLiteral("Two tab"));
  EXPECT_EQ(tabs->selectedIndex(), 1);
  EXPECT_TRUE(shows(kTwo));
  EXPECT_FALSE(shows(kOne));
}

TEST_F(TabHostTest, AReturnOnATabShowsItsPage) {
  spoken(QStringLiteral("Two tab"))->forceActiveFocus(Qt::TabFocusReason);
  press(Qt::Key_Return);
  EXPECT_TRUE(shows(kTwo));
}

TEST_F(TabHostTest, AnAssistiveToolSwitchesTabs) {
  pressByTool(QStringLiteral("Two tab"));
  EXPECT_TRUE(shows(kTwo));
}

TEST_F(TabHostTest, APageIsMadeAtTheFirstLookAndKept) {
  EXPECT_EQ(found(kTwo), nullptr);
  tabs->setSelectedIndex(1);
  const QQuickItem* two = found(kTwo);
  EXPECT_NE(two, nullptr);
  tabs->setSelectedIndex(0);
  EXPECT_EQ(found(kTwo), two);
}

TEST_F(TabHostTest, TellsWhichTabIsSelected) {
  EXPECT_EQ(role(QStringLiteral("One tab")), QAccessible::PageTab);
  EXPECT_TRUE(state(QStringLiteral("One tab")).selected);
  EXPECT_FALSE(state(QStringLiteral("Two tab")).selected);
  tabs->setSelectedIndex(1);
  EXPECT_TRUE(state(QStringLiteral("Two tab")).selected);
}

TEST_F(TabHostTest, ABadgeIsReadAloudWithItsTab) {
  tabs->viewControllers()[1]->tabBarItem()->setBadgeValue(QStringLiteral("3"));
  EXPECT_NE(spoken(QStringLiteral("Two tab, 3")), nullptr);
  tabs->viewControllers()[1]->tabBarItem()->setBadgeValue({});
  EXPECT_NE(spoken(QStringLiteral("Two tab")), nullptr);
}

TEST_F(TabHostTest, ABarWithoutInputTakesNoPresses) {
  tabs->tabBar()->setUserInteractionEnabled(false);
  click(QStringLiteral("Two tab"));
  EXPECT_EQ(tabs->selectedIndex(), 0);
}

TEST_F(TabHostTest, InAFlatWindowTheBarStandsBesideThePage) {
  window.resize(844, 390);
  host->setSize({844, 390});
  time.settle();
  EXPECT_EQ(place(found(QStringLiteral("tabBar"))), QRectF(0, 0, 72, 390));
  EXPECT_EQ(place(found(kOne)), QRectF(72, 0, 772, 390));
  const QRectF first = place(spoken(QStringLiteral("One tab")));
  const QRectF second = place(spoken(QStringLiteral("Two tab")));
  EXPECT_LE(first.bottom(), second.top());
  EXPECT_LE(second.right(), 72);
  EXPECT_GE(first.height(), 48);
  click(QStringLiteral("Two tab"));
  EXPECT_TRUE(shows(kTwo));
}

TEST_F(TabHostTest, TheBarTellsWhereEachTabStands) {
  EXPECT_EQ(tabs->tabBar()->outlet("tab1")->frame(), (CGRect{{160, 0}, {160, 49}}));
}

}  // namespace
}  // namespace kindora
