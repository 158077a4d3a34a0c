// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include "tests/toolkit/hosts/HostFixture.h"
#include "toolkit/controllers/UIAlertController.h"
#include "toolkit/controllers/UIWindow.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QString kCard = QStringLiteral("alertCard");

// An alert over a screen, with buttons of those titles that write themselves down.
class AlertHostTest : public HostFixture {
 protected:
  void present(const std::vector<std::string>& titles, const std::string& message = "Really?") {
    alert = makeViewController<UIAlertController>("Reject", message, UIAlertControllerStyle::alert);
    for (const std::string& title : titles) {
      alert->addAction({.title = title, .handler = [this, title] { chosen.push_back(title); }});
    }
    base->presentViewController(alert, true);
    drawHost("AlertHost", alert.get());
  }
  void presentFully(const std::vector<std::string>& titles, const std::string& message = "") {
    present(titles, message);
    time.advance(0.5);
  }
  [[nodiscard]] QRectF button(const char* title) {
    return place(spoken(QString::fromLatin1(title)));
  }

  const std::shared_ptr<UIViewController> base = screen(QStringLiteral("base"));
  std::shared_ptr<UIAlertController> alert;
  std::vector<std::string> chosen;
};

TEST_F(AlertHostTest, ComesInWithTheWindowDimmed) {
  present({"OK"});
  EXPECT_EQ(found(kCard)->opacity(), 0);
  EXPECT_EQ(pixel(5, 5), QColor(Qt::white));
  time.advance(0.5);
  EXPECT_EQ(found(kCard)->opacity(), 1);
  EXPECT_EQ(found(kCard)->scale(), 1);
  EXPECT_EQ(pixel(5, 5), QColor(153, 153, 153));
}

TEST_F(AlertHostTest, OnlyFadesAsItGoes) {
  presentFully({"OK"});
  base->dismissViewController(true);
  time.advance(0.1);
  EXPECT_LT(found(kCard)->opacity(), 1);
  EXPECT_GT(found(kCard)->opacity(), 0);
  EXPECT_EQ(found(kCard)->scale(), 1);
}

TEST_F(AlertHostTest, StandsInTheMiddle) {
  presentFully({"OK"});
  const QRectF card = place(found(kCard));
  EXPECT_EQ(card.center().x(), 160);
  EXPECT_NEAR(card.center().y(), 240, 0.5);
}

TEST_F(AlertHostTest, IsReadAloudAsAnAlertWithItsMessage) {
  presentFully({"OK"}, "Really?");
  EXPECT_EQ(role(QStringLiteral("Reject")), QAccessible::AlertMessage);
  EXPECT_NE(spoken(QStringLiteral("Really?")), nullptr);
}

TEST_F(AlertHostTest, TwoLargeButtonsStandBelowEachOther) {
  looks->change({.textScale = 2});
  presentFully({"Turn Down", "Never Mind"});
  EXPECT_GE(button("Never Mind").top(), button("Turn Down").bottom());
  EXPECT_EQ(place(found(kCard)).width(), kWidth - 32);
}

TEST_F(AlertHostTest, WithoutMotionItOnlyFades) {
  looks->change({.reducedMotion = true});
  present({"OK"});
  EXPECT_EQ(found(kCard)->opacity(), 0);
  EXPECT_EQ(found(kCard)->scale(), 1);
}

TEST_F(AlertHostTest, TwoButtonsStandSideBySide) {
  presentFully({"Yes", "No"});
  EXPECT_EQ(button("Yes").top(), button("No").top());
  EXPECT_EQ(button("Yes").right(), button("No").left());
  EXPECT_EQ(button("Yes").width(), 135);
}

TEST_F(AlertHostTest, ThreeButtonsStandBelowEachOther) {
  presentFully({"Yes", "No", "Later"});
  EXPECT_EQ(button("Yes").bottom(), button("No").top());
  EXPECT_EQ(button("No").bottom(), button("Later").top());
  EXPECT_EQ(button("Yes").width(), 270);
}

TEST_F(AlertHostTest, APressChooses) {
  presentFully({"Yes", "No"});
  click(QStringLiteral("Yes"));
  time.advance(0.5);
  EXPECT_THAT(chosen, ElementsAre("Yes"));
  EXPECT_EQ(base->presentedViewController(), nullptr);
}

TEST_F(AlertHostTest, AnAssistiveToolChooses) {
  presentFully({"Yes", "No"});
  pressByTool(QStringLiteral("Yes"));
  time.advance(0.5);
  EXPECT_THAT(chosen, ElementsAre("Yes"));
}

TEST_F(AlertHostTest, TheLastButtonHasTheKeyboard) {
  presentFully({"Yes", "No"});
  press(Qt::Key_Return);
  time.advance(0.5);
  EXPECT_THAT(chosen, ElementsAre("No"));
}

TEST_F(AlertHostTest, APressBesideTheCardDoesNothing) {
  presentFully({"Yes", "No"});
  clickAt({5, 5});
  clickAt({160, 470});
  time.advance(0.5);
  EXPECT_THAT(chosen, IsEmpty());
  EXPECT_EQ(base->presentedViewController(), alert);
}

TEST_F(AlertHostTest, ALongMessageIsScrolledAboveTheButtons) {
  std::string message;
  for (int i = 0; i < 60; ++i) message += "line\n";
  presentFully({"OK"}, message);
  EXPECT_GE(place(found(kCard)).top(), 40);
  EXPECT_LE(place(found(kCard)).bottom(), kHeight - 40);
  EXPECT_EQ(button("OK").bottom(), place(found(kCard)).bottom());
  const QImage before = drawn();
  drag({160, 300}, {160, 100});
  EXPECT_NE(drawn(), before);
}

}  // namespace
}  // namespace kindora
