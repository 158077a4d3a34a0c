// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/LegacyBridge.h"

#include <gmock/gmock.h>

#include "alerts/legacy/QavAlertView.h"
#include "alerts/qt/ProcessInfo.h"
#include "tests/alerts/qt/AlertFixture.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class LegacyBridgeTest : public AlertFixture {
 protected:
  ~LegacyBridgeTest() override { setOperatingSystemVersionQuestion({}); }

  static QavAlertControllerRef legacy() {
    return QavAlertController::alertControllerWithTitle("Title", "Message",
                                                        QavAlertControllerStyle::legacy);
  }
  static void addField(QavAlertController& controller, bool secure) {
    controller.addTextFieldWithConfigurationHandler(
        [secure](UITextField& field) { field.setSecureTextEntry(secure); });
  }
};

TEST_F(LegacyBridgeTest, IsUsedForItsStyleAndOnSystemsWithoutPresentationsOfTheirOwn) {
  EXPECT_TRUE(legacy()->usesLegacyAlert());
  EXPECT_FALSE(alert()->usesLegacyAlert());
  EXPECT_EQ(alert()->legacyAlertView(), nullptr);
  setOperatingSystemVersionQuestion([] { return false; });
  EXPECT_TRUE(alert()->usesLegacyAlert());
  EXPECT_NE(alert()->legacyAlertView(), nullptr);
}

TEST_F(LegacyBridgeTest, TheAlertViewIsMadeAtTheFirstRequestAndKept) {
  const auto controller = legacy();
  controller->addAction(action("A"));
  const auto view = controller->legacyAlertView();
  EXPECT_EQ(view->numberOfButtons(), 1);
  controller->addAction(action("B"));
  EXPECT_EQ(controller->legacyAlertView(), view);
  EXPECT_EQ(view->numberOfButtons(), 1);
}

TEST_F(LegacyBridgeTest, ButtonIIsActionI) {
  const auto controller = legacy();
  controller->addAction(action("First"));
  controller->addAction(action("Second"));
  controller->addAction(action("Third", QavAlertActionStyle::cancel));
  const auto view = controller->legacyAlertView();
  EXPECT_EQ(view->title(), "Title");
  EXPECT_EQ(view->message(), "Message");
  EXPECT_EQ(view->delegate(), controller);
  EXPECT_EQ(view->cancelButtonIndex(), 0);
  EXPECT_EQ(view->buttonTitleAtIndex(0), "First");
  EXPECT_EQ(view->buttonTitleAtIndex(1), "Second");
  EXPECT_EQ(view->buttonTitleAtIndex(2), "Third");
}

TEST_F(LegacyBridgeTest, AFirstActionWithoutAPlainTitleIsAButtonAllTheSame) {
  const auto attributed = legacy();
  attributed->addAction(QavAlertAction::actionWithAttributedTitle(NSAttributedString("Rich"),
                                                                  QavAlertActionStyle::standard));
  attributed->addAction(action("B"));
  EXPECT_EQ(attributed->legacyAlertView()->buttonTitleAtIndex(0), "Rich");
  EXPECT_EQ(attributed->legacyAlertView()->buttonTitleAtIndex(1), "B");
  const auto untitled = legacy();
  untitled->addAction(QavAlertAction::actionWithTitle(std::nullopt, QavAlertActionStyle::standard));
  EXPECT_EQ(untitled->legacyAlertView()->numberOfButtons(), 1);
  EXPECT_EQ(legacy()->legacyAlertView()->numberOfButtons(), 0);
}

TEST_F(LegacyBridgeTest, AttributedTextsAreTakenAlong) {
  const NSAttributedString rich("Rich", {.foregroundColor = UIColor::redColor()});
  const auto controller = legacy();
  controller->setAttributedTitle(rich);
  EXPECT_EQ(controller->legacyAlertView()->attributedTitle(), rich);
  EXPECT_EQ(controller->legacyAlertView()->attributedMessage(), std::nullopt);
}

TEST_F(LegacyBridgeTest, TheStyleComesFromTheNumberAndSecrecyOfTheFields) {
  const auto style = [this](std::vector<bool> secure) {
    const auto controller = legacy();
    for (const bool each : secure) addField(*controller, each);
    return controller->legacyAlertView()->alertViewStyle();
  };
  EXPECT_EQ(style({}), QavAlertViewStyle::standard);
  EXPECT_EQ(style({true}), QavAlertViewStyle::secureTextInput);
  EXPECT_EQ(style({false}), QavAlertViewStyle::plainTextInput);
  EXPECT_EQ(style({false, false}), QavAlertViewStyle::loginAndPasswordInput);
  EXPECT_EQ(style({true, true, true}), QavAlertViewStyle::loginAndPasswordInput);
}

TEST_F(LegacyBridgeTest, ContentMovesOver) {
  const auto controller = legacy();
  const auto one = std::make_shared<UIView>();
  const auto two = std::make_shared<UIView>();
  controller->contentView()->addSubview(one);
  controller->contentView()->addSubview(two);
  const auto view = controller->legacyAlertView();
  EXPECT_THAT(view->contentView()->subviews(), ElementsAre(one, two));
  EXPECT_THAT(controller->contentView()->subviews(), IsEmpty());
}

TEST_F(LegacyBridgeTest, OnlyTheVerticalLayoutAlwaysStacks) {
  const auto controller = legacy();
  EXPECT_FALSE(controller->legacyAlertView()->alwaysShowsButtonsVertically());
  const auto vertical = legacy();
  vertical->setActionLayout(QavAlertActionLayout::vertical);
  EXPECT_TRUE(vertical->legacyAlertView()->alwaysShowsButtonsVertically());
}

TEST_F(LegacyBridgeTest, TheHandlerOfTheDismissedIndexRunsWhateverVetoAndEnabledSay) {
  const auto controller = legacy();
  const auto disabled = action("B");
  disabled->setEnabled(false);
  controller->addAction(action("A"));
  controller->addAction(disabled);
  controller->shouldDismissBlock = [](QavAlertAction&) { return false; };
  const auto view = controller->legacyAlertView();
  view->didDismissHandler(1);
  view->didDismissHandler(-1);
  view->didDismissHandler(2);
  EXPECT_THAT(log(), ElementsAre("handled B"));
}

TEST_F(LegacyBridgeTest, NeitherKeepsTheOtherAlive) {
  auto controller = legacy();
  controller->addAction(action("A"));
  const std::weak_ptr<QavAlertController> gone = controller;
  const std::weak_ptr<QavAlertView> goneView = controller->legacyAlertView();
  controller.reset();
  time.settle();
  EXPECT_TRUE(gone.expired());
  EXPECT_TRUE(goneView.expired());
}

}  // namespace
}  // namespace kindora
