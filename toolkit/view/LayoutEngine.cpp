// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/LayoutEngine.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <unordered_set>
#include <utility>

#include "toolkit/view/LayoutComponents.h"

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

bool isRelated(const NSLayoutConstraint& constraint) {
  return constraint.secondAttribute() != NSLayoutAttribute::notAnAttribute;
}

// None without an attribute.
UIViewRef otherItem(const NSLayoutConstraint& constraint) {
  return isRelated(constraint) ? constraint.secondItem() : nullptr;
}

const UIView& nearestCommonView(const UIView& a, const UIView& b) {
  const UIView* space = &a;
  while (!space->contains(b)) space = space->superview().get();
  return *space;
}

}  // namespace

void LayoutEngine::takeOver(Changes changes) {
  touched_ = {};
  std::vector<NSLayoutConstraintRef> wanted;
  if (changes.structure) wanted = takeOverStructure();
  if (held_.empty() && wanted.empty()) return;
  const std::vector<Pending> pending = takeOverFrames();
  bool baselinesChanged = false;
  takeOverContents(baselinesChanged);
  std::vector<Held*> unfitting;
  if (changes.structure || changes.constants || baselinesChanged) {
    unfitting = takeOverConstants(baselinesChanged);
  }
  if (give(pending)) {
    for (Held* held : unfitting) enter(*held);
    addAll(std::move(wanted));
    tryLeftOut();
  } else {
    // What is given holds against what is not.
    for (NSLayoutConstraintRef& constraint : wanted) {
      held_[constraint.get()].constraint = std::move(constraint);
    }
    startAnew();
  }
  report();
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
  static std::function<void(const NSLayoutConstraint&)> told = writesLeftOut();  // main thread only
  return told;
}

std::function<void(const NSLayoutConstraint&)> LayoutEngine::writesLeftOut() {
#ifdef KINDORA_SHIPPED
  return {};
#else
  return [](const NSLayoutConstraint& constraint) {
    std::cerr << "left out, since it contradicts others: " << constraint.description() << '\n';
  };
#endif
}

// --- The tree ---

// Lets go of what has gone, and answers what is new.
std::vector<NSLayoutConstraintRef> LayoutEngine::takeOverStructure() {
  ++mark_;
  std::vector<NSLayoutConstraintRef> wanted;
  collect(root_, wanted);
  std::vector<const Held*> removed;
  for (const auto& [key, held] : held_) {
    if (held.mark != mark_) removed.push_back(&held);
  }
  std::ranges::sort(removed, {}, [](const Held* held) { return held->constraint->serial(); });
  for (const Held* held : removed) {
    touchItems(*held->constraint);
    solver_->remove(held->id);
  }
  std::erase_if(held_, [this](const auto& element) { return element.second.mark != mark_; });
  const auto hasGone = [this](const Entry& entry) {
    return entry.mark != mark_ || entry.view.expired();
  };
  bool switched = false;
  for (const Entry* entry : entriesInOrder(hasGone)) forget(*entry);
  std::erase_if(entries_, [&](const auto& element) { return hasGone(element.second); });
  for (const auto& [key, entry] : entries_) {
    switched =
        switched || entry.constraintBased == key->translatesAutoresizingMaskIntoConstraints();
  }
  if (!removed.empty()) forgetUnmentioned();
  if (switched) startAnew();
  return wanted;
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
  const auto second = otherItem(constraint);
  if (!first || constraint.firstAttribute() == NSLayoutAttribute::notAnAttribute) return false;
  if (!root_.contains(*first)) return false;
  if (isRelated(constraint) ? !second || !root_.contains(*second)
                            : !isSize(constraint.firstAttribute())) {
    return false;
  }
  return !first->translatesAutoresizingMaskIntoConstraints() ||
         (second && !second->translatesAutoresizingMaskIntoConstraints());
}

// What a constraint that goes may have held.
void LayoutEngine::touchItems(const NSLayoutConstraint& constraint) {
  if (!isAnyLeftOut_) return;
  for (const UIViewRef& item : {constraint.firstItem(), otherItem(constraint)}) {
    for (const UIView* up = item.get(); up != nullptr; up = up->superview().get()) {
      const auto entry = entries_.find(up);
      if (entry == entries_.end() || !entry->second.constraintBased) continue;
      for (const Axis* axis : {&entry->second.horizontal, &entry->second.vertical}) {
        touched_.variables.push_back(axis->origin);
        touched_.variables.push_back(axis->size);
      }
    }
  }
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
    const auto second = otherItem(*held.constraint);
    const UIView& space = second ? nearestCommonView(*first, *second) : *first;
    mentioned.insert(&space);
    for (const UIView* item : {first.get(), second.get()}) {
      for (; item != nullptr && item != &space; item = item->superview().get()) {
        mentioned.insert(item);
      }
    }
  }
  const auto isUnmentioned = [&](const Entry& entry) {
    return !mentioned.contains(entry.view.lock().get());
  };
  for (const Entry* entry : entriesInOrder(isUnmentioned)) forget(*entry);
  std::erase_if(entries_, [&](const auto& element) { return isUnmentioned(element.second); });
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
  isAnyLeftOut_ = false;
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
  if (isAnyLeftOut_) touched_.constraints.push_back(sum.terms);
  ++attempts_;
  const auto added = solver_->add({.terms = std::move(sum.terms),
                                   .relation = static_cast<Relation>(constraint.relation()),
                                   .constant = sum.constant,
                                   .strength = constraint.priority()});
  held.id = added.constraint;
  if (added.outcome == Outcome::done) return;
  isAnyLeftOut_ = true;
  if (!std::exchange(held.isReported, true)) unreported_.push_back(held.constraint);
}

// What was left out before this pass, if anything has changed in what it depends on.
void LayoutEngine::tryLeftOut() {
  if (!isAnyLeftOut_ || (touched_.variables.empty() && touched_.constraints.empty())) return;
  LayoutComponents components;
  for (const auto& [key, entry] : entries_) {
    if (entry.constraintBased) continue;
    for (const Axis* axis : {&entry.horizontal, &entry.vertical}) {
      components.fix(axis->origin);
      components.fix(axis->size);
    }
  }
  std::vector<std::pair<Held*, std::vector<layout::Term>>> outside;
  for (auto& [key, held] : held_) {
    Sum sum = sumOf(*held.constraint);
    components.connect(sum.terms);
    if (held.id == ConstraintId{}) outside.emplace_back(&held, std::move(sum.terms));
  }
  for (const layout::Variable variable : touched_.variables) components.touch(variable);
  for (const auto& terms : touched_.constraints) components.touch(terms);
  std::ranges::sort(outside, {}, [](const auto& one) { return one.first->constraint->serial(); });
  isAnyLeftOut_ = false;
  for (auto& [held, terms] : outside) {
    if (components.isTouched(terms)) {
      enter(*held);
    } else {
      isAnyLeftOut_ = true;
    }
  }
}

void LayoutEngine::report() {
  std::ranges::sort(unreported_, {}, &NSLayoutConstraint::serial);
  for (const NSLayoutConstraintRef& constraint : std::exchange(unreported_, {})) {
    const bool isOutside = held_.at(constraint.get()).id == ConstraintId{};
    if (isOutside && leftOut()) leftOut()(*constraint);
    if (!isOutside) held_.at(constraint.get()).isReported = false;
  }
}

// --- Views ---

LayoutEngine::Entry& LayoutEngine::entryOf(UIView& view) {
  const auto found = entries_.find(&view);
  if (found != entries_.end()) return found->second;
  Entry& entry = entries_[&view];
  entry.serial = ++lastEntry_;
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

std::vector<LayoutEngine::Entry*> LayoutEngine::entriesInOrder(
    const std::function<bool(const Entry&)>& which) {
  std::vector<Entry*> result;
  for (auto& [key, entry] : entries_) {
    if (which(entry)) result.push_back(&entry);
  }
  std::ranges::sort(result, {}, &Entry::serial);
  return result;
}

// Answers the numbers that do not fit before the constants are taken over, too.
std::vector<LayoutEngine::Pending> LayoutEngine::takeOverFrames() {
  std::vector<std::pair<Entry*, CGRect>> moved;
  for (auto& [key, entry] : entries_) {
    if (entry.constraintBased) continue;
    const CGRect frame = key->frame();
    const CGRect given{{entry.horizontal.givenOrigin, entry.vertical.givenOrigin},
                       {entry.horizontal.givenSize, entry.vertical.givenSize}};
    if (frame != given) moved.emplace_back(&entry, frame);
  }
  std::ranges::sort(moved, {}, [](const auto& one) { return one.first->serial; });
  std::vector<Pending> pending;
  const auto follow = [&](ConstraintId& id, layout::Variable variable, double& given, double now) {
    if (given == now) return;
    given = now;
    if (isAnyLeftOut_) touched_.variables.push_back(variable);
    if (solver_->setConstant(id, now) == Outcome::done) return;
    solver_->remove(id);
    pending.push_back({&id, variable, now});
  };
  for (const auto& [entry, frame] : moved) {
    const auto followAxis = [&](Axis& axis, double origin, double size) {
      follow(axis.originIs, axis.origin, axis.givenOrigin, origin);
      follow(axis.sizeIs, axis.size, axis.givenSize, size);
    };
    followAxis(entry->horizontal, frame.origin.x, frame.size.width);
    followAxis(entry->vertical, frame.origin.y, frame.size.height);
  }
  return pending;
}

// Whether all that is given fits now.
bool LayoutEngine::give(const std::vector<Pending>& pending) {
  return std::ranges::all_of(pending, [this](const Pending& one) {
    const auto added = solver_->add({{{one.variable}}, Relation::equal, one.value});
    *one.id = added.constraint;
    return added.outcome == Outcome::done;
  });
}

void LayoutEngine::takeOverContents(bool& baselinesChanged) {
  const auto hasChanged = [](const Entry& entry) {
    const auto view = entry.view.lock();
    return view && entry.contentRevision != view->contentRevision();
  };
  for (Entry* changed : entriesInOrder(hasChanged)) {
    Entry& entry = *changed;
    const auto view = entry.view.lock();
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

// Answers what does not fit before all constants are taken over, the oldest first.
std::vector<LayoutEngine::Held*> LayoutEngine::takeOverConstants(bool baselinesChanged) {
  std::vector<Held*> changed;
  for (auto& [key, held] : held_) {
    const NSLayoutConstraint& constraint = *held.constraint;
    const bool hasBaseline =
        isBaseline(constraint.firstAttribute()) || isBaseline(constraint.secondAttribute());
    const bool mayDiffer = hasBaseline && baselinesChanged;
    if (constraint.constant() != held.ownConstant || mayDiffer) changed.push_back(&held);
  }
  std::ranges::sort(changed, {}, [](const Held* held) { return held->constraint->serial(); });
  std::vector<Held*> unfitting;
  for (Held* held : changed) {
    Sum sum = sumOf(*held->constraint);
    held->ownConstant = held->constraint->constant();
    if (isAnyLeftOut_) touched_.constraints.push_back(std::move(sum.terms));
    if (held->id == ConstraintId{}) continue;
    if (solver_->setConstant(held->id, sum.constant) == Outcome::done) continue;
    solver_->remove(held->id);
    held->id = {};
    unfitting.push_back(held);
  }
  return unfitting;
}

LayoutEngine::Sum LayoutEngine::sumOf(const NSLayoutConstraint& constraint) {
  const auto first = constraint.firstItem();
  const auto second = otherItem(constraint);
  const UIView& space = second ? nearestCommonView(*first, *second) : *first;
  Sum sum;
  add(sum, *first, constraint.firstAttribute(), space, 1);
  if (second) {
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
