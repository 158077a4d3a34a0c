// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "layout/Solver.h"
#include "toolkit/view/NSLayoutConstraint.h"
#include "toolkit/view/UIView.h"

namespace kindora {

/// Turns the constraints that the views of a tree hold into those of a solver, and its numbers into
/// frames. Keeps both in step without starting anew.
///
/// A view's origin is a variable in its superview's space; what two views say of each other counts
/// in the space of the nearest view that holds both. A required constraint that contradicts those
/// before it is left out until it fits, and reported once. All changes of a pass count together;
/// what is left out is tried again, the oldest first, after a change of anything that it depends
/// on.
class LayoutEngine final {
 public:
  /// What has happened since the last time. A changed structure may bring changed constants.
  struct Changes {
    bool structure = true;
    bool constants = true;
  };

  explicit LayoutEngine(UIView& root) : root_(root) {}

  /// Takes over what has changed: constraints, constants, given frames and sizes of contents.
  void takeOver(Changes changes);
  /// Gives the views that constraints place their frames.
  void placeViews();

  /// Is told of each constraint that is left out, by every engine of the program, at the end of the
  /// pass; set by tests. At first writes it to the console.
  static std::function<void(const NSLayoutConstraint&)>& leftOut();
  /// What does so; in what is shipped it does nothing.
  static std::function<void(const NSLayoutConstraint&)> writesLeftOut();

  /// How often a constraint has been handed to the solver: what passes cost.
  [[nodiscard]] std::uint64_t attempts() const { return attempts_; }

 private:
  // One direction of a view.
  struct Axis {
    layout::Variable origin;
    layout::Variable size;
    layout::ConstraintId originIs;  // what a given frame says
    layout::ConstraintId sizeIs;
    layout::ConstraintId compression;  // what the content says
    layout::ConstraintId hugging;
    double givenOrigin = 0;
    double givenSize = 0;
    double content = kNoIntrinsicMetric;
  };
  struct Entry {
    std::weak_ptr<UIView> view;
    std::uint64_t serial = 0;  // in the order in which they were made
    bool constraintBased = false;
    Axis horizontal;
    Axis vertical;
    double firstBaseline = 0;
    double lastBaseline = 0;
    std::uint64_t contentRevision = 0;  // of the view, as it was taken over
    std::uint64_t mark = 0;
  };
  struct Held {
    NSLayoutConstraintRef constraint;
    layout::ConstraintId id;  // names nothing while it is left out
    double ownConstant = 0;   // the constraint's, as the solver has it
    bool isReported = false;
    std::uint64_t mark = 0;
  };
  // What has changed in a pass, for what is left out.
  struct Touched {
    std::vector<layout::Variable> variables;
    std::vector<std::vector<layout::Term>> constraints;
  };
  // A sum of variables and a constant.
  struct Sum {
    std::vector<layout::Term> terms;
    double constant = 0;
  };

  [[nodiscard]] std::vector<NSLayoutConstraintRef> takeOverStructure();
  void collect(UIView& view, std::vector<NSLayoutConstraintRef>& wanted);
  void touchItems(const NSLayoutConstraint& constraint);
  void forget(const Entry& entry);
  void forgetUnmentioned();
  void startAnew();
  void addAll(std::vector<NSLayoutConstraintRef> constraints);
  void enter(Held& held);
  void tryLeftOut();
  void report();
  [[nodiscard]] bool hasEffect(const NSLayoutConstraint& constraint) const;

  Entry& entryOf(UIView& view);
  void giveFrame(Entry& entry, const UIView& view);
  // A given number that contradicted what was there before the constants of its pass.
  struct Pending {
    layout::ConstraintId* id;
    layout::Variable variable;
    double value;
  };
  [[nodiscard]] std::vector<Entry*> entriesInOrder(const std::function<bool(const Entry&)>& which);
  [[nodiscard]] std::vector<Pending> takeOverFrames();
  [[nodiscard]] bool give(const std::vector<Pending>& pending);
  void takeOverContents(bool& baselinesChanged);
  void setContent(Axis& axis, double content);
  [[nodiscard]] std::vector<Held*> takeOverConstants(bool baselinesChanged);

  [[nodiscard]] Sum sumOf(const NSLayoutConstraint& constraint);
  void add(Sum& sum, UIView& view, NSLayoutAttribute attribute, const UIView& space, double factor);
  void addOrigin(Sum& sum, UIView& view, const UIView& space, Axis Entry::*direction,
                 double factor);

  UIView& root_;
  std::unique_ptr<layout::Solver> solver_ = std::make_unique<layout::Solver>();
  std::unordered_map<const UIView*, Entry> entries_;
  std::unordered_map<const NSLayoutConstraint*, Held> held_;
  std::uint64_t mark_ = 0;
  std::uint64_t lastEntry_ = 0;
  std::uint64_t attempts_ = 0;
  bool isAnyLeftOut_ = false;
  Touched touched_;  // of this pass, while anything is left out
  std::vector<NSLayoutConstraintRef> unreported_;
};

}  // namespace kindora
