// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/card/QavAlertControllerScrollView.h"

#include <gtest/gtest.h>

#include <string>

#include "alerts/card/QavAlertControllerDefaultVisualStyle.h"
#include "platform/fakes/FakeViewServices.h"

namespace kindora {
namespace {

// 270 points wide, as high as its content.
class QavAlertControllerScrollViewTest : public testing::Test {
 protected:
  QavAlertControllerScrollViewTest() {
    view->setTranslatesAutoresizingMaskIntoConstraints(false);
    window->addSubview(view);
    qav_alignEdgesWithSuperview(view, UIRectEdge::top | UIRectEdge::left);
    qav_pinWidth(view, 270);
  }
  void lay(const std::string& title, const std::string& message) {
    view->titleLabel()->setText(title);
    view->messageLabel()->setText(message);
    window->layoutIfNeeded();
  }
  [[nodiscard]] static double baselineOf(const UILabel& label) {
    return label.frame().origin.y + label.firstBaselineFromTop();
  }
  [[nodiscard]] static double lastBaselineOf(const UILabel& label) {
    return label.frame().origin.y + label.frame().size.height - label.lastBaselineFromBottom();
  }
  [[nodiscard]] std::shared_ptr<UITextField> field() const {
    auto made = std::make_shared<UITextField>();
    made->setFont(style->textFieldFont());
    return made;
  }

  const FakeViewServices fakes = installFakeViewServices();
  const UIViewRef window = std::make_shared<UIView>();
  const std::shared_ptr<QavAlertControllerVisualStyle> style =
      std::make_shared<QavAlertControllerDefaultVisualStyle>();
  const std::shared_ptr<QavAlertControllerScrollView> view =
      QavAlertControllerScrollView::withVisualStyle(style);
};

TEST_F(QavAlertControllerScrollViewTest, LabelsHaveTheStylesFonts) {
  EXPECT_EQ(view->titleLabel()->font(), UIFont::boldSystemFontOfSize(17));
  EXPECT_EQ(view->messageLabel()->font(), UIFont::systemFontOfSize(13));
}

TEST_F(QavAlertControllerScrollViewTest, TextsStandByTheirBaselines) {
  lay("Title", "Message");
  EXPECT_EQ(view->titleLabel()->frame(), (CGRect{{16, 19}, {238, 21.25}}));
  EXPECT_EQ(baselineOf(*view->titleLabel()), 36);
  EXPECT_EQ(view->messageLabel()->frame(), (CGRect{{16, 41}, {238, 16.25}}));
  EXPECT_EQ(baselineOf(*view->messageLabel()), 54);
}

TEST_F(QavAlertControllerScrollViewTest, IsAsHighAsItsTextsAndTheSpaceBelow) {
  lay("Title", "Message");
  EXPECT_EQ(view->intrinsicContentSize(), (CGSize{kNoIntrinsicMetric, 81.25}));
  EXPECT_EQ(view->frame(), (CGRect{{0, 0}, {270, 81.25}}));
  EXPECT_EQ(view->contentSize(), (CGSize{270, 81.25}));
}

TEST_F(QavAlertControllerScrollViewTest, MessageStandsBelowTheLastLineOfTheTitle) {
  lay("A title that takes no less than three lines, at 28 characters a line", "Message");
  EXPECT_EQ(view->titleLabel()->frame().size.height, 3 * 21.25);
  EXPECT_EQ(baselineOf(*view->titleLabel()), 36);
  EXPECT_EQ(lastBaselineOf(*view->titleLabel()), 36 + 2 * 21.25);
  EXPECT_EQ(baselineOf(*view->messageLabel()), 54 + 2 * 21.25);
}

TEST_F(QavAlertControllerScrollViewTest, AnEmptyTitleHasBothBaselinesAtItsTop) {
  lay("", "Message");
  EXPECT_EQ(view->titleLabel()->frame(), (CGRect{{16, 36}, {238, 0}}));
  EXPECT_EQ(baselineOf(*view->messageLabel()), 54);
}

TEST_F(QavAlertControllerScrollViewTest, WithoutTextsTheSpacesRemain) {
  lay("", "");
  EXPECT_EQ(view->frame().size.height, 36 + 18 + 24);
}

TEST_F(QavAlertControllerScrollViewTest, TextFieldsStandBelowTheLastLineOfTheMessage) {
  const auto table = QavAlertTextFieldTableView::withTextFields({field(), field()}, style);
  view->setTextFieldView(table);
  lay("Title", "A message that takes more than one line of 36 characters");
  EXPECT_EQ(lastBaselineOf(*view->messageLabel()), 54 + 16.25);
  // Two rows of 25.25 points and 12 below them.
  EXPECT_EQ(table->frame(), (CGRect{{16, 94.25}, {238, 62.5}}));
  EXPECT_EQ(view->frame().size.height, 156.75);
  EXPECT_EQ(table->cells().back()->frame(), (CGRect{{0, 25.25}, {238, 25.25}}));
}

TEST_F(QavAlertControllerScrollViewTest, FollowsAFieldThatGrows) {
  const auto grows = field();
  const auto table = QavAlertTextFieldTableView::withTextFields({grows, field()}, style);
  view->setTextFieldView(table);
  lay("Title", "Message");
  const double before = view->frame().size.height;
  grows->setFont(UIFont::systemFontOfSize(33));
  window->layoutIfNeeded();
  EXPECT_EQ(table->cells().front()->frame().size.height, 50.25);
  EXPECT_EQ(table->cells().back()->frame().origin.y, 50.25);
  EXPECT_EQ(view->frame().size.height, before + 25);
}

TEST_F(QavAlertControllerScrollViewTest, TextFieldsMayBeTakenAwayAgain) {
  const auto table = QavAlertTextFieldTableView::withTextFields({field()}, style);
  view->setTextFieldView(table);
  lay("Title", "Message");
  view->setTextFieldView(nullptr);
  window->layoutIfNeeded();
  EXPECT_EQ(table->superview(), nullptr);
  EXPECT_EQ(view->frame().size.height, 81.25);
}

TEST_F(QavAlertControllerScrollViewTest, AnotherStyleTakesThePlaceOfTheFirst) {
  struct Airy final : QavAlertControllerDefaultVisualStyle {
    [[nodiscard]] double messageLabelBottomSpacing() const override { return 44; }
    [[nodiscard]] UIEdgeInsets contentPadding() const override { return {40, 30, 12, 10}; }
  };
  lay("Title", "Message");
  view->setVisualStyle(std::make_shared<Airy>());
  window->layoutIfNeeded();
  EXPECT_EQ(view->titleLabel()->frame(), (CGRect{{30, 23}, {230, 21.25}}));
  EXPECT_EQ(view->frame().size.height, 81.25 + 4 + 20);
}

TEST_F(QavAlertControllerScrollViewTest, LabelsAreCentredAndBreakLinesAtTheirWidth) {
  lay("Title", "A message that takes more than one line of 36 characters");
  for (const auto& label : {view->titleLabel(), view->messageLabel()}) {
    EXPECT_EQ(label->textAlignment(), NSTextAlignment::center);
    EXPECT_EQ(label->numberOfLines(), 0);
    EXPECT_EQ(label->preferredMaxLayoutWidth(), 238);
  }
  EXPECT_EQ(view->messageLabel()->frame().size.height, 32.5);
}

}  // namespace
}  // namespace kindora
