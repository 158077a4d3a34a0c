// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Trees that are changed step by step, held against trees that are built as they then are. Every
// view takes its place from views that are older, so that there is one solution.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "tests/toolkit/view/LayoutFixture.h"
#include "toolkit/view/LayoutEngine.h"

namespace kindora {
namespace {

using Attribute = NSLayoutAttribute;
using Relation = NSLayoutRelation;

constexpr double kClose = 1e-6;
constexpr int kSystemsEach = 5;  // the library plays a property a hundred times

struct Box final : UIView {
  CGSize content = kNoIntrinsicSize;
  [[nodiscard]] CGSize intrinsicContentSize() const override { return content; }
};

constexpr std::array kEdges{
    std::array{Attribute::left, Attribute::centerX, Attribute::right, Attribute::width},
    std::array{Attribute::top, Attribute::centerY, Attribute::bottom, Attribute::height}};
constexpr std::size_t kSize = 3;

enum class SizeRule { pinned, content, contentAtMost, likeTarget };

// How a view is placed in one direction. Targets are places in the list of views.
struct Rule {
  std::size_t target = 0;
  std::size_t ownEdge = 0;
  std::size_t targetEdge = 0;
  double offset = 0;
  double originPriority = kLayoutPriorityRequired;
  SizeRule sizeRule = SizeRule::pinned;
  double size = 0;
  double multiplier = 1;
};

struct Plan {
  std::size_t superview = 0;
  bool isGiven = false;
  CGRect frame;
  CGSize content = kNoIntrinsicSize;
  std::array<Rule, 2> rules;
};

double number() { return *rc::gen::inRange(0, 60); }

// The plan of a tree and a tree that is said to follow it. The view at 0 is the root.
class Tree final {
 public:
  explicit Tree(CGRect frame) {
    plans_.push_back({.isGiven = true, .frame = frame});
    views_.push_back(std::make_shared<Box>());
    views_.front()->setFrame(frame);
    held_.emplace_back();
  }

  void add(const Plan& plan) {
    const auto view = std::make_shared<Box>();
    view->content = plan.content;
    view->setFrame(plan.frame);
    view->setTranslatesAutoresizingMaskIntoConstraints(plan.isGiven);
    views_[plan.superview]->addSubview(view);
    plans_.push_back(plan);
    views_.push_back(view);
    held_.emplace_back();
    if (!plan.isGiven) place(views_.size() - 1);
  }

  void play() {
    const std::size_t index = *rc::gen::inRange<std::size_t>(0, views_.size());
    switch (index == 0 ? 0 : *rc::gen::inRange(0, 7)) {
      case 0:
        plans_[index].frame = {{number(), number()}, {number(), number()}};
        if (plans_[index].isGiven) views_[index]->setFrame(plans_[index].frame);
        break;
      case 1:
        if (!plans_[index].isGiven) changeConstants(index);
        break;
      case 2:
        if (!plans_[index].isGiven) changeRules(index);
        break;
      case 3:
        if (plans_[index].content == kNoIntrinsicSize) break;
        plans_[index].content = {number(), number()};
        views_[index]->content = plans_[index].content;
        views_[index]->invalidateIntrinsicContentSize();
        break;
      case 4:
        removeWithAllInside(index);
        break;
      case 5:
        exchange(index);
        break;
      default:
        views_.front()->layoutIfNeeded();
    }
    if (views_.size() < 4 || *rc::gen::inRange(0, 3) == 0) add(plan());
  }

  // The frames of a tree that was built at once.
  void check() const {
    Tree anew(plans_.front().frame);
    for (std::size_t i = 1; i < plans_.size(); ++i) anew.add(plans_[i]);
    anew.views_.front()->layoutIfNeeded();
    views_.front()->layoutIfNeeded();
    for (std::size_t i = 0; i < views_.size(); ++i) {
      const CGRect found = views_[i]->frame();
      const CGRect expected = anew.views_[i]->frame();
      RC_ASSERT(std::abs(found.origin.x - expected.origin.x) < kClose);
      RC_ASSERT(std::abs(found.origin.y - expected.origin.y) < kClose);
      RC_ASSERT(std::abs(found.size.width - expected.size.width) < kClose);
      RC_ASSERT(std::abs(found.size.height - expected.size.height) < kClose);
    }
  }

 private:
  struct Held {
    NSLayoutConstraintRef origin;
    NSLayoutConstraintRef size;
  };

  [[nodiscard]] Plan plan() const {
    const std::size_t count = views_.size();
    Plan plan{.superview = *rc::gen::inRange<std::size_t>(0, count),
              .isGiven = *rc::gen::inRange(0, 5) == 0,
              .frame = {{number(), number()}, {number(), number()}}};
    if (*rc::gen::inRange(0, 2) == 0) plan.content = {number(), number()};
    for (Rule& one : plan.rules) one = rule(count);
    return plan;
  }

  static Rule rule(std::size_t olderViews) {
    return {.target = *rc::gen::inRange<std::size_t>(0, olderViews),
            .ownEdge = *rc::gen::inRange<std::size_t>(0, kSize),
            .targetEdge = *rc::gen::inRange<std::size_t>(0, kSize),
            .offset = number() - 30,
            .originPriority = *rc::gen::element(kLayoutPriorityRequired, 500.0),
            .sizeRule = *rc::gen::element(SizeRule::pinned, SizeRule::content,
                                          SizeRule::contentAtMost, SizeRule::likeTarget),
            .size = number(),
            .multiplier = *rc::gen::element(1.0, 0.5)};
  }

  static NSLayoutConstraintRef install(const UIViewRef& owner, NSLayoutConstraint::Parts parts) {
    auto constraint = std::make_shared<NSLayoutConstraint>(std::move(parts));
    owner->addConstraint(constraint);
    return constraint;
  }

  void place(std::size_t index) {
    const auto& view = views_[index];
    for (std::size_t axis = 0; axis < 2; ++axis) {
      const Rule& rule = plans_[index].rules[axis];
      const auto& edges = kEdges[axis];
      Held& held = held_[index][axis];
      held.origin = install(views_.front(), {.firstItem = view,
                                             .firstAttribute = edges[rule.ownEdge],
                                             .secondItem = views_[rule.target],
                                             .secondAttribute = edges[rule.targetEdge],
                                             .constant = rule.offset,
                                             .priority = rule.originPriority});
      // What has no content, and is to be as large as that, is pinned.
      const SizeRule sizeRule =
          plans_[index].content == kNoIntrinsicSize && rule.sizeRule != SizeRule::likeTarget
              ? SizeRule::pinned
              : rule.sizeRule;
      if (sizeRule == SizeRule::likeTarget) {
        held.size = install(views_.front(), {.firstItem = view,
                                             .firstAttribute = edges[kSize],
                                             .secondItem = views_[rule.target],
                                             .secondAttribute = edges[kSize],
                                             .multiplier = rule.multiplier,
                                             .constant = rule.size});
      } else if (sizeRule != SizeRule::content) {
        held.size = install(
            view,
            {.firstItem = view,
             .firstAttribute = edges[kSize],
             .relation = sizeRule == SizeRule::pinned ? Relation::equal : Relation::lessThanOrEqual,
             .constant = rule.size});
      }
    }
  }

  void release(std::size_t index) {
    for (Held& held : held_[index]) {
      for (NSLayoutConstraintRef* constraint : {&held.origin, &held.size}) {
        if (!*constraint) continue;
        if (const auto owner = (*constraint)->owner()) owner->removeConstraint(*constraint);
        constraint->reset();
      }
    }
  }

  void changeConstants(std::size_t index) {
    for (std::size_t axis = 0; axis < 2; ++axis) {
      Rule& rule = plans_[index].rules[axis];
      Held& held = held_[index][axis];
      rule.offset = number() - 30;
      held.origin->setConstant(rule.offset);
      rule.size = number();
      if (held.size) held.size->setConstant(rule.size);
    }
  }

  void changeRules(std::size_t index) {
    release(index);
    for (Rule& one : plans_[index].rules) one = rule(index);
    place(index);
  }

  // From given to placed or back.
  void exchange(std::size_t index) {
    Plan& plan = plans_[index];
    plan.isGiven = !plan.isGiven;
    views_[index]->setTranslatesAutoresizingMaskIntoConstraints(plan.isGiven);
    if (plan.isGiven) {
      release(index);
      views_[index]->setFrame(plan.frame);
    } else {
      place(index);
    }
  }

  [[nodiscard]] bool standsIn(std::size_t index, std::size_t other) const {
    return views_[other]->contains(*views_[index]);
  }

  // What took its place from the views that go takes it from the root from then on.
  void removeWithAllInside(std::size_t index) {
    const std::size_t count = views_.size();
    std::vector<std::size_t> newPlace(count, 0);
    std::vector<bool> goes(count, false);
    std::size_t next = 0;
    for (std::size_t i = 0; i < count; ++i) {
      goes[i] = standsIn(i, index);
      if (!goes[i]) newPlace[i] = next++;
    }
    std::vector<std::size_t> homeless;
    for (std::size_t i = 1; i < count; ++i) {
      if (goes[i]) continue;
      bool lost = false;
      for (Rule& rule : plans_[i].rules) {
        lost = lost || goes[rule.target];
        rule.target = newPlace[rule.target];
      }
      plans_[i].superview = newPlace[plans_[i].superview];
      if (lost && !plans_[i].isGiven) homeless.push_back(newPlace[i]);
    }
    views_[index]->removeFromSuperview();
    for (std::size_t i = count; i-- > 0;) {
      if (!goes[i]) continue;
      const auto at = static_cast<std::ptrdiff_t>(i);
      views_.erase(views_.begin() + at);
      plans_.erase(plans_.begin() + at);
      held_.erase(held_.begin() + at);
    }
    for (const std::size_t i : homeless) {
      release(i);
      place(i);
    }
  }

  std::vector<Plan> plans_;
  std::vector<std::shared_ptr<Box>> views_;
  std::vector<std::array<Held, 2>> held_;
};

RC_GTEST_PROP(LayoutEngineProperty, AnyChangesLeadToTheFramesOfATreeThatIsBuiltAtOnce, ()) {
  for (int system = 0; system < kSystemsEach; ++system) {
    Tree tree({{number(), number()}, {300, 400}});
    const int calls = *rc::gen::inRange(1, 25);
    for (int call = 0; call < calls; ++call) tree.play();
    tree.check();
  }
}

RC_GTEST_PROP(LayoutEngineProperty, ManyEqualWishesComeToAnEnd, ()) {
  const auto root = std::make_shared<UIView>();
  root->setFrame({{0, 0}, {100, 100}});
  std::vector<UIViewRef> views;
  const std::size_t count = *rc::gen::inRange<std::size_t>(2, 8);
  for (std::size_t i = 0; i < count; ++i) {
    views.push_back(std::make_shared<UIView>());
    views.back()->setTranslatesAutoresizingMaskIntoConstraints(false);
    root->addSubview(views.back());
  }
  std::vector<NSLayoutConstraintRef> all;
  const double points = number();
  for (int round = 0; round < 10; ++round) {
    for (std::size_t i = 0; i < count; ++i) {
      for (const double priority : {1000.0, 750.0, 250.0}) {
        all.push_back(std::make_shared<NSLayoutConstraint>(NSLayoutConstraint::Parts{
            .firstItem = views[i],
            .firstAttribute = Attribute::width,
            .relation = *rc::gen::element(Relation::equal, Relation::greaterThanOrEqual,
                                          Relation::lessThanOrEqual),
            .secondItem = views[(i + 1) % count],
            .secondAttribute = Attribute::width,
            .priority = priority}));
        root->addConstraint(all.back());
      }
    }
  }
  all.push_back(std::make_shared<NSLayoutConstraint>(NSLayoutConstraint::Parts{
      .firstItem = views[0], .firstAttribute = Attribute::width, .constant = points}));
  views[0]->addConstraint(all.back());
  root->layoutIfNeeded();
  // All of them lead round in a circle, and one is pinned; what relates two keeps them equal.
  RC_ASSERT(std::abs(views[0]->frame().size.width - points) < kClose);
  for (std::size_t i = 0; i < count; ++i) {
    RC_ASSERT(std::abs(views[i]->frame().size.width - points) < kClose);
  }
  all.back()->setConstant(points + 7);
  root->layoutIfNeeded();
  RC_ASSERT(std::abs(views[count - 1]->frame().size.width - points - 7) < kClose);
}

}  // namespace
}  // namespace kindora
