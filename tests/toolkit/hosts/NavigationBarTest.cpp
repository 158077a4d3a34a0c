// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/toolkit/hosts/HostFixture.h"
#include "toolkit/controllers/UINavigationController.h"

namespace kindora {
namespace {

const QString kBack = QStringLiteral("backButton");

// The bar above a page called "One".
class NavigationBarTest : public HostFixture {
 protected:
  NavigationBarTest() {
    draw("NavigationBar {}",
         {{QStringLiteral("controller"), QVariant::fromValue(navigation.get())}});
    host->setHeight(host->implicitHeight());
  }
  void push(const QString& title) { navigation->pushViewController(screen(title), false); }
  [[nodiscard]] UINavigationItem& item() const {
    return *navigation->topViewController()->navigationItem();
  }
  void setRightButton(const QString& title, const QString& picture = {}) {
    item().setRightBarButtonItem(
        std::make_shared<UIBarButtonItem>(title, picture, [this] { ++presses; }));
  }

  int presses = 0;
  const std::shared_ptr<UINavigationController> navigation =
      makeViewController<UINavigationController>(screen(QStringLiteral("One")));
};

TEST_F(NavigationBarTest, TheTopPagesTitleIsAHeading) {
  EXPECT_EQ(role(QStringLiteral("One")), QAccessible::Heading);
  push(QStringLiteral("Two"));
  EXPECT_EQ(role(QStringLiteral("Two")), QAccessible::Heading);
  EXPECT_EQ(spoken(QStringLiteral("One")), nullptr);
}

TEST_F(NavigationBarTest, TheBackButtonIsThereWhenThereIsAWayBack) {
  EXPECT_FALSE(shows(kBack));
  push(QStringLiteral("Two"));
  EXPECT_TRUE(shows(kBack));
  item().setHidesBackButton(true);
  EXPECT_FALSE(shows(kBack));
}

TEST_F(NavigationBarTest, TheBackButtonGoesAtOnceWithThePageThatHadAWayBack) {
  push(QStringLiteral("Two"));
  navigation->popViewController(true);
  EXPECT_FALSE(shows(kBack));
  time.advance(0.2);
  EXPECT_FALSE(shows(kBack));
  time.advance(0.5);
  EXPECT_FALSE(shows(kBack));
}

TEST_F(NavigationBarTest, TheBackButtonIsThereWhileAPageComesIn) {
  navigation->pushViewController(screen(QStringLiteral("Two")), true);
  time.advance(0.2);
  EXPECT_TRUE(shows(kBack));
}

TEST_F(NavigationBarTest, TheBackButtonGoesBack) {
  push(QStringLiteral("Two"));
  click(QStringLiteral("Back"));
  time.advance(0.5);
  EXPECT_EQ(navigation->viewControllers().size(), 1U);
}

TEST_F(NavigationBarTest, APromptStandsAboveTheTitleAndMakesRoom) {
  EXPECT_EQ(host->implicitHeight(), 44);
  item().setPrompt(QStringLiteral("Passing on"));
  EXPECT_EQ(host->implicitHeight(), 74);
  host->setHeight(74);
  const QQuickItem* prompt = spoken(QStringLiteral("Passing on"));
  ASSERT_NE(prompt, nullptr);
  EXPECT_LE(place(prompt).bottom(), place(spoken(QStringLiteral("One"))).top() + 12);
  item().setPrompt({});
  EXPECT_EQ(host->implicitHeight(), 44);
}

TEST_F(NavigationBarTest, ABarButtonActsUnlessItIsDisabled) {
  setRightButton(QStringLiteral("Send"));
  click(QStringLiteral("Send"));
  EXPECT_EQ(presses, 1);
  item().rightBarButtonItem()->setEnabled(false);
  click(QStringLiteral("Send"));
  EXPECT_EQ(presses, 1);
}

TEST_F(NavigationBarTest, ABarButtonIsPressedByTheKeyboard) {
  setRightButton(QStringLiteral("Send"));
  spoken(QStringLiteral("Send"))->forceActiveFocus(Qt::TabFocusReason);
  press(Qt::Key_Return);
  EXPECT_EQ(presses, 1);
}

TEST_F(NavigationBarTest, AnAssistiveToolPressesABarButtonUnlessItIsDisabled) {
  setRightButton(QStringLiteral("Send"));
  pressByTool(QStringLiteral("Send"));
  EXPECT_EQ(presses, 1);
  item().rightBarButtonItem()->setEnabled(false);
  pressByTool(QStringLiteral("Send"));
  EXPECT_EQ(presses, 1);
}

TEST_F(NavigationBarTest, APictureIsReadAloudByItsWord) {
  setRightButton(QStringLiteral("Create a challenge"), QStringLiteral("plus"));
  EXPECT_EQ(role(QStringLiteral("Create a challenge")), QAccessible::Button);
}

TEST_F(NavigationBarTest, ALongTitleStaysClearOfTheButtons) {
  setRightButton(QStringLiteral("Send"));
  const QString title(80, u'W');
  item().setTitle(title);
  const QRectF text = place(spoken(title));
  EXPECT_LE(text.right(), place(spoken(QStringLiteral("Send"))).left());
  EXPECT_NEAR(text.center().x(), kWidth / 2.0, 1);
}

}  // namespace
}  // namespace kindora
