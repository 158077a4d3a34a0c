// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/helpers/QavAutoLayout.h"

#include "tests/alerts/helpers/HelpersFixture.h"

namespace kindora {
namespace {

class QavAutoLayoutTest : public HelpersFixture, public ::testing::Test {
 protected:
  [[nodiscard]] bool nothingIsInstalled() const {
    for (const UIViewRef& holder : {window, box, view, other, inner, stranger}) {
      if (!holder->constraints().empty()) return false;
    }
    return true;
  }
};

TEST_F(QavAutoLayoutTest, TheCommonAncestorIsTheViewThatHoldsTheOther) {
  EXPECT_EQ(qav_commonAncestorWithView(view, inner), view);
  EXPECT_EQ(qav_commonAncestorWithView(inner, view), view);
  EXPECT_EQ(qav_commonAncestorWithView(window, inner), window);
  EXPECT_EQ(qav_commonAncestorWithView(inner, window), window);
}

TEST_F(QavAutoLayoutTest, TheCommonAncestorOfAViewWithItselfIsTheView) {
  EXPECT_EQ(qav_commonAncestorWithView(view, view), view);
}

TEST_F(QavAutoLayoutTest, TheCommonAncestorIsTheNearestAboveBoth) {
  EXPECT_EQ(qav_commonAncestorWithView(view, other), box);
  EXPECT_EQ(qav_commonAncestorWithView(inner, other), box);
  EXPECT_EQ(qav_commonAncestorWithView(other, inner), box);
}

TEST_F(QavAutoLayoutTest, ViewsThatNothingHoldsHaveNoCommonAncestor) {
  EXPECT_EQ(qav_commonAncestorWithView(view, stranger), nullptr);
  EXPECT_EQ(qav_commonAncestorWithView(stranger, view), nullptr);
  EXPECT_EQ(qav_commonAncestorWithView(view, nullptr), nullptr);
}

TEST_F(QavAutoLayoutTest, WithoutACommonAncestorAConstraintIsMadeAndInstalledNowhere) {
  const auto constraint = qav_alignBaselineWithView(view, stranger, 3);
  ASSERT_TRUE(constraint);
  EXPECT_EQ(constraint->secondItem(), stranger);
  EXPECT_EQ(constraint->owner(), nullptr);
  EXPECT_TRUE(nothingIsInstalled());
}

TEST_F(QavAutoLayoutTest, WithoutASuperviewNothingThatSpeaksOfItIsMade) {
  EXPECT_TRUE(qav_alignEdgesWithSuperview(stranger, UIRectEdge::all).empty());
  EXPECT_TRUE(qav_centerInSuperview(stranger).empty());
  EXPECT_TRUE(qav_centerInSuperviewWithOffset(stranger, {1, 1}).empty());
  EXPECT_EQ(qav_horizontallyCenterInSuperview(stranger), nullptr);
  EXPECT_EQ(qav_verticallyCenterInSuperview(stranger), nullptr);
  EXPECT_EQ(qav_setMaximumWidthToSuperviewWidth(stranger), nullptr);
  EXPECT_EQ(qav_setMaximumHeightToSuperviewHeight(stranger), nullptr);
  EXPECT_TRUE(nothingIsInstalled());
}

TEST_F(QavAutoLayoutTest, AConstraintBetweenAViewAndWhatLiesInItIsInstalledOnTheView) {
  EXPECT_EQ(qav_pinWidthToWidthOfView(view, inner)->owner(), view);
  EXPECT_EQ(qav_pinWidthToWidthOfView(inner, view)->owner(), view);
}

TEST_F(QavAutoLayoutTest, WhatIsNotOneEdgeIsNoAttribute) {
  for (const unsigned edge : {0U, 3U, 5U, 6U, 7U, 9U, 10U, 12U, 15U, 16U, 32U, ~0U}) {
    EXPECT_EQ(qav_layoutAttributeFromRectEdge(UIRectEdge{edge}), NSLayoutAttribute::notAnAttribute)
        << edge;
  }
}

TEST_F(QavAutoLayoutTest, EachEdgeHasItsAttribute) {
  EXPECT_EQ(static_cast<int>(qav_layoutAttributeFromRectEdge(UIRectEdge{1})), 3);
  EXPECT_EQ(static_cast<int>(qav_layoutAttributeFromRectEdge(UIRectEdge{2})), 1);
  EXPECT_EQ(static_cast<int>(qav_layoutAttributeFromRectEdge(UIRectEdge{4})), 4);
  EXPECT_EQ(static_cast<int>(qav_layoutAttributeFromRectEdge(UIRectEdge{8})), 2);
}

TEST_F(QavAutoLayoutTest, WhatIsNotOneEdgeOnEitherSideMakesNoConstraint) {
  for (const unsigned number : {0U, 3U, 5U, 6U, 7U, 15U, 16U}) {
    const UIRectEdge edge{number};
    EXPECT_EQ(qav_alignEdge(view, edge, other), nullptr) << number;
    EXPECT_EQ(qav_alignEdge(view, edge, UIRectEdge::top, other, 1), nullptr) << number;
    EXPECT_EQ(qav_alignEdge(view, UIRectEdge::top, edge, other, 1), nullptr) << number;
  }
  EXPECT_TRUE(nothingIsInstalled());
}

TEST_F(QavAutoLayoutTest, EdgesAndAttributesHaveThePlatformsNumbers) {
  EXPECT_EQ(static_cast<unsigned>(UIRectEdge::top), 1U);
  EXPECT_EQ(static_cast<unsigned>(UIRectEdge::left), 2U);
  EXPECT_EQ(static_cast<unsigned>(UIRectEdge::bottom), 4U);
  EXPECT_EQ(static_cast<unsigned>(UIRectEdge::right), 8U);
  EXPECT_EQ(static_cast<unsigned>(UIRectEdge::all), 15U);
}

TEST_F(QavAutoLayoutTest, PositiveInsetsAtTheRightAndAtTheBottomLeadOutwards) {
  window->setFrame({{0, 0}, {300, 300}});
  qav_alignEdgesWithSuperview(box, UIRectEdge::all, {10, 20, 30, 40});
  window->setTranslatesAutoresizingMaskIntoConstraints(true);
  window->layoutIfNeeded();
  EXPECT_EQ(box->frame(), (CGRect{{20, 10}, {320, 320}}));
}

TEST_F(QavAutoLayoutTest, AReturnedConstraintCanBeChangedLater) {
  window->setTranslatesAutoresizingMaskIntoConstraints(true);
  window->setFrame({{0, 0}, {300, 300}});
  qav_alignEdgesWithSuperview(box, UIRectEdge::top | UIRectEdge::left);
  qav_pinHeight(box, 50);
  const auto width = qav_pinWidth(box, 100);
  window->layoutIfNeeded();
  EXPECT_EQ(box->frame().size, (CGSize{100, 50}));
  width->setConstant(70);
  window->layoutIfNeeded();
  EXPECT_EQ(box->frame().size, (CGSize{70, 50}));
}

}  // namespace
}  // namespace kindora
