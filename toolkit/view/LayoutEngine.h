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
/// before it is left out until it fits, and reported once.
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

  /// Is told of each constraint that is left out, by every engine of the program; set by tests. At
  /// first writes it to the console in a debug build.
  static std::function<void(const NSLayoutConstraint&)>& leftOut();

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
  // A sum of variables and a constant.
  struct Sum {
    std::vector<layout::Term> terms;
    double constant = 0;
  };

  void takeOverStructure();
  void collect(UIView& view, std::vector<NSLayoutConstraintRef>& wanted);
  void forget(const Entry& entry);
  void forgetUnmentioned();
  void startAnew();
  void addAll(std::vector<NSLayoutConstraintRef> constraints);
  void enter(Held& held);
  void leaveOut(Held& held);
  [[nodiscard]] bool hasEffect(const NSLayoutConstraint& constraint) const;

  Entry& entryOf(UIView& view);
  void giveFrame(Entry& entry, const UIView& view);
  [[nodiscard]] bool takeOverFrames();
  void takeOverContents(bool& baselinesChanged);
  void setContent(Axis& axis, double content);
  void takeOverConstants(bool baselinesChanged);

  [[nodiscard]] Sum sumOf(const NSLayoutConstraint& constraint);
  void add(Sum& sum, UIView& view, NSLayoutAttribute attribute, const UIView& space, double factor);
  void addOrigin(Sum& sum, UIView& view, const UIView& space, Axis Entry::*direction,
                 double factor);

  UIView& root_;
  std::unique_ptr<layout::Solver> solver_ = std::make_unique<layout::Solver>();
  std::unordered_map<const UIView*, Entry> entries_;
  std::unordered_map<const NSLayoutConstraint*, Held> held_;
  std::uint64_t mark_ = 0;
  bool isAnyLeftOut_ = false;  // it may fit at any later pass
};

}  // namespace kindora
