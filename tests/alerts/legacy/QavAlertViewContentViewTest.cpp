// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/legacy/QavAlertViewContentView.h"

#include <gmock/gmock.h>

#include "alerts/legacy/QavAlertViewColors.h"
#include "alerts/legacy/QavLocalizedString.h"
#include "platform/fakes/FakeViewServices.h"
#include "toolkit/view/LayoutEngine.h"
#include "toolkit/view/UITapGestureRecognizer.h"

namespace kindora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// With the fake measurer the title's line is 21.25 points high, the message's 17.5, and half the
// font's size wide for each character. The screen is 320 by 480 points of 2 pixels.
constexpr double kTitleLine = 21.25;
constexpr double kMessageLine = 17.5;
constexpr double kTexts = 19 + kTitleLine + 4 + kMessageLine;
constexpr double kPixel = 0.5;

struct Taps final : QavAlertViewContentViewDelegate {
  void alertContentViewDidTapButtonAtIndex(QavAlertViewContentView&, int index) override {
    indexes.push_back(index);
  }
  bool alertContentViewShouldDeselectButtonAtIndex(QavAlertViewContentView&, int) override {
    return true;
  }
  std::vector<int> indexes;
};

class QavAlertViewContentViewTest : public testing::Test {
 protected:
  QavAlertViewContentViewTest() {
    LayoutEngine::leftOut() = [](const NSLayoutConstraint& constraint) {
      ADD_FAILURE() << "contradicts the others: " << constraint.description();
    };
  }

  // In a container, as in an alert.
  void layOut() {
    content->prepareForShowing();
    if (!content->superview()) container->addSubview(content);
    container->layoutIfNeeded();
  }

  // Where a view's edges are in the content, from top to bottom.
  static double top(const UIViewRef& view) { return view->frame().origin.y; }
  static double height(const UIViewRef& view) { return view->frame().size.height; }

  FakeViewServices services = installFakeViewServices();
  UIViewRef container = std::make_shared<UIView>();
  std::shared_ptr<QavAlertViewContentView> content =
      QavAlertViewContentView::initWithTitle("Title", "Message");
};

// --- Text fields ---

TEST_F(QavAlertViewContentViewTest, StyleDecidesOnTheFields) {
  EXPECT_THAT(content->textFields(), IsEmpty());
  content->updateContentForStyle(QavAlertViewStyle::secureTextInput);
  ASSERT_EQ(content->textFields().size(), 1U);
  EXPECT_TRUE(content->textFieldAtIndex(0)->isSecureTextEntry());
  EXPECT_EQ(content->textFieldAtIndex(0)->placeholder(), "");
  content->updateContentForStyle(QavAlertViewStyle::plainTextInput);
  ASSERT_EQ(content->textFields().size(), 1U);
  EXPECT_FALSE(content->textFieldAtIndex(0)->isSecureTextEntry());
  content->updateContentForStyle(QavAlertViewStyle::loginAndPasswordInput);
  ASSERT_EQ(content->textFields().size(), 2U);
  EXPECT_FALSE(content->textFieldAtIndex(0)->isSecureTextEntry());
  EXPECT_EQ(content->textFieldAtIndex(0)->placeholder(), "Login");
  EXPECT_TRUE(content->textFieldAtIndex(1)->isSecureTextEntry());
  EXPECT_EQ(content->textFieldAtIndex(1)->placeholder(), "Password");
  content->updateContentForStyle(QavAlertViewStyle::standard);
  EXPECT_THAT(content->textFields(), IsEmpty());
}

TEST_F(QavAlertViewContentViewTest, FieldsAreThereByIndexOrNot) {
  content->updateContentForStyle(QavAlertViewStyle::plainTextInput);
  EXPECT_NE(content->textFieldAtIndex(0), nullptr);
  EXPECT_EQ(content->textFieldAtIndex(1), nullptr);
  EXPECT_EQ(content->textFieldAtIndex(-1), nullptr);
}

TEST_F(QavAlertViewContentViewTest, TextStandsFourPointsInsideAField) {
  content->updateContentForStyle(QavAlertViewStyle::plainTextInput);
  EXPECT_EQ(content->textFieldAtIndex(0)->textInsets(), (UIEdgeInsets{0, 4, 0, 4}));
}

TEST_F(QavAlertViewContentViewTest, PlaceholdersAreInTheUsersLanguage) {
  installAlertLocalizer([](std::string_view english) { return '<' + std::string(english) + '>'; });
  content->updateContentForStyle(QavAlertViewStyle::loginAndPasswordInput);
  installAlertLocalizer(nullptr);
  EXPECT_EQ(content->textFieldAtIndex(0)->placeholder(), "<Login>");
  EXPECT_EQ(content->textFieldAtIndex(1)->placeholder(), "<Password>");
}

// --- Buttons ---

TEST_F(QavAlertViewContentViewTest, TappedRowsReportTheirButtons) {
  const auto taps = std::make_shared<Taps>();
  content->setDelegate(taps);
  content->setCancelButtonTitle("Cancel");
  content->addButtonWithTitle("One");
  content->addButtonWithTitle("Two");
  content->prepareForShowing();
  const auto tap = [](const QavAlertViewButtonTable::RowRef& row) {
    row->tapGestureRecognizer()->action(*row);
  };
  const auto& others = content->otherButtonsTableView()->rows();
  ASSERT_EQ(others.size(), 2U);
  EXPECT_EQ(others[0]->textLabel()->text(), "One");
  tap(others[0]);
  tap(others[1]);
  ASSERT_EQ(content->suggestedButtonTableView()->rows().size(), 1U);
  EXPECT_EQ(content->suggestedButtonTableView()->rows()[0]->textLabel()->text(), "Cancel");
  tap(content->suggestedButtonTableView()->rows()[0]);
  EXPECT_THAT(taps->indexes, ElementsAre(1, 2, 0));
}

TEST_F(QavAlertViewContentViewTest, RowsAreButtonsForScreenReaders) {
  content->addButtonWithTitle("One");
  content->prepareForShowing();
  const auto& row = content->suggestedButtonTableView()->rows().at(0);
  EXPECT_EQ(row->accessibilityRole(), UIAccessibilityRole::button);
  EXPECT_EQ(row->accessibilityLabel(), "One");
}

// --- Layout ---

TEST_F(QavAlertViewContentViewTest, TextsAloneHavePaddingAllRound) {
  layOut();
  EXPECT_EQ(content->frame().size, (CGSize{270, kTexts + 18.5}));
  EXPECT_EQ(content->scrollView()->frame(), (CGRect{{0, 0}, {270, kTexts + 18.5}}));
  EXPECT_EQ(content->titleLabel()->frame(), (CGRect{{15, 19}, {240, kTitleLine}}));
  EXPECT_EQ(content->messageLabel()->frame(),
            (CGRect{{15, 19 + kTitleLine + 4}, {240, kMessageLine}}));
  EXPECT_THAT(content->subviews(), ElementsAre(content->scrollView()));
}

TEST_F(QavAlertViewContentViewTest, TwoButtonsShareTheWidth) {
  content->setCancelButtonTitle("Cancel");
  content->addButtonWithTitle("OK");
  layOut();
  EXPECT_EQ(content->scrollView()->frame().size.height, kTexts);
  EXPECT_EQ(content->buttonTopSeparatorView()->frame(),
            (CGRect{{0, kTexts + 18.5}, {270, kPixel}}));
  const double below = kTexts + 18.5 + kPixel;
  EXPECT_EQ(content->otherButtonsTableView()->frame(), (CGRect{{0, below}, {135, 44}}));
  EXPECT_EQ(content->suggestedButtonTableView()->frame(), (CGRect{{135, below}, {135, 44}}));
  EXPECT_EQ(content->frame().size.height, below + 44);
  EXPECT_EQ(content->otherButtonsTableView()->rows()[0]->textLabel()->text(), "Cancel");
  EXPECT_EQ(content->suggestedButtonTableView()->rows()[0]->textLabel()->text(), "OK");
}

TEST_F(QavAlertViewContentViewTest, StackedButtonsAreFortyFourHighEach) {
  content->setCancelButtonTitle("Cancel");
  content->addButtonWithTitle("One");
  content->addButtonWithTitle("Two");
  layOut();
  const double below = kTexts + 18.5 + kPixel;
  EXPECT_EQ(content->otherButtonsTableView()->frame(), (CGRect{{0, below}, {270, 88}}));
  EXPECT_EQ(content->suggestedButtonTableView()->frame(), (CGRect{{0, below + 88}, {270, 44}}));
  EXPECT_EQ(content->otherButtonsTableView()->rows()[1]->frame(), (CGRect{{0, 44}, {270, 44}}));
  const auto& label = content->otherButtonsTableView()->rows()[1]->textLabel();
  EXPECT_EQ(label->frame(), (CGRect{{8, (44 - kTitleLine) / 2}, {254, kTitleLine}}));
  EXPECT_EQ(content->frame().size.height, below + 132);
}

TEST_F(QavAlertViewContentViewTest, TwoButtonsStandBelowEachOtherWhenTheyAreToldTo) {
  content->setCancelButtonTitle("Cancel");
  content->addButtonWithTitle("OK");
  layOut();
  content->setAlwaysShowsButtonsVertically(true);
  container->layoutIfNeeded();
  const double below = kTexts + 18.5 + kPixel;
  EXPECT_EQ(content->otherButtonsTableView()->frame(), (CGRect{{0, below}, {270, 44}}));
  EXPECT_EQ(content->suggestedButtonTableView()->frame(), (CGRect{{0, below + 44}, {270, 44}}));
}

TEST_F(QavAlertViewContentViewTest, OneButtonLeavesTheOtherTableEmpty) {
  content->addButtonWithTitle("OK");
  layOut();
  EXPECT_EQ(height(content->otherButtonsTableView()), 0);
  EXPECT_EQ(content->suggestedButtonTableView()->frame(),
            (CGRect{{0, kTexts + 18.5 + kPixel}, {270, 44}}));
}

TEST_F(QavAlertViewContentViewTest, FieldsStandOnAWhitePanelWithinTheSides) {
  content->updateContentForStyle(QavAlertViewStyle::loginAndPasswordInput);
  content->setCancelButtonTitle("Cancel");
  layOut();
  const auto& panel = content->textFieldBackgroundView();
  EXPECT_EQ(panel->frame(), (CGRect{{15, kTexts + 20}, {240, 30 + kPixel + 29}}));
  EXPECT_EQ(content->textFieldAtIndex(0)->frame(), (CGRect{{0, 0}, {240, 30}}));
  EXPECT_EQ(content->textFieldAtIndex(1)->frame(), (CGRect{{0, 30 + kPixel}, {240, 29}}));
  EXPECT_EQ(panel->state().backgroundColor, UIColor::whiteColor());
  EXPECT_EQ(panel->state().cornerRadius, 5);
  EXPECT_EQ(panel->border(), (UIViewBorder{qav_textFieldBackgroundViewColor(), kPixel}));
  EXPECT_EQ(top(content->buttonTopSeparatorView()), kTexts + 20 + 59 + kPixel + 18.5);
}

TEST_F(QavAlertViewContentViewTest, OneFieldIsThirtyHigh) {
  content->updateContentForStyle(QavAlertViewStyle::plainTextInput);
  layOut();
  EXPECT_EQ(height(content->textFieldBackgroundView()), 30);
  EXPECT_EQ(content->frame().size.height, kTexts + 20 + 30);
}

TEST_F(QavAlertViewContentViewTest, OwnContentStandsInTheMiddleBelowADefaultGap) {
  const auto own = std::make_shared<UIView>();
  own->setFrame({{0, 0}, {100, 50}});
  content->contentView()->addSubview(own);
  content->setCancelButtonTitle("Cancel");
  layOut();
  EXPECT_EQ(content->contentView()->frame(), (CGRect{{85, kTexts + 8}, {100, 50}}));
  EXPECT_EQ(top(content->buttonTopSeparatorView()), kTexts + 8 + 50 + 18.5);
}

TEST_F(QavAlertViewContentViewTest, LongTextBreaksAtTheWidthOfTheLabels) {
  content->setMessage(std::string(35, 'x'));  // 34 characters of 7 points fill 238
  layOut();
  EXPECT_EQ(height(content->messageLabel()), 2 * kMessageLine);
  EXPECT_EQ(height(content->scrollView()), kTexts + kMessageLine + 18.5);
}

TEST_F(QavAlertViewContentViewTest, TextsScrollInWhatTheMaximumLeaves) {
  content->setMessage(std::string(34 * 40, 'x'));
  content->updateContentForStyle(QavAlertViewStyle::plainTextInput);
  content->setCancelButtonTitle("Cancel");
  content->addButtonWithTitle("OK");
  layOut();
  EXPECT_EQ(content->frame().size.height, 440) << "40 less than the screen";
  EXPECT_EQ(height(content->scrollView()), 440 - 50 - 18.5 - kPixel - 44);
  EXPECT_EQ(content->scrollView()->contentSize(), (CGSize{270, kTexts + 39 * kMessageLine}));
}

TEST_F(QavAlertViewContentViewTest, ScrollAreaIsNeverLessThanNothing) {
  content->setMaximumSize({270, 50});
  content->setCancelButtonTitle("Cancel");
  layOut();
  EXPECT_EQ(height(content->scrollView()), 0);
  EXPECT_EQ(content->frame().size.height, 18.5 + kPixel + 44);
}

TEST_F(QavAlertViewContentViewTest, ChangesOfTextAndMaximumSizeTakeEffectWhileItIsShown) {
  layOut();
  content->setMessage("1\n2\n3");
  content->setMaximumSize({200, 400});
  container->layoutIfNeeded();
  EXPECT_EQ(content->frame().size, (CGSize{200, kTexts + 2 * kMessageLine + 18.5}));
  EXPECT_EQ(content->messageLabel()->frame().size.width, 170);
}

TEST_F(QavAlertViewContentViewTest, ElementsThatComeAndGoAreLaidOutAnew) {
  layOut();
  content->setCancelButtonTitle("Cancel");
  content->updateContentForStyle(QavAlertViewStyle::plainTextInput);
  container->layoutIfNeeded();
  EXPECT_EQ(content->frame().size.height, kTexts + 50 + 18.5 + kPixel + 44);
  content->updateContentForStyle(QavAlertViewStyle::standard);
  content->setCancelButtonTitle(std::nullopt);
  container->layoutIfNeeded();
  EXPECT_EQ(content->frame().size.height, kTexts + 18.5);
}

TEST_F(QavAlertViewContentViewTest, PreparedAgainItHoldsNoMoreConstraints) {
  content->setCancelButtonTitle("Cancel");
  content->addButtonWithTitle("OK");
  content->updateContentForStyle(QavAlertViewStyle::loginAndPasswordInput);
  layOut();
  const std::size_t own = content->constraints().size();
  const std::size_t inside = content->scrollView()->constraints().size();
  layOut();
  EXPECT_EQ(content->constraints().size(), own);
  EXPECT_EQ(content->scrollView()->constraints().size(), inside);
}

}  // namespace
}  // namespace kindora
