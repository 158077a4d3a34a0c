// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/legacy/QavAlertView.h"

#include <gmock/gmock.h>

#include "alerts/legacy/QavAlertViewColors.h"
#include "tests/alerts/legacy/AlertFixture.h"
#include "toolkit/view/NSLayoutConstraint.h"
#include "toolkit/view/UIMotionEffect.h"
#include "toolkit/view/UITapGestureRecognizer.h"

namespace kindora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Answers what it is told to answer; asked for what it has no answer to, it is as good as not
// there.
struct AnsweringDelegate final : QavAlertViewDelegate {
  std::optional<bool> alertViewShouldEnableFirstOtherButton(QavAlertView&) override {
    ++enableQuestions;
    return enable;
  }
  std::optional<bool> alertViewShouldDismissWithButtonIndex(QavAlertView&, int index) override {
    events.push_back("should dismiss " + std::to_string(index));
    return dismiss;
  }
  std::optional<bool> alertViewShouldDeselectButtonAtIndex(QavAlertView&, int) override {
    return deselect;
  }
  void alertViewClickedButtonAtIndex(QavAlertView&, int index) override {
    events.push_back("clicked " + std::to_string(index));
  }
  void alertViewWillDismissWithButtonIndex(QavAlertView&, int index) override {
    events.push_back("will dismiss " + std::to_string(index));
  }
  std::optional<bool> enable;
  std::optional<bool> dismiss;
  std::optional<bool> deselect;
  int enableQuestions = 0;
  EventLog events;
};

class QavAlertViewTest : public AlertFixture {
 protected:
  using AlertRef = std::shared_ptr<QavAlertView>;

  void showUp(const AlertRef& alert) {
    alert->show();
    endTransition();
    log.clear();
  }

  static std::shared_ptr<QavAlertViewButtonRow> suggestedRow(const AlertRef& alert) {
    return alert->alertContentView()->suggestedButtonTableView()->rows().at(0);
  }
  static std::shared_ptr<QavAlertViewButtonRow> otherRow(const AlertRef& alert, std::size_t row) {
    return alert->alertContentView()->otherButtonsTableView()->rows().at(row);
  }
  static void tap(const std::shared_ptr<QavAlertViewButtonRow>& row) {
    row->tapGestureRecognizer()->action(*row);
  }

  std::shared_ptr<AnsweringDelegate> answers = std::make_shared<AnsweringDelegate>();
};

TEST_F(QavAlertViewTest, IsMadeWithItsTextsButtonsAndLook) {
  const AlertRef alert =
      QavAlertView::initWithTitle("Title", "Message", answers, "Cancel", {"One", "Two"});
  EXPECT_EQ(alert->title(), "Title");
  EXPECT_EQ(alert->message(), "Message");
  EXPECT_EQ(alert->delegate(), answers);
  EXPECT_EQ(alert->numberOfButtons(), 3);
  EXPECT_EQ(alert->cancelButtonIndex(), 0);
  EXPECT_EQ(alert->firstOtherButtonIndex(), 1);
  EXPECT_EQ(alert->buttonTitleAtIndex(0), "Cancel");
  EXPECT_EQ(alert->buttonTitleAtIndex(2), "Two");
  EXPECT_FALSE(alert->translatesAutoresizingMaskIntoConstraints());
  EXPECT_TRUE(alert->clipsToBounds());
  EXPECT_EQ(alert->state().cornerRadius, 7);
  ASSERT_EQ(alert->motionEffects().size(), 1U);
  ASSERT_EQ(alert->motionEffects()[0].motionEffects.size(), 2U);
  for (const auto& effect : alert->motionEffects()[0].motionEffects) {
    EXPECT_EQ(effect.minimumRelativeValue, -15.75);
    EXPECT_EQ(effect.maximumRelativeValue, 15.75);
  }
}

TEST_F(QavAlertViewTest, TextsThatAreNotGivenStayNone) {
  const AlertRef alert = QavAlertView::initWithTitle(std::nullopt, "", {}, std::nullopt, {});
  EXPECT_EQ(alert->title(), std::nullopt);
  EXPECT_EQ(alert->message(), "");
  EXPECT_EQ(alert->cancelButtonIndex(), -1);
  EXPECT_EQ(alert->numberOfButtons(), 0);
}

TEST_F(QavAlertViewTest, ShownItStandsOnItsPanelAndGoesToTheCoordinator) {
  const AlertRef a = alert("A");
  a->show();
  EXPECT_THAT(a->subviews(), ElementsAre(a->alertBackgroundView(), a->alertContentView()));
  EXPECT_EQ(QavAlertView::transitionCoordinator().presentingAlert(), a);
  a->layoutIfNeeded();
  EXPECT_EQ(a->alertContentView()->frame(), a->bounds());
  EXPECT_EQ(a->alertBackgroundView()->panel()->frame(), a->bounds());
}

TEST_F(QavAlertViewTest, MayBeShownAgain) {
  const AlertRef a = alert("A");
  showUp(a);
  const std::size_t constraints = a->constraints().size();
  a->dismissWithClickedButtonIndex(0, false);
  showUp(a);
  EXPECT_TRUE(a->isVisible());
  EXPECT_EQ(a->constraints().size(), constraints);
  EXPECT_EQ(a->subviews().size(), 2U);
}

TEST_F(QavAlertViewTest, VisibleIsWhatTheCoordinatorShowsOutsideOfTransitions) {
  const AlertRef a = alert("A");
  std::vector<bool> seen;
  a->didPresentHandler = [&] { seen.push_back(a->isVisible()); };
  a->willDismissHandler = [&](int) { seen.push_back(a->isVisible()); };
  a->didDismissHandler = [&](int) { seen.push_back(a->isVisible()); };
  EXPECT_FALSE(a->isVisible());
  a->show();
  EXPECT_FALSE(a->isVisible());
  endTransition();
  EXPECT_TRUE(a->isVisible());
  a->dismissWithClickedButtonIndex(0, true);
  EXPECT_FALSE(a->isVisible());
  endTransition();
  EXPECT_THAT(seen, ElementsAre(true, true, false));
}

// --- Callbacks ---

TEST_F(QavAlertViewTest, DelegateIsToldBeforeTheHandler) {
  const AlertRef a = alert("A");
  a->didPresentHandler = [&] { log.emplace_back("did present handler"); };
  a->willDismissHandler = [&](int i) { log.push_back("will handler " + std::to_string(i)); };
  a->didDismissHandler = [&](int i) { log.push_back("did handler " + std::to_string(i)); };
  a->willBePresented();
  EXPECT_THAT(events(), ElementsAre("A will present"));
  a->wasPresented();
  EXPECT_THAT(events(), ElementsAre("A did present", "did present handler"));
  a->willBeDismissedWithButtonIndex(2);
  EXPECT_THAT(events(), ElementsAre("A will dismiss 2", "will handler 2"));
  a->wasDismissedWithButtonIndex(3);
  EXPECT_THAT(events(), ElementsAre("A did dismiss 3", "did handler 3"));
}

TEST_F(QavAlertViewTest, HandlersAreCalledWhenTheDelegateHasGone) {
  const AlertRef a = alert("A");
  a->didPresentHandler = [&] { log.emplace_back("handler"); };
  delegate = nullptr;
  a->willBePresented();
  a->wasPresented();
  EXPECT_THAT(events(), ElementsAre("handler"));
}

TEST_F(QavAlertViewTest, HandlerMayReplaceItself) {
  const AlertRef a = alert("A");
  a->didPresentHandler = [&, count = 1] {
    log.push_back("handler " + std::to_string(count));
    a->didPresentHandler = nullptr;
  };
  delegate = nullptr;
  a->wasPresented();
  a->wasPresented();
  EXPECT_THAT(events(), ElementsAre("handler 1"));
}

TEST_F(QavAlertViewTest, DismissHandlerMayBeGivenWithTheCall) {
  const AlertRef a = alert("A");
  int dismissed = -2;
  a->showWithDismissHandler([&](int index) { dismissed = index; });
  endTransition();
  a->dismissWithClickedButtonIndex(1, false);
  EXPECT_EQ(dismissed, 1);
}

// --- Tapping ---

TEST_F(QavAlertViewTest, TapTellsTheClickThenAsksThenDismisses) {
  const AlertRef a = QavAlertView::initWithTitle("A", {}, answers, "Cancel", {"OK"});
  a->clickedButtonHandler = [&](int i) {
    answers->events.push_back("handler " + std::to_string(i));
  };
  showUp(a);
  tap(suggestedRow(a));
  EXPECT_THAT(answers->events,
              ElementsAre("clicked 1", "handler 1", "should dismiss 1", "will dismiss 1"));
  EXPECT_THAT(events(), ElementsAre("user undim", "show nothing for A")) << "animated";
}

TEST_F(QavAlertViewTest, TakesNoPressesOnceATapDismissesIt) {
  const AlertRef a = QavAlertView::initWithTitle("A", {}, answers, "Cancel", {"OK"});
  showUp(a);
  answers->dismiss = false;
  tap(suggestedRow(a));
  EXPECT_TRUE(a->isUserInteractionEnabled());
  answers->dismiss = true;
  tap(suggestedRow(a));
  EXPECT_FALSE(a->isUserInteractionEnabled());
}

TEST_F(QavAlertViewTest, TakesNoPressesWhileItsDismissalWaitsForATransition) {
  const AlertRef a = QavAlertView::initWithTitle("A", {}, answers, "Cancel", {"OK"});
  a->show();
  tap(suggestedRow(a));
  EXPECT_EQ(QavAlertView::transitionCoordinator().presentingAlert(), a);
  EXPECT_FALSE(a->isUserInteractionEnabled());
}

TEST_F(QavAlertViewTest, TakesPressesAgainWhenTheOneAboveHasGone) {
  const AlertRef a = alert("A");
  const AlertRef b = alert("B");
  showUp(a);
  showUp(b);
  EXPECT_FALSE(a->isUserInteractionEnabled());
  b->dismissWithClickedButtonIndex(0, true);
  EXPECT_TRUE(a->isUserInteractionEnabled());
  EXPECT_FALSE(b->isUserInteractionEnabled());
}

TEST_F(QavAlertViewTest, DelegatesAnswerAboutDismissalSuffices) {
  const AlertRef a = QavAlertView::initWithTitle("A", {}, answers, "Cancel", {"OK"});
  int asked = 0;
  a->shouldDismissHandler = [&](int) { return ++asked == 0; };
  showUp(a);
  answers->dismiss = false;
  tap(suggestedRow(a));
  EXPECT_TRUE(a->isVisible());
  answers->dismiss = true;
  tap(suggestedRow(a));
  EXPECT_FALSE(a->isVisible());
  EXPECT_EQ(asked, 0);
}

TEST_F(QavAlertViewTest, HandlerIsAskedAboutDismissalWhereTheDelegateDoesNotAnswer) {
  const AlertRef a = QavAlertView::initWithTitle("A", {}, answers, "Cancel", {"OK"});
  std::vector<int> asked;
  a->shouldDismissHandler = [&](int index) {
    asked.push_back(index);
    return index == 0;
  };
  showUp(a);
  tap(suggestedRow(a));
  EXPECT_TRUE(a->isVisible());
  tap(otherRow(a, 0));
  EXPECT_FALSE(a->isVisible());
  EXPECT_THAT(asked, ElementsAre(1, 0));
}

TEST_F(QavAlertViewTest, TappedButtonStaysHighlightedOnlyWhenSomebodySaysSo) {
  const AlertRef a = QavAlertView::initWithTitle("A", {}, answers, "Cancel", {"OK"});
  answers->dismiss = false;
  showUp(a);
  const auto row = suggestedRow(a);
  tap(row);
  EXPECT_FALSE(row->isSelected());
  a->shouldDeselectButtonHandler = [](int index) { return index != 1; };
  tap(row);
  EXPECT_TRUE(row->isSelected());
  answers->deselect = true;
  tap(row);
  EXPECT_FALSE(row->isSelected());
  answers->deselect = false;
  a->shouldDeselectButtonHandler = nullptr;
  tap(row);
  EXPECT_TRUE(row->isSelected());
}

// --- The first other button ---

TEST_F(QavAlertViewTest, FirstOtherButtonIsEnabledAsTheDelegateSaysAtEachChange) {
  const AlertRef a = QavAlertView::initWithTitle("A", {}, answers, "Cancel", {"OK"});
  a->setAlertViewStyle(QavAlertViewStyle::plainTextInput);
  answers->enable = false;
  a->show();
  EXPECT_EQ(answers->enableQuestions, 1);
  EXPECT_FALSE(suggestedRow(a)->isEnabled());
  EXPECT_TRUE(otherRow(a, 0)->isEnabled());
  answers->enable = true;
  a->textFieldAtIndex(0)->replaceRange({0, 0}, "x");
  EXPECT_EQ(answers->enableQuestions, 2);
  EXPECT_TRUE(suggestedRow(a)->isEnabled());
}

TEST_F(QavAlertViewTest, DisabledButtonCannotBeTapped) {
  const AlertRef a = QavAlertView::initWithTitle("A", {}, answers, "Cancel", {"OK"});
  answers->enable = false;
  showUp(a);
  tap(suggestedRow(a));
  EXPECT_THAT(answers->events, IsEmpty());
  EXPECT_TRUE(a->isVisible());
}

TEST_F(QavAlertViewTest, WithoutAnAnswerTheFirstOtherButtonStaysEnabled) {
  const AlertRef a = QavAlertView::initWithTitle("A", {}, answers, "Cancel", {"OK"});
  showUp(a);
  EXPECT_EQ(answers->enableQuestions, 1);
  EXPECT_TRUE(suggestedRow(a)->isEnabled());
}

TEST_F(QavAlertViewTest, FieldThatOutlivesItsAlertTellsNobody) {
  AlertRef a = QavAlertView::initWithTitle("A", {}, answers, "Cancel", {"OK"});
  a->setAlertViewStyle(QavAlertViewStyle::plainTextInput);
  showUp(a);
  const auto field = a->textFieldAtIndex(0);
  a->dismissWithClickedButtonIndex(0, false);
  a = nullptr;
  EXPECT_TRUE(field->replaceRange({0, 0}, "x"));
  EXPECT_EQ(answers->enableQuestions, 1);
}

// --- Keyboard ---

TEST_F(QavAlertViewTest, KeyboardGoesToTheFirstFieldAndIsGivenUpWithTheAlert) {
  const AlertRef a = alert("A");
  EXPECT_TRUE(a->becomeFirstResponder());
  EXPECT_TRUE(a->resignFirstResponder());
  a->setAlertViewStyle(QavAlertViewStyle::loginAndPasswordInput);
  EXPECT_TRUE(a->becomeFirstResponder());
  EXPECT_TRUE(a->textFieldAtIndex(0)->isFirstResponder());
  a->textFieldAtIndex(1)->becomeFirstResponder();
  EXPECT_TRUE(a->resignFirstResponder());
  EXPECT_FALSE(a->textFieldAtIndex(1)->isFirstResponder());
}

// --- Convenience ---

TEST_F(QavAlertViewTest, ShorterMakersPassNoneForWhatTheyLack) {
  const auto view = std::make_shared<UIView>();
  const AlertRef texts = QavAlertView::alertWithTitleMessage("T", "M");
  EXPECT_EQ(texts->title(), "T");
  EXPECT_EQ(texts->message(), "M");
  EXPECT_EQ(texts->numberOfButtons(), 0);
  EXPECT_THAT(texts->contentView()->subviews(), IsEmpty());
  const AlertRef buttons =
      QavAlertView::alertWithTitleMessageButtons("T", std::nullopt, {"No", "Yes"});
  EXPECT_EQ(buttons->message(), std::nullopt);
  EXPECT_EQ(buttons->cancelButtonIndex(), 0);
  EXPECT_EQ(buttons->buttonTitleAtIndex(0), "No");
  EXPECT_EQ(buttons->buttonTitleAtIndex(1), "Yes");
  const AlertRef alone = QavAlertView::alertWithSubview(view);
  EXPECT_EQ(alone->title(), std::nullopt);
  EXPECT_THAT(alone->contentView()->subviews(), ElementsAre(view));
  const AlertRef titled = QavAlertView::alertWithTitleSubview("T", view);
  EXPECT_EQ(titled->title(), "T");
  EXPECT_EQ(titled->message(), std::nullopt);
  const AlertRef both = QavAlertView::alertWithTitleMessageSubview("T", "M", view);
  EXPECT_EQ(both->message(), "M");
  EXPECT_EQ(both->numberOfButtons(), 0);
  const AlertRef all = QavAlertView::alertWithTitleMessageSubviewButtons("T", "M", view, {"OK"});
  EXPECT_EQ(all->numberOfButtons(), 1);
  EXPECT_THAT(all->contentView()->subviews(), ElementsAre(view));
}

// --- Look ---

TEST_F(QavAlertViewTest, DefaultLook) {
  const QavAlertViewAppearance& look = QavAlertView::appearance();
  EXPECT_EQ(look.titleLabelFont, UIFont::boldSystemFontOfSize(17));
  EXPECT_EQ(look.messageLabelFont, UIFont::systemFontOfSize(14));
  EXPECT_EQ(look.textFieldFont, UIFont::systemFontOfSize(13));
  EXPECT_EQ(look.suggestedButtonFont, UIFont::boldSystemFontOfSize(17));
  EXPECT_EQ(look.normalButtonFont, UIFont::systemFontOfSize(17));
  EXPECT_EQ(look.titleLabelTextColor, UIColor::darkTextColor());
  EXPECT_EQ(look.messageLabelTextColor, UIColor::darkTextColor());
  EXPECT_EQ(look.textFieldTextColor, UIColor::darkTextColor());
  EXPECT_EQ(look.contentPadding, (UIEdgeInsets{19, 15, 18.5, 15}));
  EXPECT_EQ(look.labelSpacing, 4);
}

TEST_F(QavAlertViewTest, SharedLookHoldsForAlertsMadeAfterwards) {
  const AlertRef before = alert("A");
  QavAlertView::appearance().titleLabelFont = UIFont::systemFontOfSize(30);
  QavAlertView::appearance().labelSpacing = 9;
  for (int i = 0; i < 2; ++i) {
    const AlertRef after = alert("B");
    EXPECT_EQ(after->alertContentView()->titleLabel()->font(), UIFont::systemFontOfSize(30));
    EXPECT_EQ(after->ownAppearance().labelSpacing, 9);
  }
  EXPECT_EQ(before->alertContentView()->titleLabel()->font(), UIFont::boldSystemFontOfSize(17));
}

TEST_F(QavAlertViewTest, LookReachesLabelsFieldsAndButtons) {
  const UIColor red{1, 0, 0, 1};
  const AlertRef a = alert("A");
  a->setAlertViewStyle(QavAlertViewStyle::plainTextInput);
  showUp(a);
  QavAlertViewAppearance look = a->ownAppearance();
  look.messageLabelFont = UIFont::systemFontOfSize(1);
  look.messageLabelTextColor = red;
  look.titleLabelTextColor = red;
  look.textFieldFont = UIFont::systemFontOfSize(2);
  look.textFieldTextColor = red;
  look.suggestedButtonFont = UIFont::systemFontOfSize(3);
  look.normalButtonFont = UIFont::systemFontOfSize(4);
  a->setOwnAppearance(look);
  EXPECT_EQ(suggestedRow(a)->textLabel()->textColor(), kDefaultTintColor);
  look.buttonTextColor = red;
  a->setOwnAppearance(look);
  EXPECT_EQ(a->ownAppearance(), look);
  const auto& content = a->alertContentView();
  EXPECT_EQ(content->messageLabel()->font(), UIFont::systemFontOfSize(1));
  EXPECT_EQ(content->messageLabel()->textColor(), red);
  EXPECT_EQ(content->titleLabel()->textColor(), red);
  EXPECT_EQ(a->textFieldAtIndex(0)->font(), UIFont::systemFontOfSize(2));
  EXPECT_EQ(a->textFieldAtIndex(0)->textColor(), red);
  EXPECT_EQ(suggestedRow(a)->textLabel()->font(), UIFont::systemFontOfSize(3));
  EXPECT_EQ(suggestedRow(a)->textLabel()->textColor(), red);
  EXPECT_EQ(otherRow(a, 0)->textLabel()->font(), UIFont::systemFontOfSize(4));
}

TEST_F(QavAlertViewTest, AttributeAnywhereInTheTitleOutweighsTheSetter) {
  const AlertRef a = alert("A");
  NSAttributedString text("plain ");
  text.append("blue", {.foregroundColor = UIColor{0, 0, 1, 1}});
  a->setAttributedTitle(text);
  EXPECT_EQ(a->title(), "plain blue");
  QavAlertViewAppearance look = a->ownAppearance();
  look.titleLabelTextColor = {1, 0, 0, 1};
  look.titleLabelFont = UIFont::systemFontOfSize(30);
  a->setOwnAppearance(look);
  const auto& label = a->alertContentView()->titleLabel();
  EXPECT_EQ(label->textColor(), UIColor::darkTextColor());
  EXPECT_EQ(label->font(), UIFont::systemFontOfSize(30)) << "the text sets no font";
  EXPECT_EQ(a->attributedTitle(), text);
}

TEST_F(QavAlertViewTest, AttributeAnywhereInTheMessageOutweighsTheSetter) {
  const AlertRef a = alert("A");
  NSAttributedString text("plain ");
  text.append("large", {.font = UIFont::systemFontOfSize(40)});
  a->setAttributedMessage(text);
  QavAlertViewAppearance look = a->ownAppearance();
  look.messageLabelFont = UIFont::systemFontOfSize(30);
  look.messageLabelTextColor = {1, 0, 0, 1};
  a->setOwnAppearance(look);
  const auto& label = a->alertContentView()->messageLabel();
  EXPECT_EQ(label->font(), UIFont::systemFontOfSize(14));
  EXPECT_EQ(label->textColor(), (UIColor{1, 0, 0, 1})) << "the text sets no colour";
  EXPECT_EQ(a->attributedMessage(), text);
}

TEST_F(QavAlertViewTest, ColoursOfTheParts) {
  EXPECT_EQ(qav_alertSeparatorColor(), UIColor::colorWithWhite(0.5, 0.5));
  EXPECT_EQ(qav_textFieldBackgroundViewColor(), UIColor::colorWithWhite(0.5, 0.5));
  EXPECT_EQ(qav_dimmedBackgroundColor(), UIColor::colorWithWhite(0, 0.4));
}

}  // namespace
}  // namespace kindora
