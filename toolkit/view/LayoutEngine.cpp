// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/LayoutEngine.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <unordered_set>
#include <utility>

namespace kindora {
namespace {

using layout::ConstraintId;
using layout::Outcome;
using layout::Relation;

// Keeps the size of a topmost view that constraints size, where they leave it open.
constexpr double kStayStrength = 1;
// Solutions differ by rounding from one pass to the next; frames do not follow that.
constexpr double kTolerance = 1e-7;  // points

bool isSize(NSLayoutAttribute attribute) {
  return attribute == NSLayoutAttribute::width || attribute == NSLayoutAttribute::height;
}

bool isBaseline(NSLayoutAttribute attribute) {
  return attribute == NSLayoutAttribute::baseline || attribute == NSLayoutAttribute::firstBaseline;
}

bool isNear(double a, double b) { return std::abs(a - b) <= kTolerance; }

const UIView& nearestCommonView(const UIView& a, const UIView& b) {
  const UIView* space = &a;
  while (!space->contains(b)) space = space->superview().get();
  return *space;
}

}  // namespace

void LayoutEngine::takeOver(Changes changes) {
  if (changes.structure) takeOverStructure();
  if (held_.empty()) return;
  if (!takeOverFrames()) startAnew();
  bool baselinesChanged = false;
  takeOverContents(baselinesChanged);
  if (changes.structure || changes.constants || baselinesChanged || isAnyLeftOut_) {
    takeOverConstants(baselinesChanged);
  }
  solver_->update();
}

void LayoutEngine::placeViews() {
  // Telling a view its frame may well change the tree, so the frames are read before.
  std::vector<std::pair<UIViewRef, CGRect>> frames;
  for (const auto& [key, entry] : entries_) {
    if (!entry.constraintBased) continue;
    const auto view = entry.view.lock();
    if (!view) continue;
    const Axis& h = entry.horizontal;
    const Axis& v = entry.vertical;
    const CGPoint origin = key == &root_
                               ? root_.frame().origin
                               : CGPoint{solver_->value(h.origin), solver_->value(v.origin)};
    const CGSize size{std::max(0.0, solver_->value(h.size)), std::max(0.0, solver_->value(v.size))};
    const CGRect now = view->frame();
    const bool stays = isNear(now.origin.x, origin.x) && isNear(now.origin.y, origin.y) &&
                       isNear(now.size.width, size.width) && isNear(now.size.height, size.height);
    if (!stays) frames.push_back({view, {origin, size}});
  }
  for (const auto& [view, frame] : frames) view->setFrame(frame);
}

std::function<void(const NSLayoutConstraint&)>& LayoutEngine::leftOut() {
  static std::function<void(const NSLayoutConstraint&)> told =  // main thread only
      [](const NSLayoutConstraint& constraint) {
#ifndef NDEBUG
        std::cerr << "left out, since it contradicts others: " << constraint.description() << '\n';
#else
        static_cast<void>(constraint);
#endif
      };
  return told;
}

// --- The tree ---

void LayoutEngine::takeOverStructure() {
  ++mark_;
  std::vector<NSLayoutConstraintRef> wanted;
  collect(root_, wanted);
  bool switched = false;
  for (auto it = entries_.begin(); it != entries_.end();) {
    const auto view = it->second.view.lock();
    if (it->second.mark == mark_ && view) {
      switched = switched ||
                 it->second.constraintBased != !view->translatesAutoresizingMaskIntoConstraints();
      ++it;
    } else {
      forget(it->second);
      it = entries_.erase(it);
    }
  }
  const std::size_t removed = std::erase_if(held_, [this](const auto& element) {
    const Held& held = element.second;
    if (held.mark == mark_) return false;
    solver_->remove(held.id);
    return true;
  });
  addAll(std::move(wanted));
  if (removed > 0) forgetUnmentioned();
  if (switched) startAnew();
}

void LayoutEngine::collect(UIView& view, std::vector<NSLayoutConstraintRef>& wanted) {
  const auto entry = entries_.find(&view);
  // A view may have come to stand where one that has gone stood in memory.
  if (entry != entries_.end() && entry->second.view.lock().get() == &view) {
    entry->second.mark = mark_;
  }
  for (const NSLayoutConstraintRef& constraint : view.constraints()) {
    if (!hasEffect(*constraint)) continue;
    const auto held = held_.find(constraint.get());
    if (held == held_.end()) {
      wanted.push_back(constraint);
    } else {
      held->second.mark = mark_;
    }
  }
  for (const auto& subview : view.subviews()) collect(*subview, wanted);
}

bool LayoutEngine::hasEffect(const NSLayoutConstraint& constraint) const {
  const auto first = constraint.firstItem();
  const auto second = constraint.secondItem();
  if (!first || constraint.firstAttribute() == NSLayoutAttribute::notAnAttribute) return false;
  if (!root_.contains(*first)) return false;
  const bool isConstant = constraint.secondAttribute() == NSLayoutAttribute::notAnAttribute;
  if (isConstant ? !isSize(constraint.firstAttribute()) : !second || !root_.contains(*second)) {
    return false;
  }
  return !first->translatesAutoresizingMaskIntoConstraints() ||
         (!isConstant && !second->translatesAutoresizingMaskIntoConstraints());
}

void LayoutEngine::forget(const Entry& entry) {
  for (const Axis* axis : {&entry.horizontal, &entry.vertical}) {
    solver_->removeVariable(axis->origin);
    solver_->removeVariable(axis->size);
  }
}

void LayoutEngine::forgetUnmentioned() {
  std::unordered_set<const UIView*> mentioned;
  for (const auto& [key, held] : held_) {
    const auto first = held.constraint->firstItem();
    const auto second = held.constraint->secondItem();
    const UIView& space = second ? nearestCommonView(*first, *second) : *first;
    mentioned.insert(&space);
    for (const UIView* item : {first.get(), second.get()}) {
      for (; item != nullptr && item != &space; item = item->superview().get()) {
        mentioned.insert(item);
      }
    }
  }
  std::erase_if(entries_, [&](auto& element) {
    if (mentioned.contains(element.first)) return false;
    forget(element.second);
    return true;
  });
}

void LayoutEngine::startAnew() {
  std::vector<NSLayoutConstraintRef> constraints;
  std::vector<const NSLayoutConstraint*> reported;
  for (const auto& [key, held] : held_) {
    constraints.push_back(held.constraint);
    if (held.isReported) reported.push_back(key);
  }
  solver_ = std::make_unique<layout::Solver>();
  entries_.clear();
  held_.clear();
  for (const NSLayoutConstraint* constraint : reported) held_[constraint].isReported = true;
  addAll(std::move(constraints));
}

void LayoutEngine::addAll(std::vector<NSLayoutConstraintRef> constraints) {
  // What must hold comes first, each kind in the order in which it was made: of two that contradict
  // each other the later one is left out.
  std::ranges::sort(constraints, {}, [](const NSLayoutConstraintRef& constraint) {
    const bool isRequired = constraint->priority() >= kLayoutPriorityRequired;
    return std::pair(!isRequired, constraint->serial());
  });
  for (NSLayoutConstraintRef& constraint : constraints) {
    Held& held = held_[constraint.get()];
    held.constraint = std::move(constraint);
    held.mark = mark_;
    enter(held);
  }
}

void LayoutEngine::enter(Held& held) {
  const NSLayoutConstraint& constraint = *held.constraint;
  Sum sum = sumOf(constraint);
  held.ownConstant = constraint.constant();
  const auto added = solver_->add({.terms = std::move(sum.terms),
                                   .relation = static_cast<Relation>(constraint.relation()),
                                   .constant = sum.constant,
                                   .strength = constraint.priority()});
  held.id = added.constraint;
  if (added.outcome != Outcome::done) leaveOut(held);
}

void LayoutEngine::leaveOut(Held& held) {
  held.id = {};
  isAnyLeftOut_ = true;
  if (std::exchange(held.isReported, true)) return;
  if (leftOut()) leftOut()(*held.constraint);
}

// --- Views ---

LayoutEngine::Entry& LayoutEngine::entryOf(UIView& view) {
  const auto found = entries_.find(&view);
  if (found != entries_.end()) return found->second;
  Entry& entry = entries_[&view];
  entry.view = view.weak_from_this();
  entry.constraintBased = !view.translatesAutoresizingMaskIntoConstraints();
  entry.mark = mark_;
  for (Axis* axis : {&entry.horizontal, &entry.vertical}) {
    axis->origin = solver_->makeVariable();
    axis->size = solver_->makeVariable();
  }
  giveFrame(entry, view);
  if (entry.constraintBased) {
    const CGSize content = view.intrinsicContentSize();
    setContent(entry.horizontal, content.width);
    setContent(entry.vertical, content.height);
  }
  entry.firstBaseline = view.firstBaselineFromTop();
  entry.lastBaseline = view.lastBaselineFromBottom();
  entry.contentRevision = view.contentRevision();
  return entry;
}

void LayoutEngine::giveFrame(Entry& entry, const UIView& view) {
  const bool isRoot = &view == &root_;
  if (entry.constraintBased && !isRoot) return;
  const double strength = entry.constraintBased ? kStayStrength : layout::kRequired;
  const auto give = [&](Axis& axis, double origin, double size) {
    axis.givenOrigin = origin;
    axis.givenSize = size;
    axis.originIs = solver_->add({{{axis.origin}}, Relation::equal, origin, strength}).constraint;
    axis.sizeIs = solver_->add({{{axis.size}}, Relation::equal, size, strength}).constraint;
  };
  const CGRect frame = view.frame();
  give(entry.horizontal, frame.origin.x, frame.size.width);
  give(entry.vertical, frame.origin.y, frame.size.height);
}

bool LayoutEngine::takeOverFrames() {
  const auto follow = [this](ConstraintId id, double& given, double now) {
    if (given == now) return true;
    given = now;
    return solver_->setConstant(id, now) == Outcome::done;
  };
  bool fits = true;
  for (auto& [key, entry] : entries_) {
    if (entry.constraintBased) continue;
    const CGRect frame = key->frame();
    fits = follow(entry.horizontal.originIs, entry.horizontal.givenOrigin, frame.origin.x) && fits;
    fits = follow(entry.horizontal.sizeIs, entry.horizontal.givenSize, frame.size.width) && fits;
    fits = follow(entry.vertical.originIs, entry.vertical.givenOrigin, frame.origin.y) && fits;
    fits = follow(entry.vertical.sizeIs, entry.vertical.givenSize, frame.size.height) && fits;
  }
  return fits;
}

void LayoutEngine::takeOverContents(bool& baselinesChanged) {
  for (auto& [key, entry] : entries_) {
    const auto view = entry.view.lock();
    if (!view || entry.contentRevision == view->contentRevision()) continue;
    entry.contentRevision = view->contentRevision();
    if (entry.constraintBased) {
      const CGSize content = view->intrinsicContentSize();
      setContent(entry.horizontal, content.width);
      setContent(entry.vertical, content.height);
    }
    const double first = std::exchange(entry.firstBaseline, view->firstBaselineFromTop());
    const double last = std::exchange(entry.lastBaseline, view->lastBaselineFromBottom());
    baselinesChanged =
        baselinesChanged || first != entry.firstBaseline || last != entry.lastBaseline;
  }
}

void LayoutEngine::setContent(Axis& axis, double content) {
  const double before = std::exchange(axis.content, content);
  if (before == content) return;
  if (before != kNoIntrinsicMetric && content != kNoIntrinsicMetric) {
    solver_->setConstant(axis.compression, content);
    solver_->setConstant(axis.hugging, content);
    return;
  }
  solver_->remove(axis.compression);
  solver_->remove(axis.hugging);
  if (content == kNoIntrinsicMetric) return;
  const auto add = [&](Relation relation, double strength) {
    return solver_->add({{{axis.size}}, relation, content, strength}).constraint;
  };
  axis.compression = add(Relation::greaterThanOrEqual, kLayoutPriorityCompression);
  axis.hugging = add(Relation::lessThanOrEqual, kLayoutPriorityHugging);
}

// --- Constraints ---

void LayoutEngine::takeOverConstants(bool baselinesChanged) {
  std::vector<Held*> outside;
  isAnyLeftOut_ = false;
  for (auto& [key, held] : held_) {
    const NSLayoutConstraint& constraint = *held.constraint;
    if (held.id == ConstraintId{}) {
      outside.push_back(&held);
      continue;
    }
    const bool hasBaseline =
        isBaseline(constraint.firstAttribute()) || isBaseline(constraint.secondAttribute());
    const bool mayDiffer = hasBaseline && baselinesChanged;
    if (constraint.constant() == held.ownConstant && !mayDiffer) continue;
    held.ownConstant = constraint.constant();
    const double constant = sumOf(constraint).constant;
    if (solver_->setConstant(held.id, constant) == Outcome::done) continue;
    solver_->remove(held.id);
    leaveOut(held);
  }
  std::ranges::sort(outside, {}, [](const Held* held) { return held->constraint->serial(); });
  for (Held* held : outside) enter(*held);
}

LayoutEngine::Sum LayoutEngine::sumOf(const NSLayoutConstraint& constraint) {
  const auto first = constraint.firstItem();
  const auto second = constraint.secondItem();
  const bool isConstant = constraint.secondAttribute() == NSLayoutAttribute::notAnAttribute;
  const UIView& space = isConstant ? *first : nearestCommonView(*first, *second);
  Sum sum;
  add(sum, *first, constraint.firstAttribute(), space, 1);
  if (!isConstant) {
    add(sum, *second, constraint.secondAttribute(), space, -constraint.multiplier());
  }
  // All variables stand on the left, all else on the right.
  sum.constant = constraint.constant() - sum.constant;
  return sum;
}

void LayoutEngine::add(Sum& sum, UIView& view, NSLayoutAttribute attribute, const UIView& space,
                       double factor) {
  // References to entries do not outlive the making of others, so each is looked up when needed.
  const auto size = [&](Axis Entry::*direction, double share) {
    sum.terms.push_back({(entryOf(view).*direction).size, share * factor});
  };
  switch (attribute) {
    case NSLayoutAttribute::notAnAttribute:
      break;
    case NSLayoutAttribute::left:
      addOrigin(sum, view, space, &Entry::horizontal, factor);
      break;
    case NSLayoutAttribute::right:
      addOrigin(sum, view, space, &Entry::horizontal, factor);
      size(&Entry::horizontal, 1);
      break;
    case NSLayoutAttribute::centerX:
      addOrigin(sum, view, space, &Entry::horizontal, factor);
      size(&Entry::horizontal, 0.5);
      break;
    case NSLayoutAttribute::width:
      size(&Entry::horizontal, 1);
      break;
    case NSLayoutAttribute::top:
      addOrigin(sum, view, space, &Entry::vertical, factor);
      break;
    case NSLayoutAttribute::bottom:
      addOrigin(sum, view, space, &Entry::vertical, factor);
      size(&Entry::vertical, 1);
      break;
    case NSLayoutAttribute::centerY:
      addOrigin(sum, view, space, &Entry::vertical, factor);
      size(&Entry::vertical, 0.5);
      break;
    case NSLayoutAttribute::height:
      size(&Entry::vertical, 1);
      break;
    case NSLayoutAttribute::baseline:
      addOrigin(sum, view, space, &Entry::vertical, factor);
      size(&Entry::vertical, 1);
      sum.constant -= factor * entryOf(view).lastBaseline;
      break;
    case NSLayoutAttribute::firstBaseline:
      addOrigin(sum, view, space, &Entry::vertical, factor);
      sum.constant += factor * entryOf(view).firstBaseline;
      break;
  }
}

void LayoutEngine::addOrigin(Sum& sum, UIView& view, const UIView& space, Axis Entry::*direction,
                             double factor) {
  for (UIView* up = &view; up != &space; up = up->superview().get()) {
    sum.terms.push_back({(entryOf(*up).*direction).origin, factor});
  }
}

}  // namespace kindora
