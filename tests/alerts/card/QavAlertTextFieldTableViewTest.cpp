// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/card/QavAlertTextFieldTableView.h"

#include <gmock/gmock.h>

#include <memory>

#include "alerts/card/QavAlertControllerDefaultVisualStyle.h"
#include "platform/fakes/FakeViewServices.h"

namespace kindora {
namespace {

using testing::ElementsAre;

std::shared_ptr<UITextField> fieldOfSize(double points) {
  auto field = std::make_shared<UITextField>();
  field->setFont(UIFont::systemFontOfSize(points));
  return field;
}

class QavAlertTextFieldTableViewTest : public testing::Test {
 protected:
  const FakeViewServices fakes = installFakeViewServices();
  const std::shared_ptr<QavAlertControllerVisualStyle> style =
      std::make_shared<QavAlertControllerDefaultVisualStyle>();
};

TEST_F(QavAlertTextFieldTableViewTest, HasARowForEachFieldInOrder) {
  const auto first = fieldOfSize(13);
  const auto second = fieldOfSize(13);
  const auto table = QavAlertTextFieldTableView::withTextFields({first, second}, style);
  EXPECT_THAT(table->textFields(), ElementsAre(first, second));
  ASSERT_EQ(table->cells().size(), 2U);
  EXPECT_EQ(table->cells()[0]->textField(), first);
  EXPECT_EQ(table->cells()[1]->textField(), second);
  EXPECT_TRUE(table->cells()[1]->contains(*second));
}

TEST_F(QavAlertTextFieldTableViewTest, RowsAreNotPressed) {
  const auto table = QavAlertTextFieldTableView::withTextFields({fieldOfSize(13)}, style);
  EXPECT_EQ(table->cells().front()->tapGestureRecognizer(), nullptr);
  EXPECT_EQ(table->cells().front()->accessibilityRole(), UIAccessibilityRole::none);
}

TEST_F(QavAlertTextFieldTableViewTest, RowsStandOneBelowAnotherAtTheWidthOfTheTable) {
  const auto table =
      QavAlertTextFieldTableView::withTextFields({fieldOfSize(13), fieldOfSize(33)}, style);
  table->setFrame({{0, 0}, {238, 100}});
  table->layoutIfNeeded();
  EXPECT_EQ(table->cells()[0]->frame(), (CGRect{{0, 0}, {238, 25.25}}));
  EXPECT_EQ(table->cells()[1]->frame(), (CGRect{{0, 25.25}, {238, 50.25}}));
  EXPECT_EQ(table->requiredHeight(), 75.5);
}

TEST_F(QavAlertTextFieldTableViewTest, FieldStandsInsideBorderAndMargins) {
  const auto field = fieldOfSize(13);
  const auto table = QavAlertTextFieldTableView::withTextFields({field}, style);
  table->setFrame({{0, 0}, {238, 100}});
  table->layoutIfNeeded();
  // Half a point of border and four of margin; a line of 16.25.
  EXPECT_EQ(field->frame(), (CGRect{{4.5, 4.5}, {229, 16.25}}));
}

TEST_F(QavAlertTextFieldTableViewTest, BorderShowsAroundThePaper) {
  const auto table = QavAlertTextFieldTableView::withTextFields({fieldOfSize(13)}, style);
  table->setFrame({{0, 0}, {238, 100}});
  table->layoutIfNeeded();
  const auto& cell = *table->cells().front();
  EXPECT_EQ(cell.state().backgroundColor, style->textFieldBorderColor());
  const auto& paper = *cell.subviews().front();
  EXPECT_EQ(paper.frame(), (CGRect{{0.5, 0.5}, {237, 24.25}}));
  EXPECT_EQ(paper.state().backgroundColor, UIColor::whiteColor());
}

TEST_F(QavAlertTextFieldTableViewTest, UnequalMarginsMoveTheField) {
  struct Uneven final : QavAlertControllerDefaultVisualStyle {
    [[nodiscard]] UIEdgeInsets textFieldMargins() const override { return {10, 5, 6, 7}; }
  };
  const auto field = fieldOfSize(13);
  const auto table =
      QavAlertTextFieldTableView::withTextFields({field}, std::make_shared<Uneven>());
  table->setFrame({{0, 0}, {238, 100}});
  table->layoutIfNeeded();
  EXPECT_EQ(table->requiredHeight(), 33.25);
  EXPECT_EQ(field->frame(), (CGRect{{5.5, 10.5}, {225, 16.25}}));
}

TEST_F(QavAlertTextFieldTableViewTest, ARowIsNotLowerThanTheEstimate) {
  const auto table = QavAlertTextFieldTableView::withTextFields({fieldOfSize(4)}, style);
  EXPECT_EQ(table->cells().front()->requiredHeight(), 25);
}

TEST_F(QavAlertTextFieldTableViewTest, WithoutFieldsTakesNothing) {
  EXPECT_EQ(QavAlertTextFieldTableView::withTextFields({}, style)->requiredHeight(), 0);
}

}  // namespace
}  // namespace kindora
