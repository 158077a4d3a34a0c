// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/TapItem.h"

#include <string>
#include <vector>

#include "tests/toolkit/quick/RecordFixture.h"
#include "toolkit/view/UILabel.h"
#include "toolkit/view/UITapGestureRecognizer.h"

namespace kindora {
namespace {

// A view of 100 x 40 points at (50, 50) with a label in it, which is pressed.
class TapItemTest : public RecordFixture {
 protected:
  TapItemTest() {
    recognizer->action = [this](UIView& view) {
      EXPECT_EQ(&view, button.get());
      events.emplace_back("tap");
    };
    recognizer->pressedChanged = [this](UIView&, bool pressed) {
      events.emplace_back(pressed ? "down" : "up");
    };
    button->setAccessibility(UIAccessibilityRole::button, "Press me");
    button->setTapGestureRecognizer(recognizer);
    label->setText("Press me");
    add(label, {{0, 0}, {100, 40}}, button);
  }
  using Events = std::vector<std::string>;

  const UIViewRef button = addGround({{50, 50}, {100, 40}}, UIColor::whiteColor());
  const std::shared_ptr<UILabel> label = std::make_shared<UILabel>();
  const std::shared_ptr<UITapGestureRecognizer> recognizer =
      std::make_shared<UITapGestureRecognizer>();
  Events events;
};

TEST_F(TapItemTest, APressOnWhatLiesInTheViewIsATap) {
  click({60, 60});
  EXPECT_EQ(events, (Events{"down", "up", "tap"}));
}

TEST_F(TapItemTest, APressBesideItIsNone) {
  click({20, 20});
  EXPECT_TRUE(events.empty());
}

TEST_F(TapItemTest, AFingerThatLeavesDoesNotTap) {
  QTest::mousePress(&window, Qt::LeftButton, Qt::NoModifier, {60, 60});
  QTest::mouseMove(&window, {190, 190});
  QTest::mouseRelease(&window, Qt::LeftButton, Qt::NoModifier, {190, 190});
  EXPECT_EQ(events, (Events{"down", "up"}));
}

TEST_F(TapItemTest, TheKeyboardPresses) {
  QTest::keyClick(&window, Qt::Key_Tab);
  QTest::keyClick(&window, Qt::Key_Return);
  EXPECT_EQ(events, (Events{"tap"}));
  QTest::keyClick(&window, Qt::Key_Enter);
  EXPECT_EQ(events, (Events{"tap", "tap"}));
  QTest::keyClick(&window, Qt::Key_Space);
  EXPECT_EQ(events, (Events{"tap", "tap", "down", "up", "tap"}));
}

TEST_F(TapItemTest, AnAssistiveToolPresses) {
  pressByTool(QStringLiteral("Press me"));
  EXPECT_EQ(events, (Events{"tap"}));
}

TEST_F(TapItemTest, ShowsThatItHasTheKeyboard) {
  const QImage before = drawn();
  QTest::keyClick(&window, Qt::Key_Tab);
  EXPECT_NE(drawn(), before);
}

TEST_F(TapItemTest, IsOneButtonToAReader) {
  EXPECT_EQ(names(QAccessible::Button), QStringList(QStringLiteral("Press me")));
  EXPECT_EQ(names(QAccessible::StaticText), QStringList());
}

TEST_F(TapItemTest, ADisabledRecogniserHearsNothing) {
  recognizer->enabled = false;
  button->setTapGestureRecognizer(recognizer);
  click({60, 60});
  QTest::keyClick(&window, Qt::Key_Tab);
  QTest::keyClick(&window, Qt::Key_Return);
  EXPECT_TRUE(events.empty());
  recognizer->enabled = true;
  button->setTapGestureRecognizer(recognizer);
  click({60, 60});
  EXPECT_EQ(events.back(), "tap");
}

TEST_F(TapItemTest, AViewThatTakesNoInputCannotBePressed) {
  root->setUserInteractionEnabled(false);
  click({60, 60});
  EXPECT_TRUE(events.empty());
}

TEST_F(TapItemTest, ItsViewMayGoWhileItIsTold) {
  recognizer->action = [this](UIView& view) {
    view.removeFromSuperview();
    events.emplace_back("gone");
  };
  click({60, 60});
  EXPECT_EQ(events.back(), "gone");
}

TEST_F(TapItemTest, ARecogniserMayComeLater) {
  const auto late = addGround({{0, 0}, {40, 40}}, UIColor::whiteColor());
  auto another = std::make_shared<UITapGestureRecognizer>();
  another->action = [this](UIView&) { events.emplace_back("late"); };
  late->setTapGestureRecognizer(another);
  click({10, 10});
  EXPECT_EQ(events, (Events{"late"}));
  late->setTapGestureRecognizer(nullptr);
  click({10, 10});
  EXPECT_EQ(events, (Events{"late"}));
}

}  // namespace
}  // namespace kindora
