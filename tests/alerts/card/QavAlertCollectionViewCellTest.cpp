// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/card/QavAlertCollectionViewCell.h"

#include <gtest/gtest.h>

#include <memory>

#include "alerts/card/QavAlertControllerDefaultVisualStyle.h"
#include "platform/fakes/FakeViewServices.h"

namespace kindora {
namespace {

class QavAlertCollectionViewCellTest : public testing::Test {
 protected:
  void update(const QavAlertActionRef& shown) { cell->updateWithAction(*shown, style); }
  [[nodiscard]] bool showsHighlight() const {
    return !cell->highlightedBackgroundView()->isHidden();
  }
  const FakeViewServices fakes = installFakeViewServices();
  const QavAlertControllerDefaultVisualStyle style;
  const std::shared_ptr<QavAlertCollectionViewCell> cell = QavAlertCollectionViewCell::make();
  const QavAlertActionRef action =
      QavAlertAction::actionWithTitle("Delete", QavAlertActionStyle::destructive);
};

TEST_F(QavAlertCollectionViewCellTest, ShowsTheTitleInTheStylesFontAndColour) {
  update(action);
  EXPECT_EQ(cell->textLabel()->text(), "Delete");
  EXPECT_EQ(cell->textLabel()->textColor(), UIColor::redColor());
  EXPECT_EQ(cell->textLabel()->font(), UIFont::systemFontOfSize(17));
  EXPECT_EQ(cell->textLabel()->textAlignment(), NSTextAlignment::center);
  update(QavAlertAction::actionWithTitle("Keep", QavAlertActionStyle::cancel));
  EXPECT_EQ(cell->textLabel()->text(), "Keep");
  EXPECT_EQ(cell->textLabel()->font(), UIFont::boldSystemFontOfSize(17));
}

TEST_F(QavAlertCollectionViewCellTest, ShowsTheAttributedTitleWhereThereIsOne) {
  const NSAttributedString title("Go", {.foregroundColor = UIColor::yellowColor()});
  update(QavAlertAction::actionWithAttributedTitle(title, QavAlertActionStyle::standard));
  EXPECT_EQ(cell->textLabel()->attributedText(), title);
  EXPECT_EQ(cell->accessibilityLabel(), "Go");
  update(action);
  EXPECT_EQ(cell->textLabel()->attributedText(), std::nullopt);
}

TEST_F(QavAlertCollectionViewCellTest, IsReadAsAButtonWithItsTitle) {
  update(action);
  EXPECT_EQ(cell->accessibilityRole(), UIAccessibilityRole::button);
  EXPECT_EQ(cell->accessibilityLabel(), "Delete");
}

TEST_F(QavAlertCollectionViewCellTest, TitleStandsInTheMiddleAndHighlightFillsTheButton) {
  update(action);
  cell->setFrame({{0, 0}, {135, 44}});
  cell->layoutIfNeeded();
  EXPECT_EQ(cell->textLabel()->frame(), (CGRect{{8, 11.375}, {119, 21.25}}));
  EXPECT_EQ(cell->highlightedBackgroundView()->frame(), (CGRect{{0, 0}, {135, 44}}));
  EXPECT_EQ(cell->subviews().back(), cell->textLabel());
}

TEST_F(QavAlertCollectionViewCellTest, GetsAFreshHighlightWithEachAction) {
  update(action);
  const auto first = cell->highlightedBackgroundView();
  update(action);
  EXPECT_NE(cell->highlightedBackgroundView(), first);
  EXPECT_EQ(first->superview(), nullptr);
  EXPECT_EQ(cell->subviews().size(), 2U);
}

TEST_F(QavAlertCollectionViewCellTest, AnUpdateWhilePressedKeepsTheHighlight) {
  update(action);
  cell->setHighlighted(true, false);
  update(action);
  EXPECT_TRUE(showsHighlight());
}

TEST_F(QavAlertCollectionViewCellTest, HighlightShowsOnlyWhileEnabled) {
  update(action);
  EXPECT_FALSE(showsHighlight());
  cell->setHighlighted(true, false);
  EXPECT_TRUE(showsHighlight());
  cell->setEnabled(false);
  EXPECT_FALSE(showsHighlight());
  cell->setEnabled(true);
  EXPECT_TRUE(showsHighlight());
  cell->setHighlighted(false, false);
  EXPECT_FALSE(showsHighlight());
}

TEST_F(QavAlertCollectionViewCellTest, DisablingGreysTheTitleAndStopsTaps) {
  update(action);
  const auto recognizer = std::make_shared<UITapGestureRecognizer>();
  cell->setGestureRecognizer(recognizer);
  int changes = 0;
  const auto subscription = cell->observe([&] { ++changes; });
  cell->setEnabled(false);
  EXPECT_FALSE(cell->textLabel()->isEnabled());
  EXPECT_FALSE(recognizer->enabled);
  EXPECT_GT(changes, 0);
  cell->setEnabled(true);
  EXPECT_TRUE(cell->textLabel()->isEnabled());
  EXPECT_TRUE(recognizer->enabled);
}

TEST_F(QavAlertCollectionViewCellTest, ANewRecogniserTakesThePlaceOfTheOldAndHeedsEnabled) {
  update(action);
  cell->setGestureRecognizer(std::make_shared<UITapGestureRecognizer>());
  cell->setEnabled(false);
  const auto second = std::make_shared<UITapGestureRecognizer>();
  cell->setGestureRecognizer(second);
  EXPECT_EQ(cell->tapGestureRecognizer(), second);
  EXPECT_FALSE(second->enabled);
}

TEST_F(QavAlertCollectionViewCellTest, ComesBackWithoutHighlightAndRecogniser) {
  update(action);
  cell->setGestureRecognizer(std::make_shared<UITapGestureRecognizer>());
  cell->setHighlighted(true, false);
  cell->prepareForReuse();
  EXPECT_FALSE(cell->isHighlighted());
  EXPECT_EQ(cell->gestureRecognizer(), nullptr);
}

}  // namespace
}  // namespace kindora
