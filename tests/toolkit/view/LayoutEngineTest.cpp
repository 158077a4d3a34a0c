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
  // What is left out from now on, as it is reported.
  const std::vector<std::string>& listen() {
    LayoutEngine::leftOut() = [this](const NSLayoutConstraint& constraint) {
      reports_.push_back(constraint.description());
    };
    return reports_;
  }
  NSLayoutConstraintRef same(const UIViewRef& view, Attribute attribute, const UIViewRef& other,
                             double constant = 0) {
    return hold(root, {.firstItem = view,
                       .firstAttribute = attribute,
                       .secondItem = other,
                       .secondAttribute = attribute,
                       .constant = constant});
  }

 private:
  std::vector<std::string> reports_;
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

TEST_F(LayoutEngineTest, ConstantsThatChangeTogetherCountTogether) {
  const std::vector<std::string>& reports = listen();
  struct Range {
    UIViewRef view;
    NSLayoutConstraintRef least;
    NSLayoutConstraintRef most;
  };
  std::vector<Range> ranges;
  for (int i = 0; i < 20; ++i) {
    Range range{placed(root), nullptr, nullptr};
    if (i % 2 == 0) range.most = size(range.view, Attribute::width, 100, Relation::lessThanOrEqual);
    range.least = size(range.view, Attribute::width, 10, Relation::greaterThanOrEqual);
    if (i % 2 != 0) range.most = size(range.view, Attribute::width, 100, Relation::lessThanOrEqual);
    ranges.push_back(std::move(range));
  }
  root->layoutIfNeeded();
  const auto change = [&](double least, double most) {
    for (const Range& range : ranges) {
      range.least->setConstant(least);
      range.most->setConstant(most);
    }
    root->layoutIfNeeded();
    for (const Range& range : ranges) {
      EXPECT_GE(range.view->frame().size.width, least);
      EXPECT_LE(range.view->frame().size.width, most);
    }
  };
  change(200, 300);
  change(10, 100);
  EXPECT_THAT(reports, ::testing::IsEmpty());
}

TEST_F(LayoutEngineTest, WhatIsNewCountsWithTheFramesAndConstantsOfItsPass) {
  const std::vector<std::string>& reports = listen();
  const auto box = framed({{0, 0}, {100, 50}});
  root->addSubview(box);
  const auto view = placed(root);
  view->setName("view");
  hold(root, {.firstItem = view,
              .firstAttribute = Attribute::width,
              .relation = Relation::lessThanOrEqual,
              .secondItem = box,
              .secondAttribute = Attribute::width});
  const auto most = size(view, Attribute::width, 150, Relation::lessThanOrEqual);
  root->layoutIfNeeded();
  box->setFrame({{0, 0}, {300, 50}});
  most->setConstant(400);
  size(view, Attribute::width, 200, Relation::greaterThanOrEqual);
  root->layoutIfNeeded();
  EXPECT_THAT(reports, ::testing::IsEmpty());
  EXPECT_GE(view->frame().size.width, 200);
  box->setFrame({{0, 0}, {100, 50}});
  root->layoutIfNeeded();
  EXPECT_THAT(reports, ::testing::ElementsAre("view.width >= 200"));
}

TEST_F(LayoutEngineTest, OfWhatIsLeftOutTheOldestIsTriedFirst) {
  LayoutEngine::leftOut() = {};
  const auto view = placed(root);
  const auto first = size(view, Attribute::width, 1);
  std::vector<NSLayoutConstraintRef> others;
  for (int points = 2; points < 12; ++points) {
    others.push_back(size(view, Attribute::width, points));
  }
  root->layoutIfNeeded();
  view->removeConstraint(first);
  for (const NSLayoutConstraintRef& oldest : others) {
    root->layoutIfNeeded();
    EXPECT_EQ(view->frame().size.width, oldest->constant());
    view->removeConstraint(oldest);
  }
}

TEST_F(LayoutEngineTest, WhatIsLeftOutIsNotTriedAgainBeforeSomethingThatItDependsOnHasChanged) {
  LayoutEngine::leftOut() = {};
  const auto box = framed({{0, 0}, {100, 50}});
  root->addSubview(box);
  const auto view = placed(root);
  const auto other = placed(root);
  same(view, Attribute::width, box);
  same(view, Attribute::left, root);
  size(view, Attribute::width, 10);
  same(other, Attribute::left, root);
  const auto width = size(other, Attribute::width, 10);
  LayoutEngine engine(*root);
  engine.takeOver({});
  engine.placeViews();
  EXPECT_EQ(view->frame().size.width, 100);
  const std::uint64_t before = engine.attempts();
  const auto attempts = [&](bool isStructure) {
    engine.takeOver({.structure = isStructure, .constants = true});
    engine.placeViews();
    return engine.attempts() - before;
  };
  EXPECT_EQ(attempts(false), 0U);
  width->setConstant(20);
  EXPECT_EQ(attempts(false), 0U);
  root->setFrame({{0, 0}, {200, 480}});
  EXPECT_EQ(attempts(false), 0U);  // of the root only its origin is mentioned
  EXPECT_EQ(attempts(true), 0U);
  box->setFrame({{0, 0}, {90, 50}});
  EXPECT_EQ(attempts(false), 1U);
  box->setFrame({{0, 0}, {10, 50}});
  EXPECT_EQ(attempts(false), 2U);
  box->setFrame({{0, 0}, {11, 50}});
  EXPECT_EQ(view->frame().size.width, 10);
}

TEST_F(LayoutEngineTest, WhatIsLeftOutIsTriedWhenWhatItContradictedHasGone) {
  LayoutEngine::leftOut() = {};
  const auto view = placed(root);
  const auto other = placed(root);
  size(other, Attribute::width, 100);
  const auto relation = same(view, Attribute::width, other);
  size(view, Attribute::width, 10);
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().size.width, 100);
  root->removeConstraint(relation);
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().size.width, 10);
}

TEST_F(LayoutEngineTest, ASecondItemWithoutAnAttributeCountsForNothing) {
  const auto elsewhere = std::make_shared<UIView>();
  const auto view = placed(root);
  const auto gone = size(placed(root), Attribute::width, 5);
  hold(view, {.firstItem = view,
              .firstAttribute = Attribute::width,
              .secondItem = elsewhere,
              .constant = 30});
  root->layoutIfNeeded();
  gone->firstItem()->removeConstraint(gone);
  root->layoutIfNeeded();
  EXPECT_EQ(view->frame().size.width, 30);
}

TEST_F(LayoutEngineTest, WritesWhatIsLeftOutUnlessItIsShipped) {
  const auto view = placed(root);
  view->setName("box");
  size(view, Attribute::width, 10);
  size(view, Attribute::width, 20);
  LayoutEngine::leftOut() = LayoutEngine::writesLeftOut();
  ::testing::internal::CaptureStderr();
  root->layoutIfNeeded();
  const std::string written = ::testing::internal::GetCapturedStderr();
#ifdef KINDORA_SHIPPED
  EXPECT_EQ(written, "");
#else
  EXPECT_EQ(written, "left out, since it contradicts others: box.width = 20\n");
#endif
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
