// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/QavAlertController.h"

#include <gmock/gmock.h>

#include "alerts/card/QavAlertControllerDefaultVisualStyle.h"
#include "platform/KeyboardNotification.h"
#include "tests/alerts/qt/AlertFixture.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using QavAlertControllerTest = AlertFixture;

// --- What it holds ---

TEST_F(QavAlertControllerTest, BeginsWithNothingAndItsDefaults) {
  const auto controller = alert();
  EXPECT_THAT(controller->actions(), IsEmpty());
  EXPECT_THAT(controller->textFields(), IsEmpty());
  EXPECT_EQ(controller->actionLayout(), QavAlertActionLayout::automatic);
  EXPECT_EQ(controller->modalPresentationStyle(), UIModalPresentationStyle::custom);
  EXPECT_EQ(static_cast<int>(controller->modalPresentationStyle()), 4);
  EXPECT_NE(controller->transitioningDelegate(), nullptr);
  EXPECT_NE(
      std::dynamic_pointer_cast<QavAlertControllerDefaultVisualStyle>(controller->visualStyle()),
      nullptr);
  EXPECT_NE(controller->visualStyle(), alert()->visualStyle());
  EXPECT_FALSE(controller->presentingAlert());
}

TEST_F(QavAlertControllerTest, HandsItsTextsToTheCard) {
  const auto controller = alert("One", "Two");
  EXPECT_EQ(controller->alert()->title(), NSAttributedString("One"));
  EXPECT_EQ(controller->alert()->message(), NSAttributedString("Two"));
  EXPECT_EQ(controller->UIViewController::title(), QStringLiteral("One"));
}

TEST_F(QavAlertControllerTest, AnAbsentTextStaysAbsent) {
  const auto controller = alert(std::nullopt, "");
  EXPECT_EQ(controller->title(), std::nullopt);
  EXPECT_EQ(controller->alert()->title(), std::nullopt);
  EXPECT_EQ(controller->message(), "");
  EXPECT_EQ(controller->alert()->message(), NSAttributedString(""));
}

TEST_F(QavAlertControllerTest, LaterTextsReachTheCard) {
  const auto controller = alert();
  controller->setTitle("Other");
  controller->setMessage(std::nullopt);
  EXPECT_EQ(controller->alert()->title(), NSAttributedString("Other"));
  EXPECT_EQ(controller->alert()->message(), std::nullopt);
}

TEST_F(QavAlertControllerTest, AttributedTextsWin) {
  const NSAttributedString red("Red", {.foregroundColor = UIColor::redColor()});
  const auto controller = QavAlertController::alertControllerWithAttributedTitle(
      red, std::nullopt, QavAlertControllerStyle::alert);
  EXPECT_EQ(controller->title(), std::nullopt);
  EXPECT_EQ(controller->alert()->title(), red);
  controller->setTitle("Plain");
  EXPECT_EQ(controller->alert()->title(), red);
  controller->setAttributedTitle(std::nullopt);
  EXPECT_EQ(controller->alert()->title(), NSAttributedString("Plain"));
  controller->setAttributedMessage(red);
  EXPECT_EQ(controller->alert()->message(), red);
}

TEST_F(QavAlertControllerTest, KeepsActionsInTheirOrderAndGivesCopiesOfTheList) {
  const auto controller = alert();
  const auto cancel = action("Cancel", QavAlertActionStyle::cancel);
  controller->addAction(action("A"));
  controller->addAction(cancel);
  controller->addAction(cancel);
  auto copy = controller->actions();
  EXPECT_EQ(copy.size(), 3U);
  EXPECT_EQ(copy[1], cancel);
  copy.clear();
  EXPECT_EQ(controller->actions().size(), 3U);
}

TEST_F(QavAlertControllerTest, ATextFieldIsInTheListWhenItIsConfigured) {
  const auto controller = alert();
  std::size_t fieldsThen = 0;
  controller->addTextFieldWithConfigurationHandler([&](UITextField& field) {
    fieldsThen = controller->textFields().size();
    EXPECT_EQ(field.font(), UIFont::systemFontOfSize(13));
    EXPECT_EQ(field.autocorrectionType(), UITextAutocorrectionType::no);
  });
  controller->addTextFieldWithConfigurationHandler(nullptr);
  EXPECT_EQ(fieldsThen, 1U);
  EXPECT_EQ(controller->textFields().size(), 2U);
}

TEST_F(QavAlertControllerTest, TheContentViewIsTheCards) {
  const auto controller = alert();
  EXPECT_EQ(controller->contentView(), controller->alert()->contentView());
  EXPECT_FALSE(controller->contentView()->translatesAutoresizingMaskIntoConstraints());
}

// --- Appearing ---

TEST_F(QavAlertControllerTest, HandsOverWhatWasSetUntilItAppears) {
  const auto controller = alert();
  const auto a = action("A");
  const auto b = action("B");
  controller->addAction(a);
  controller->addAction(b);
  controller->setActionLayout(QavAlertActionLayout::vertical);
  const auto style = std::make_shared<QavAlertControllerDefaultVisualStyle>();
  controller->setVisualStyle(style);
  EXPECT_THAT(controller->alert()->actions(), IsEmpty());
  controller->presentWithCompletion();
  EXPECT_THAT(controller->alert()->actions(), ElementsAre(a, b));
  EXPECT_EQ(controller->alert()->visualStyle(), style);
  EXPECT_EQ(controller->alert()->actionLayout(), QavAlertActionLayout::vertical);
  EXPECT_EQ(controller->alert()->superview(), controller->view());
}

// The card decides on the buttons' direction by the actions that it has when it hears the layout.
TEST_F(QavAlertControllerTest, HandsOverTheActionsBeforeTheirLayout) {
  const auto controller = alert();
  controller->addAction(action("A"));
  controller->addAction(action("B"));
  controller->presentWithCompletion();
  EXPECT_EQ(controller->alert()->actionLayout(), QavAlertActionLayout::automatic);
  EXPECT_EQ(controller->alert()->collectionViewLayout()->scrollDirection(),
            UICollectionViewScrollDirection::horizontal);
}

TEST_F(QavAlertControllerTest, IsPresentingFromWillAppearToDidAppear) {
  const auto controller = alert();
  controller->presentWithCompletion([&] { note("completed"); });
  EXPECT_TRUE(controller->presentingAlert());
  time.advance(0.4);
  EXPECT_TRUE(controller->presentingAlert());
  time.advance(0.02);
  EXPECT_FALSE(controller->presentingAlert());
  EXPECT_THAT(log(), ElementsAre("completed"));
}

TEST_F(QavAlertControllerTest, MakesATextFieldControllerOnlyForFields) {
  const auto without = alert();
  without->presentWithCompletion();
  pass();
  EXPECT_THAT(without->childViewControllers(), IsEmpty());
  without->dismissWithCompletion();
  pass();
  const auto with = alert();
  with->addTextFieldWithConfigurationHandler(nullptr);
  with->presentWithCompletion();
  EXPECT_EQ(with->childViewControllers().size(), 1U);
}

TEST_F(QavAlertControllerTest, TheFirstFieldGetsTheKeyboardOnce) {
  const auto controller = alert();
  controller->addTextFieldWithConfigurationHandler(nullptr);
  controller->addTextFieldWithConfigurationHandler(nullptr);
  controller->presentWithCompletion();
  controller->view()->layoutIfNeeded();
  const auto fields = controller->textFields();
  EXPECT_TRUE(fields[0]->isFirstResponder());
  fields[1]->becomeFirstResponder();
  controller->view()->setNeedsLayout();
  controller->view()->layoutIfNeeded();
  EXPECT_TRUE(fields[1]->isFirstResponder());
}

TEST_F(QavAlertControllerTest, TheCardStandsInTheMiddleOfTheRoomAboveTheKeyboard) {
  const auto controller = alert();
  controller->presentWithCompletion();
  pass();
  const auto panel = controller->alert()->visualEffectView();
  controller->view()->layoutIfNeeded();
  EXPECT_EQ(panel->center(), (CGPoint{160, 240}));
  NotificationCenter::defaultCenter().post(
      UIKeyboardWillChangeFrameNotification,
      KeyboardNotification{.endFrame = {{0, 280}, {320, 200}}, .duration = 0.25});
  EXPECT_EQ(controller->view()->frame(), (CGRect{{0, 0}, {320, 280}}));
  EXPECT_EQ(panel->center(), (CGPoint{160, 140}));
  NotificationCenter::defaultCenter().post(
      UIKeyboardWillChangeFrameNotification,
      KeyboardNotification{.endFrame = {{0, 480}, {320, 0}}, .duration = 0.25});
  EXPECT_EQ(panel->center(), (CGPoint{160, 240}));
}

TEST_F(QavAlertControllerTest, WhileItComesAKeyboardOnlyChangesItsPlace) {
  const auto controller = alert();
  controller->presentWithCompletion();
  controller->view()->layoutIfNeeded();
  const auto panel = controller->alert()->visualEffectView();
  NotificationCenter::defaultCenter().post(
      UIKeyboardWillChangeFrameNotification,
      KeyboardNotification{.endFrame = {{0, 280}, {320, 200}}, .duration = 0.25});
  EXPECT_EQ(controller->view()->frame(), (CGRect{{0, 0}, {320, 280}}));
  EXPECT_EQ(panel->center(), (CGPoint{160, 240}));
}

TEST_F(QavAlertControllerTest, AppearingAgainPreparesNothingTwice) {
  const auto controller = alert();
  controller->addAction(action("A"));
  controller->addTextFieldWithConfigurationHandler(nullptr);
  controller->presentWithCompletion();
  pass();
  controller->dismissWithCompletion();
  pass();
  controller->presentWithCompletion();
  EXPECT_TRUE(controller->presentingAlert());
  pass();
  EXPECT_EQ(controller->childViewControllers().size(), 1U);
  EXPECT_EQ(controller->view()->subviews().size(), 1U);
  EXPECT_EQ(base->presentedViewController(), controller);
}

TEST_F(QavAlertControllerTest, HearsNoKeyboardOnceItHasGone) {
  auto controller = alert();
  controller->presentWithCompletion();
  pass();
  controller->dismissWithCompletion();
  pass();
  const std::weak_ptr<QavAlertController> gone = controller;
  const UIViewRef view = controller->view();
  const CGRect frame = view->frame();
  const auto keyboardTo = [](double y) {
    NotificationCenter::defaultCenter().post(
        UIKeyboardWillChangeFrameNotification,
        KeyboardNotification{.endFrame = {{0, y}, {320, 480 - y}}});
  };
  keyboardTo(280);
  EXPECT_EQ(view->frame().size.height, 280) << "hears it as long as it is there";
  keyboardTo(480);
  ASSERT_EQ(view->frame(), frame);
  controller.reset();
  time.settle();
  ASSERT_TRUE(gone.expired());
  keyboardTo(280);
  EXPECT_EQ(view->frame(), frame);
}

// --- Choosing ---

TEST_F(QavAlertControllerTest, TheHandlerRunsWhenTheAlertHasGone) {
  const auto controller = alert();
  const auto chosen = action("Yes");
  controller->addAction(chosen);
  controller->presentWithCompletion();
  pass();
  tap(*controller, chosen);
  time.advance(0.4);
  EXPECT_THAT(log(), IsEmpty());
  time.advance(0.02);
  EXPECT_THAT(log(), ElementsAre("handled Yes"));
  EXPECT_EQ(base->presentedViewController(), nullptr);
}

TEST_F(QavAlertControllerTest, OnItsWayOutItTakesNoSecondAnswer) {
  Lines handled;
  const auto controller = alert();
  for (const char* title : {"First", "Second"}) {
    controller->addAction(QavAlertAction::actionWithTitle(
        title, QavAlertActionStyle::standard,
        [&handled](QavAlertAction& chosen) { handled.push_back(*chosen.title()); }));
  }
  const auto actions = controller->actions();
  controller->presentWithCompletion();
  pass();
  tap(*controller, actions[0]);
  time.advance(0.1);
  tap(*controller, actions[0]);
  tap(*controller, actions[1]);
  pass();
  EXPECT_THAT(handled, ElementsAre("First"));
  controller->presentWithCompletion();
  pass();
  tap(*controller, actions[1]);
  pass();
  EXPECT_THAT(handled, ElementsAre("First", "Second"));
}

TEST_F(QavAlertControllerTest, AnActionWithoutHandlerJustCloses) {
  const auto controller = alert();
  const auto chosen = QavAlertAction::actionWithTitle("Yes", QavAlertActionStyle::standard);
  controller->addAction(chosen);
  controller->presentWithCompletion();
  pass();
  tap(*controller, chosen);
  pass();
  EXPECT_EQ(base->presentedViewController(), nullptr);
}

TEST_F(QavAlertControllerTest, ADisabledActionDoesNothingAndIsNotPutToTheVeto) {
  const auto controller = alert();
  const auto chosen = action("Yes");
  chosen->setEnabled(false);
  controller->addAction(chosen);
  controller->shouldDismissBlock = [this](QavAlertAction&) {
    note("asked");
    return true;
  };
  controller->presentWithCompletion();
  pass();
  tap(*controller, chosen);
  pass();
  EXPECT_THAT(log(), IsEmpty());
  EXPECT_EQ(base->presentedViewController(), controller);
}

TEST_F(QavAlertControllerTest, AVetoKeepsTheAlertAndTheHandlerStill) {
  const auto controller = alert();
  const auto chosen = action("Yes");
  controller->addAction(chosen);
  bool may = false;
  controller->shouldDismissBlock = [&](QavAlertAction& asked) {
    EXPECT_EQ(&asked, chosen.get());
    return may;
  };
  controller->presentWithCompletion();
  pass();
  tap(*controller, chosen);
  pass();
  EXPECT_THAT(log(), IsEmpty());
  EXPECT_EQ(base->presentedViewController(), controller);
  may = true;
  tap(*controller, chosen);
  pass();
  EXPECT_THAT(log(), ElementsAre("handled Yes"));
}

TEST_F(QavAlertControllerTest, LivesUntilTheHandlerHasRun) {
  auto controller = alert();
  const std::weak_ptr<QavAlertController> gone = controller;
  const auto chosen = QavAlertAction::actionWithTitle(
      "Yes", QavAlertActionStyle::standard, [&](QavAlertAction&) { EXPECT_FALSE(gone.expired()); });
  controller->addAction(chosen);
  controller->presentWithCompletion();
  pass();
  tap(*controller, chosen);
  controller.reset();
  pass();
  time.settle();
  EXPECT_TRUE(gone.expired());
}

TEST_F(QavAlertControllerTest, EscChoosesTheFirstCancelActionIfThereIsOne) {
  const auto controller = alert();
  controller->addAction(action("OK"));
  controller->presentWithCompletion();
  pass();
  EXPECT_FALSE(window.goBack());
  pass();
  EXPECT_EQ(base->presentedViewController(), controller);
  controller->dismissWithCompletion();
  pass();
  const auto other = alert();
  other->addAction(action("OK"));
  other->addAction(action("Stop", QavAlertActionStyle::cancel));
  other->presentWithCompletion();
  pass();
  EXPECT_TRUE(window.goBack());
  pass();
  EXPECT_THAT(log(), ElementsAre("handled Stop"));
}

// --- Convenience ---

TEST_F(QavAlertControllerTest, TheShortWaysShowOneCancelButtonWithWhateverTitle) {
  const auto first = QavAlertController::showAlertControllerWithTitle("T", "M");
  EXPECT_EQ(base->presentedViewController(), first);
  ASSERT_EQ(first->actions().size(), 1U);
  EXPECT_EQ(first->actions()[0]->title(), std::nullopt);
  EXPECT_EQ(first->actions()[0]->style(), QavAlertActionStyle::cancel);
  EXPECT_FALSE(first->actions()[0]->handler());
  EXPECT_EQ(first->preferredStyle(), QavAlertControllerStyle::alert);
  pass();
  tap(*first, first->actions()[0]);
  pass();
  const auto subview = std::make_shared<UIView>();
  const auto second = QavAlertController::showAlertControllerWithTitle("T", "M", "OK", subview);
  EXPECT_EQ(second->actions()[0]->title(), "OK");
  EXPECT_EQ(subview->superview(), second->contentView());
}

TEST_F(QavAlertControllerTest, IsPresentedByTheControllerOnTop) {
  const auto first = alert();
  first->presentWithCompletion();
  pass();
  const auto second = alert();
  second->presentWithCompletion();
  pass();
  EXPECT_EQ(first->presentedViewController(), second);
}

TEST_F(QavAlertControllerTest, DismissingWhatNobodyPresentsDoesNothing) {
  alert()->dismissWithCompletion([this] { note("completed"); });
  pass();
  EXPECT_THAT(log(), IsEmpty());
}

}  // namespace
}  // namespace kindora
