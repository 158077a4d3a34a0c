// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include <algorithm>
#include <string>

#include "alerts/card/QavAlertControllerDefaultVisualStyle.h"
#include "alerts/card/QavAlertControllerSeparatorView.h"
#include "tests/alerts/card/CardFixture.h"

namespace kindora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class QavAlertControllerViewButtons : public CardFixture, public testing::Test {
 protected:
  [[nodiscard]] bool isSideBySide() const {
    return card->collectionViewLayout()->scrollDirection() ==
           UICollectionViewScrollDirection::horizontal;
  }
  // In the order in which they are drawn.
  [[nodiscard]] std::vector<CGRect> separatorFrames() const {
    std::vector<CGRect> frames;
    for (const auto& view : card->actionsCollectionView()->subviews()) {
      const auto* line = dynamic_cast<const QavAlertControllerSeparatorView*>(view.get());
      if (line != nullptr) frames.push_back(line->frame());
    }
    return frames;
  }
};

TEST_F(QavAlertControllerViewButtons, DirectionIsThatOfTheLayout) {
  show(3, kHorizontal);
  EXPECT_TRUE(isSideBySide());
  card->setActionLayout(kVertical);
  EXPECT_FALSE(isSideBySide());
}

TEST_F(QavAlertControllerViewButtons, AutomaticIsSideBySideForExactlyTwo) {
  for (int count = 0; count <= 5; ++count) {
    card->setActions(
        std::vector(static_cast<std::size_t>(count), QavAlertAction::actionWithTitle("Go", {})));
    card->setActionLayout(QavAlertActionLayout::automatic);
    EXPECT_EQ(isSideBySide(), count == 2) << count;
  }
}

TEST_F(QavAlertControllerViewButtons, DirectionCountsTheActionsOfThatMoment) {
  card->setActionLayout(QavAlertActionLayout::automatic);
  card->setActions(std::vector(2, QavAlertAction::actionWithTitle("Go", {})));
  EXPECT_FALSE(isSideBySide());
  card->setActionLayout(QavAlertActionLayout::automatic);
  EXPECT_TRUE(isSideBySide());
}

TEST_F(QavAlertControllerViewButtons, OneFillsTheWidth) {
  show(1);
  EXPECT_THAT(buttonFrames(), ElementsAre(CGRect{{0, 0}, {270, 44}}));
}

TEST_F(QavAlertControllerViewButtons, TwoShareTheWidth) {
  show(2);
  EXPECT_THAT(buttonFrames(), ElementsAre(CGRect{{0, 0}, {135, 44}}, CGRect{{135, 0}, {135, 44}}));
}

TEST_F(QavAlertControllerViewButtons, TwoStackedFillTheWidth) {
  show(2, kVertical);
  EXPECT_THAT(buttonFrames(), ElementsAre(CGRect{{0, 0}, {270, 44}}, CGRect{{0, 44}, {270, 44}}));
}

TEST_F(QavAlertControllerViewButtons, ThreeStandOneBelowAnotherWithoutGaps) {
  show(3);
  EXPECT_THAT(buttonFrames(), ElementsAre(CGRect{{0, 0}, {270, 44}}, CGRect{{0, 44}, {270, 44}},
                                          CGRect{{0, 88}, {270, 44}}));
}

TEST_F(QavAlertControllerViewButtons, FiveStandOneBelowAnother) {
  show(5);
  ASSERT_EQ(buttonFrames().size(), 5U);
  EXPECT_EQ(buttonFrames().back(), (CGRect{{0, 176}, {270, 44}}));
}

TEST_F(QavAlertControllerViewButtons, OneSideBySideFillsTheWidth) {
  show(1, kHorizontal);
  EXPECT_THAT(buttonFrames(), ElementsAre(CGRect{{0, 0}, {270, 44}}));
}

TEST_F(QavAlertControllerViewButtons, ThreeSideBySideFitExactly) {
  show(3, kHorizontal);
  EXPECT_THAT(buttonFrames(), ElementsAre(CGRect{{0, 0}, {90, 44}}, CGRect{{90, 0}, {90, 44}},
                                          CGRect{{180, 0}, {90, 44}}));
  EXPECT_EQ(card->actionsCollectionView()->contentSize(), (CGSize{270, 44}));
}

TEST_F(QavAlertControllerViewButtons, FourSideBySideKeepTheirLeastWidthAndScroll) {
  show(4, kHorizontal);
  EXPECT_THAT(buttonFrames(), ElementsAre(CGRect{{0, 0}, {90, 44}}, CGRect{{90, 0}, {90, 44}},
                                          CGRect{{180, 0}, {90, 44}}, CGRect{{270, 0}, {90, 44}}));
  const auto& row = card->actionsCollectionView();
  EXPECT_EQ(row->contentSize(), (CGSize{360, 44}));
  row->setContentOffset({500, 0});
  EXPECT_EQ(row->contentOffset().x, 90);
}

TEST_F(QavAlertControllerViewButtons, FollowAStyleOfItsOwn) {
  struct Narrow final : QavAlertControllerDefaultVisualStyle {
    [[nodiscard]] double minimumActionViewWidth() const override { return 20; }
    [[nodiscard]] double actionViewHeight() const override { return 50; }
  };
  card->setVisualStyle(std::make_shared<Narrow>());
  show(5, kHorizontal);
  EXPECT_EQ(buttonFrames().back(), (CGRect{{216, 0}, {54, 50}}));
}

// --- Lines ---

TEST_F(QavAlertControllerViewButtons, ALineLiesAboveEachStackedButton) {
  show(3);
  EXPECT_THAT(separatorFrames(),
              ElementsAre(CGRect{{0, 0}, {270, 0.5}}, CGRect{{0, 44}, {270, 0.5}},
                          CGRect{{0, 88}, {270, 0.5}}));
}

TEST_F(QavAlertControllerViewButtons, SideBySideALineDividesTheButtonsToo) {
  show(2);
  EXPECT_THAT(separatorFrames(),
              ElementsAre(CGRect{{0, 0}, {135, 0.5}}, CGRect{{135, 0}, {135, 0.5}},
                          CGRect{{135, 0}, {0.5, 44}}));
}

TEST_F(QavAlertControllerViewButtons, LinesAreDrawnAboveAllButtonsInTheStylesColour) {
  show(3);
  const auto& views = card->actionsCollectionView()->subviews();
  ASSERT_EQ(views.size(), 6U);
  const auto isLine = [](const auto& view) {
    return dynamic_cast<QavAlertControllerSeparatorView*>(view.get()) != nullptr;
  };
  EXPECT_TRUE(std::ranges::none_of(views.begin(), views.begin() + 3, isLine));
  EXPECT_TRUE(std::all_of(views.begin() + 3, views.end(), isLine));
  EXPECT_EQ(views.back()->state().backgroundColor, UIColor::colorWithWhite(0.5, 0.5));
  EXPECT_FALSE(views.back()->isUserInteractionEnabled());
}

// --- Pressing ---

TEST_F(QavAlertControllerViewButtons, ATapTellsTheDelegateTheAction) {
  show(3);
  tap(*button(1));
  EXPECT_EQ(delegate->card, card.get());
  EXPECT_THAT(delegate->performed, ElementsAre(actions[1]));
}

TEST_F(QavAlertControllerViewButtons, ATapMeansTheActionThatStandsThereNow) {
  show(2);
  const auto cell = button(0);
  const auto recognizer = cell->gestureRecognizer();
  std::swap(actions[0], actions[1]);
  card->setActions(actions);
  window->layoutIfNeeded();
  ASSERT_EQ(button(0), cell);
  EXPECT_NE(cell->gestureRecognizer(), recognizer);
  tap(*cell);
  EXPECT_THAT(delegate->performed, ElementsAre(actions[0]));
}

TEST_F(QavAlertControllerViewButtons, ATapOnACellThatHasLeftTellsNothing) {
  show(2);
  const auto cell = button(1);
  const auto recognizer = cell->gestureRecognizer();
  card->setActions({});
  window->layoutIfNeeded();
  recognizer->action(*cell);
  EXPECT_THAT(delegate->performed, IsEmpty());
}

TEST_F(QavAlertControllerViewButtons, NobodyIsToldWhenTheDelegateHasGone) {
  show(1);
  card->setDelegate(std::make_shared<Delegate>());
  tap(*button(0));
  EXPECT_THAT(delegate->performed, IsEmpty());
}

TEST_F(QavAlertControllerViewButtons, ARecogniserMayOutliveTheCard) {
  show(1);
  const auto cell = button(0);
  const auto recognizer = cell->gestureRecognizer();
  card->removeFromSuperview();
  card.reset();
  recognizer->action(*cell);
  EXPECT_THAT(delegate->performed, IsEmpty());
}

TEST_F(QavAlertControllerViewButtons, AButtonIsHighlightedWhileItIsPressed) {
  show(1);
  const auto cell = button(0);
  EXPECT_TRUE(cell->highlightedBackgroundView()->isHidden());
  cell->gestureRecognizer()->pressedChanged(*cell, true);
  EXPECT_FALSE(cell->highlightedBackgroundView()->isHidden());
  cell->gestureRecognizer()->pressedChanged(*cell, false);
  EXPECT_TRUE(cell->highlightedBackgroundView()->isHidden());
}

TEST_F(QavAlertControllerViewButtons, FollowTheirActionsWhileTheyAreShown) {
  show(3);
  actions[1]->setEnabled(false);
  EXPECT_TRUE(button(0)->isEnabled());
  EXPECT_FALSE(button(1)->isEnabled());
  tap(*button(1));
  EXPECT_THAT(delegate->performed, IsEmpty());
  actions[1]->setEnabled(true);
  EXPECT_TRUE(button(1)->isEnabled());
  tap(*button(1));
  EXPECT_THAT(delegate->performed, ElementsAre(actions[1]));
}

TEST_F(QavAlertControllerViewButtons, OneActionTwiceFollowsInBothPlaces) {
  actions = std::vector(2, QavAlertAction::actionWithTitle("Go", QavAlertActionStyle::standard));
  showActions();
  actions.front()->setEnabled(false);
  EXPECT_FALSE(button(0)->isEnabled());
  EXPECT_FALSE(button(1)->isEnabled());
}

TEST_F(QavAlertControllerViewButtons, AnActionDisabledBeforehandIsShownSo) {
  actions = {QavAlertAction::actionWithTitle("Go", QavAlertActionStyle::standard)};
  actions.front()->setEnabled(false);
  showActions();
  EXPECT_FALSE(button(0)->isEnabled());
  EXPECT_FALSE(button(0)->gestureRecognizer()->enabled);
}

TEST_F(QavAlertControllerViewButtons, AnActionWithoutATitleIsAnEmptyButtonThatWorks) {
  actions = {QavAlertAction::actionWithTitle(std::nullopt, QavAlertActionStyle::cancel)};
  showActions();
  EXPECT_EQ(button(0)->textLabel()->text(), std::nullopt);
  EXPECT_EQ(button(0)->accessibilityRole(), UIAccessibilityRole::button);
  EXPECT_EQ(button(0)->accessibilityLabel(), "");
  tap(*button(0));
  EXPECT_THAT(delegate->performed, ElementsAre(actions[0]));
}

}  // namespace
}  // namespace kindora
