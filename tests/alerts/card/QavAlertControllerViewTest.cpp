// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/card/QavAlertControllerView.h"

#include <gmock/gmock.h>

#include <string>

#include "alerts/card/QavAlertControllerDefaultVisualStyle.h"
#include "tests/alerts/card/CardFixture.h"
#include "tests/toolkit/view/FakeRenderer.h"
#include "toolkit/view/UIMotionEffect.h"

namespace kindora {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

class QavAlertControllerViewTest : public CardFixture, public testing::Test {
 protected:
  [[nodiscard]] CGRect panel() const { return card->visualEffectView()->frame(); }
  [[nodiscard]] CGRect texts() const { return card->scrollView()->frame(); }
  [[nodiscard]] CGRect buttons() const { return card->actionsCollectionView()->frame(); }
};

TEST_F(QavAlertControllerViewTest, IdentifiersHaveTheirNames) {
  EXPECT_EQ(std::string(kQavAlertControllerCellReuseIdentifier),
            "QavAlertControllerCellReuseIdentifier");
  EXPECT_EQ(std::string(kQavAlertControllerDecorationKindHorizontalSeparator),
            "QavAlertControllerDecorationKindHorizontalSeparator");
  EXPECT_EQ(std::string(kQavAlertControllerDecorationKindVerticalSeparator),
            "QavAlertControllerDecorationKindVerticalSeparator");
}

TEST_F(QavAlertControllerViewTest, PanelIsTheLightestBlur) {
  EXPECT_EQ(static_cast<int>(card->visualEffectView()->style()), 0);
  EXPECT_EQ(card->actionsCollectionView()->state().backgroundColor, UIColor::clearColor());
}

TEST_F(QavAlertControllerViewTest, PartsArePlacedByConstraints) {
  for (const UIViewRef& view :
       {UIViewRef(card), UIViewRef(card->visualEffectView()), UIViewRef(card->scrollView()),
        UIViewRef(card->actionsCollectionView())}) {
    EXPECT_FALSE(view->translatesAutoresizingMaskIntoConstraints());
  }
}

TEST_F(QavAlertControllerViewTest, TitleAndMessageAreTheLabelsAtFirstAndLater) {
  EXPECT_EQ(card->scrollView()->titleLabel()->text(), "Title");
  EXPECT_EQ(card->scrollView()->messageLabel()->text(), "Message");
  card->setTitle(attributed("Other"));
  card->setMessage(std::nullopt);
  EXPECT_EQ(card->scrollView()->titleLabel()->text(), "Other");
  EXPECT_EQ(card->scrollView()->messageLabel()->text(), std::nullopt);
  EXPECT_EQ(card->title(), attributed("Other"));
  EXPECT_EQ(card->message(), std::nullopt);
}

TEST_F(QavAlertControllerViewTest, TitleIsReadAsAHeaderAndMessageAsText) {
  const auto& title = *card->scrollView()->titleLabel();
  const auto& message = *card->scrollView()->messageLabel();
  EXPECT_EQ(title.accessibilityRole(), UIAccessibilityRole::header);
  EXPECT_EQ(title.accessibilityLabel(), "Title");
  EXPECT_EQ(message.accessibilityRole(), UIAccessibilityRole::staticText);
  EXPECT_EQ(message.accessibilityLabel(), "Message");
  card->setTitle(std::nullopt);
  EXPECT_EQ(title.accessibilityRole(), UIAccessibilityRole::none);
  EXPECT_EQ(title.accessibilityLabel(), std::nullopt);
}

TEST_F(QavAlertControllerViewTest, PanelIsReadAsAnAlertOfItsTitleElseOfItsMessage) {
  const auto& panel = *card->visualEffectView()->contentView();
  EXPECT_EQ(panel.accessibilityRole(), UIAccessibilityRole::alert);
  EXPECT_EQ(panel.accessibilityLabel(), "Title");
  card->setTitle(std::nullopt);
  EXPECT_EQ(panel.accessibilityLabel(), "Message");
  card->setMessage(std::nullopt);
  EXPECT_EQ(panel.accessibilityLabel(), std::nullopt);
}

TEST_F(QavAlertControllerViewTest, PanelIsAsWideAsTheStyleSaysInTheMiddleOfTheWindow) {
  show(2);
  EXPECT_EQ(card->frame(), (CGRect{{0, 0}, {320, 480}}));
  // 36 and 18 to the message's baseline, 3.25 below that, 24, and a row of buttons.
  EXPECT_EQ(panel(), (CGRect{{25, 177.375}, {270, 125.25}}));
  EXPECT_EQ(texts(), (CGRect{{0, 0}, {270, 81.25}}));
  EXPECT_EQ(buttons(), (CGRect{{0, 81.25}, {270, 44}}));
}

TEST_F(QavAlertControllerViewTest, PanelStaysInTheMiddleAboveAKeyboard) {
  show(2);
  window->setFrame({{0, 0}, {320, 264}});
  window->layoutIfNeeded();
  EXPECT_EQ(panel(), (CGRect{{25, 69.375}, {270, 125.25}}));
}

TEST_F(QavAlertControllerViewTest, PanelFloatsAndItsCornersAreCutOff) {
  show(1);
  EXPECT_EQ(card->visualEffectView()->state().cornerRadius, 7);
  EXPECT_TRUE(card->visualEffectView()->clipsToBounds());
  ASSERT_THAT(card->motionEffects(), SizeIs(1));
  ASSERT_THAT(card->motionEffects().front().motionEffects, SizeIs(2));
  EXPECT_EQ(card->motionEffects().front().motionEffects.front().maximumRelativeValue, 15.75);
}

TEST_F(QavAlertControllerViewTest, FollowsAStyleOfItsOwn) {
  struct Wide final : QavAlertControllerDefaultVisualStyle {
    [[nodiscard]] double width() const override { return 300; }
    [[nodiscard]] UIEdgeInsets contentPadding() const override { return {50, 20, 12, 30}; }
    [[nodiscard]] double actionViewHeight() const override { return 60; }
    [[nodiscard]] double labelSpacing() const override { return 28; }
  };
  card->setVisualStyle(std::make_shared<Wide>());
  show(3);
  EXPECT_EQ(panel().size, (CGSize{300, 105.25 + 180}));
  EXPECT_EQ(card->scrollView()->titleLabel()->frame(), (CGRect{{20, 33}, {250, 21.25}}));
}

TEST_F(QavAlertControllerViewTest, MaximumScrollHeightIsWhatMarginsAndButtonsLeave) {
  show(2);
  EXPECT_EQ(card->maximumHeightConstraint()->constant(), 430);
  EXPECT_EQ(card->maximumHeightConstraint()->relation(), NSLayoutRelation::lessThanOrEqual);
  EXPECT_EQ(card->maximumHeightConstraint()->firstAttribute(), NSLayoutAttribute::height);
  EXPECT_EQ(card->maximumHeightConstraint()->firstItem(), card->scrollView());
}

TEST_F(QavAlertControllerViewTest, MaximumScrollHeightWithStackedButtons) {
  show(3);
  EXPECT_EQ(card->maximumHeightConstraint()->constant(), 342);
}

TEST_F(QavAlertControllerViewTest, MaximumScrollHeightWithoutButtons) {
  show(0);
  EXPECT_EQ(card->maximumHeightConstraint()->constant(), 474);
  EXPECT_EQ(buttons().size.height, 0);
}

TEST_F(QavAlertControllerViewTest, MaximumScrollHeightOfManyButtonsInOneRow) {
  show(4, QavAlertActionLayout::horizontal);
  EXPECT_EQ(card->maximumHeightConstraint()->constant(), 430);
}

TEST_F(QavAlertControllerViewTest, MaximumScrollHeightFollowsTheWindow) {
  show(2);
  window->setFrame({{0, 0}, {480, 320}});
  window->layoutIfNeeded();
  EXPECT_EQ(card->maximumHeightConstraint()->constant(), 270);
}

TEST_F(QavAlertControllerViewTest, MaximumScrollHeightIsNeverBelowNothing) {
  window->setFrame({{0, 0}, {320, 40}});
  show(2);
  EXPECT_EQ(card->maximumHeightConstraint()->constant(), 0);
  EXPECT_EQ(panel().size.height, 44);
}

struct AreaCase {
  std::string name;
  QavAlertActionLayout layout;
  int actions;
  double height;
};

class QavAlertControllerViewArea : public CardFixture, public testing::TestWithParam<AreaCase> {};

TEST_P(QavAlertControllerViewArea, TakesTheHeightOfItsRows) {
  show(GetParam().actions, GetParam().layout);
  EXPECT_EQ(card->actionsCollectionView()->frame().size.height, GetParam().height);
  EXPECT_EQ(card->visualEffectView()->frame().size.height, 81.25 + GetParam().height);
}

constexpr auto kAutomatic = QavAlertActionLayout::automatic;
INSTANTIATE_TEST_SUITE_P(Layouts, QavAlertControllerViewArea,
                         testing::Values(AreaCase{"AutomaticNone", kAutomatic, 0, 0},
                                         AreaCase{"AutomaticOne", kAutomatic, 1, 44},
                                         AreaCase{"AutomaticTwo", kAutomatic, 2, 44},
                                         AreaCase{"AutomaticThree", kAutomatic, 3, 132},
                                         AreaCase{"AutomaticFour", kAutomatic, 4, 176},
                                         AreaCase{"AutomaticFive", kAutomatic, 5, 220},
                                         AreaCase{"HorizontalNone", kHorizontal, 0, 44},
                                         AreaCase{"HorizontalOne", kHorizontal, 1, 44},
                                         AreaCase{"HorizontalTwo", kHorizontal, 2, 44},
                                         AreaCase{"HorizontalThree", kHorizontal, 3, 44},
                                         AreaCase{"HorizontalFive", kHorizontal, 5, 44},
                                         AreaCase{"VerticalNone", kVertical, 0, 0},
                                         AreaCase{"VerticalOne", kVertical, 1, 44},
                                         AreaCase{"VerticalTwo", kVertical, 2, 88},
                                         AreaCase{"VerticalFive", kVertical, 5, 220}),
                         [](const auto& test) { return test.param.name; });

TEST_F(QavAlertControllerViewTest, LongMessageIsCappedAndScrollsAboveVisibleButtons) {
  // 60 words on 10 lines of the message, at most 36 characters each.
  std::string message;
  for (int i = 0; i < 60; ++i) message += "words ";
  make("Title", message);
  window->setFrame({{0, 0}, {320, 200}});
  show(2);
  EXPECT_EQ(panel(), (CGRect{{25, 3}, {270, 194}}));
  EXPECT_EQ(texts(), (CGRect{{0, 0}, {270, 150}}));
  EXPECT_EQ(buttons(), (CGRect{{0, 150}, {270, 44}}));
  const auto& scroll = *card->scrollView();
  EXPECT_EQ(scroll.contentSize().width, 270);
  EXPECT_EQ(scroll.contentSize().height, scroll.intrinsicContentSize().height);
  EXPECT_GT(scroll.contentSize().height, 200);
  card->scrollView()->setContentOffset({0, 1000});
  EXPECT_EQ(scroll.contentOffset().y, scroll.contentSize().height - 150);
}

TEST_F(QavAlertControllerViewTest, ContentStandsBetweenTextsAndButtons) {
  const auto content = std::make_shared<QavIntrinsicallySizedView>();
  content->setTranslatesAutoresizingMaskIntoConstraints(false);
  const auto picture = std::make_shared<UIView>();
  picture->setFrame({{10, 0}, {50, 30}});
  content->addSubview(picture);
  card->setContentView(content);
  show(2);
  EXPECT_EQ(card->contentView(), content);
  EXPECT_EQ(content->frame(), (CGRect{{0, 81.25}, {270, 30}}));
  EXPECT_EQ(buttons().origin.y, 111.25);
  EXPECT_EQ(panel().size.height, 155.25);
  EXPECT_EQ(card->maximumHeightConstraint()->constant(), 430);
  picture->setFrame({{10, 0}, {50, 40}});
  window->layoutIfNeeded();
  EXPECT_EQ(content->frame().size.height, 40);
  EXPECT_EQ(panel().size.height, 165.25);
}

TEST_F(QavAlertControllerViewTest, ContentWithoutSubviewsIsNotShown) {
  const auto content = std::make_shared<QavIntrinsicallySizedView>();
  card->setContentView(content);
  show(2);
  EXPECT_EQ(content->superview(), nullptr);
  EXPECT_THAT(card->visualEffectView()->contentView()->subviews(),
              ElementsAre(UIViewRef(card->scrollView()), UIViewRef(card->actionsCollectionView())));
}

TEST_F(QavAlertControllerViewTest, TextFieldsStandBelowTheMessage) {
  const auto style = card->visualStyle();
  const auto field = std::make_shared<UITextField>();
  field->setFont(style->textFieldFont());
  const auto table = QavAlertTextFieldTableView::withTextFields({field}, style);
  card->showTextFieldView(table);
  show(2);
  EXPECT_EQ(card->scrollView()->textFieldView(), table);
  // The row takes 25.25 points, 12 remain below it.
  EXPECT_EQ(table->frame(), (CGRect{{16, 78}, {238, 37.25}}));
  EXPECT_EQ(texts().size.height, 115.25);
}

TEST_F(QavAlertControllerViewTest, ATitleSetLaterIsLaidOut) {
  show(2);
  card->setTitle(attributed("A title of more than one line, certainly"));
  window->layoutIfNeeded();
  EXPECT_EQ(texts().size.height, 81.25 + 21.25);
}

TEST_F(QavAlertControllerViewTest, LayoutSettlesSoonAndThenRests) {
  make("A title of more than one line, certainly", std::string(200, 'm'));
  card->showTextFieldView(QavAlertTextFieldTableView::withTextFields(
      {std::make_shared<UITextField>(), std::make_shared<UITextField>()}, card->visualStyle()));
  int passes = 0;
  const auto subscription = card->scrollView()->observeLayout([&] { ++passes; });
  show(3);
  EXPECT_GT(passes, 0);
  EXPECT_LT(passes, 10);
  passes = 0;
  const FakeRenderer renderer(*window);
  window->layoutIfNeeded();
  EXPECT_EQ(passes, 0);
  EXPECT_EQ(renderer.scheduled, 0);
}

TEST_F(QavAlertControllerViewTest, LeavesNothingBehind) {
  show(3);
  const std::weak_ptr<UIView> gone = card;
  const std::weak_ptr<UIView> cell = button(0);
  const std::weak_ptr<UIView> scroll = card->scrollView();
  card->removeFromSuperview();
  card.reset();
  EXPECT_TRUE(gone.expired());
  EXPECT_TRUE(cell.expired());
  EXPECT_TRUE(scroll.expired());
  actions.front()->setEnabled(false);  // tells nobody
}

}  // namespace
}  // namespace kindora
