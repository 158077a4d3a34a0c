// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/LayoutEngine.h"

#include <gmock/gmock.h>

#include "tests/toolkit/view/FakeRenderer.h"
#include "tests/toolkit/view/LayoutFixture.h"
#include "toolkit/view/UILabel.h"

namespace kindora {
namespace {

using Attribute = NSLayoutAttribute;
using Relation = NSLayoutRelation;

class LayoutEngineTest : public LayoutFixture, public ::testing::Test {
 protected:
  ~LayoutEngineTest() override { LayoutEngine::leftOut() = {}; }

  static NSLayoutConstraintRef size(const UIViewRef& view, Attribute attribute, double points,
                                    Relation relation = Relation::equal) {
    return hold(
        view,
        {.firstItem = view, .firstAttribute = attribute, .relation = relation, .constant = points});
  }
  NSLayoutConstraintRef same(const UIViewRef& view, Attribute attribute, const UIViewRef& other,
                             double constant = 0) {
    return hold(root, {.firstItem = view,
                       .firstAttribute = attribute,
                       .secondItem = other,
                       .secondAttribute = attribute,
                       .constant = constant});
  }
};

TEST_F(LayoutEngineTest, PlacesAViewBetweenTheEdgesOfItsSuperview) {
  const auto view = placed(root);
  same(view, Attribute::left, root, 16);
  same(view, Attribute::right, root, -16);
  same(view, Attribute::top, root, 20);
  size(view, Attribute::height, 44);
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame(), (CGRect{{16, 20}, {288, 44}}));
}

TEST_F(LayoutEngineTest, AViewWithoutConstraintsKeepsItsFrame) {
  const auto view = placed(root);
  view->setFrame({{1, 2}, {3, 4}});
  size(placed(root), Attribute::width, 10);
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame(), (CGRect{{1, 2}, {3, 4}}));
}

TEST_F(LayoutEngineTest, AViewWhoseConstraintsHaveGoneKeepsTheFrameThatTheyGave) {
  const auto view = placed(root);
  const auto width = size(view, Attribute::width, 10);
  root->layoutIfNeeded();
  view->removeConstraint(width);
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().size.width, 10);
}

TEST_F(LayoutEngineTest, AGivenFrameHoldsAgainstConstraints) {
  const auto given = framed({{10, 20}, {100, 50}});
  root->addSubview(given);
  const auto view = placed(root);
  same(view, Attribute::right, given, 5);
  size(view, Attribute::width, 30);
  size(given, Attribute::width, 7);
  root->layoutIfNeeded();
  EXPECT_EQ(given->frame(), (CGRect{{10, 20}, {100, 50}}));
  EXPECT_EQ(view->frame().origin.x, 85);
  given->setFrame({{20, 20}, {100, 50}});
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().origin.x, 95);
}

TEST_F(LayoutEngineTest, FramesAreInTheSuperviewsSpaceHoweverDeepTheViewsLie) {
  const auto box = framed({{100, 100}, {80, 80}});
  root->addSubview(box);
  const auto inner = placed(box);
  const auto outer = placed(root);
  size(outer, Attribute::width, 10);
  same(outer, Attribute::left, root, 120);
  same(inner, Attribute::left, outer, 3);
  size(inner, Attribute::width, 5);
  root->layoutIfNeeded();
  EXPECT_EQ(outer->frame().origin.x, 120);
  EXPECT_EQ(inner->frame().origin.x, 23);
}

TEST_F(LayoutEngineTest, FollowsAChangedConstantAndAChangedSuperview) {
  const auto view = placed(root);
  const auto left = same(view, Attribute::left, root, 10);
  same(view, Attribute::right, root);
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().size.width, 310);
  left->setConstant(20);
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().size.width, 300);
  root->setFrame({{0, 0}, {200, 480}});
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().size.width, 180);
}

TEST_F(LayoutEngineTest, ALabelIsAsLargeAsItsTextAndGivesWayToWhatIsRequired) {
  const auto label = std::make_shared<UILabel>();
  placed(root, label);
  label->setFont(UIFont::systemFontOfSize(20));
  label->setText("12345");
  same(label, Attribute::left, root);
  same(label, Attribute::top, root);
  root->layoutIfNeeded();
  EXPECT_EQ(label->frame(), (CGRect{{0, 0}, {50, 25}}));
  label->setText("123");
  root->layoutIfNeeded();
  EXPECT_EQ(label->frame().size.width, 30);
  size(label, Attribute::width, 12);
  root->layoutIfNeeded();
  EXPECT_EQ(label->frame().size.width, 12);
}

TEST_F(LayoutEngineTest, BaselinesStandWhereTheTextDoes) {
  const auto title = std::make_shared<UILabel>();
  const auto message = std::make_shared<UILabel>();
  placed(root, title)->setName("title");
  placed(root, message);
  title->setFont(UIFont::systemFontOfSize(20));
  message->setFont(UIFont::systemFontOfSize(10));
  title->setText("Title");
  message->setText("Message");
  same(title, Attribute::left, root);
  same(message, Attribute::left, root);
  hold(root, {.firstItem = title,
              .firstAttribute = Attribute::firstBaseline,
              .secondItem = root,
              .secondAttribute = Attribute::top,
              .constant = 36});
  hold(root, {.firstItem = message,
              .firstAttribute = Attribute::firstBaseline,
              .secondItem = title,
              .secondAttribute = Attribute::baseline,
              .constant = 18});
  root->layoutIfNeeded();
  EXPECT_EQ(title->frame().origin.y, 16);
  EXPECT_EQ(message->frame().origin.y, 44);
  title->setNumberOfLines(0);
  title->setText("Title\nin two lines");
  root->layoutIfNeeded();
  EXPECT_EQ(message->frame().origin.y, 69);
  title->setText("");
  root->layoutIfNeeded();
  EXPECT_EQ(title->frame().origin.y, 36);
  EXPECT_EQ(message->frame().origin.y, 44);
}

TEST_F(LayoutEngineTest, OfTwoRequiredThatContradictTheLaterIsLeftOutAndReportedOnce) {
  std::vector<std::string> reports;
  LayoutEngine::leftOut() = [&](const NSLayoutConstraint& constraint) {
    reports.push_back(constraint.description());
  };
  const auto view = placed(root);
  view->setName("box");
  const auto first = size(view, Attribute::width, 10);
  size(view, Attribute::width, 20);
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().size.width, 10);
  root->setFrame({{0, 0}, {100, 100}});
  root->layoutIfNeeded();
  EXPECT_THAT(reports, ::testing::ElementsAre("box.width = 20"));
  view->removeConstraint(first);
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().size.width, 20);
}

TEST_F(LayoutEngineTest, AConstantThatContradictsIsLeftOutUntilItFits) {
  LayoutEngine::leftOut() = {};
  const auto view = placed(root);
  size(view, Attribute::width, 10, Relation::lessThanOrEqual);
  const auto width = size(view, Attribute::width, 5);
  root->layoutIfNeeded();
  width->setConstant(50);
  root->layoutIfNeeded();
  EXPECT_LE(view->frame().size.width, 10);
  width->setConstant(7);
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().size.width, 7);
}

TEST_F(LayoutEngineTest, AGivenFrameThatContradictsWinsOverWhatWasRequired) {
  LayoutEngine::leftOut() = {};
  const auto view = placed(root);
  same(view, Attribute::left, root, 10);
  same(view, Attribute::right, root, -10);
  size(view, Attribute::width, 100, Relation::greaterThanOrEqual);
  root->layoutIfNeeded();
  root->setFrame({{0, 0}, {50, 480}});
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame(), (CGRect{{10, 0}, {30, 0}}));
  root->setFrame({{0, 0}, {320, 480}});
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().size.width, 300);
}

TEST_F(LayoutEngineTest, RemovingAViewRemovesTheConstraintsThatMentionIt) {
  const auto box = placed(root);
  const auto view = placed(box);
  const auto other = placed(root);
  same(view, Attribute::left, root, 5);
  same(other, Attribute::left, view, 5);
  const auto own = size(view, Attribute::width, 9);
  root->layoutIfNeeded();
  EXPECT_EQ(other->frame().origin.x, 10);
  box->removeFromSuperview();
  EXPECT_TRUE(root->constraints().empty());
  EXPECT_EQ(own->owner(), view);
  root->layoutIfNeeded();
  EXPECT_EQ(other->frame().origin.x, 10);
}

TEST_F(LayoutEngineTest, ATreeThatJoinsAnotherBringsItsConstraintsAlong) {
  const auto box = std::make_shared<UIView>();
  const auto view = placed(box);
  size(view, Attribute::width, 9);
  box->layoutIfNeeded();
  placed(root, box);
  same(box, Attribute::left, root, 30);
  hold(box, {.firstItem = box,
             .firstAttribute = Attribute::width,
             .secondItem = view,
             .secondAttribute = Attribute::width,
             .multiplier = 2});
  root->layoutIfNeeded();
  EXPECT_EQ(box->frame(), (CGRect{{30, 0}, {18, 0}}));
}

TEST_F(LayoutEngineTest, AViewThatWasInAnotherTreeMeanwhileIsSeenAsItIs) {
  const auto label = std::make_shared<UILabel>();
  label->setFont(UIFont::systemFontOfSize(16));
  label->setText("12345");
  placed(root, label);
  same(label, Attribute::left, root, 5);
  root->layoutIfNeeded();
  EXPECT_EQ(label->frame().size.width, 40);
  const auto elsewhere = framed({{0, 0}, {100, 100}});
  elsewhere->addSubview(label);
  hold(elsewhere, {.firstItem = label,
                   .firstAttribute = Attribute::left,
                   .secondItem = elsewhere,
                   .secondAttribute = Attribute::left});
  elsewhere->layoutIfNeeded();
  label->setText("1234567890");
  elsewhere->layoutIfNeeded();
  EXPECT_EQ(label->frame().size.width, 80);
  root->addSubview(label);
  same(label, Attribute::left, root, 5);
  root->layoutIfNeeded();
  EXPECT_EQ(label->frame(), (CGRect{{5, 0}, {80, 20}}));
}

TEST_F(LayoutEngineTest, AViewThatLeavesATreeSchedulesItsOwnLayoutAgain) {
  const auto box = std::make_shared<UIView>();
  box->setNeedsLayout();  // before anybody listens
  root->addSubview(box);
  root->layoutIfNeeded();
  box->removeFromSuperview();
  box->layoutIfNeeded();
  const FakeRenderer renderer(*box);
  box->setNeedsLayout();
  EXPECT_EQ(renderer.scheduled, 1);
}

TEST_F(LayoutEngineTest, ChangingTheOrderOfSubviewsKeepsTheConstraints) {
  const auto view = placed(root);
  placed(root);
  same(view, Attribute::left, root, 5);
  root->addSubview(view);
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().origin.x, 5);
  EXPECT_EQ(root->subviews().back(), view);
}

TEST_F(LayoutEngineTest, ConstraintsGiveAFreeTopmostViewItsSize) {
  const auto card = std::make_shared<UIView>();
  card->setTranslatesAutoresizingMaskIntoConstraints(false);
  const auto row = placed(card);
  size(row, Attribute::height, 44);
  size(card, Attribute::width, 270);
  hold(card, {.firstItem = row,
              .firstAttribute = Attribute::bottom,
              .secondItem = card,
              .secondAttribute = Attribute::bottom});
  hold(card, {.firstItem = row,
              .firstAttribute = Attribute::top,
              .secondItem = card,
              .secondAttribute = Attribute::top});
  card->layoutIfNeeded();
  EXPECT_EQ(card->frame().size, (CGSize{270, 44}));
}

TEST_F(LayoutEngineTest, TheSwitchBetweenGivenAndConstrainedTakesEffect) {
  const auto view = framed({{7, 7}, {7, 7}});
  root->addSubview(view);
  same(view, Attribute::left, root, 40);
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().origin.x, 7);
  view->setTranslatesAutoresizingMaskIntoConstraints(false);
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().origin.x, 40);
  view->setTranslatesAutoresizingMaskIntoConstraints(true);
  view->setFrame({{8, 8}, {8, 8}});
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().origin.x, 8);
}

TEST_F(LayoutEngineTest, NoSizeFallsBelowNothing) {
  const auto view = placed(root);
  size(view, Attribute::height, -20);
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().size.height, 0);
}

}  // namespace
}  // namespace kindora
