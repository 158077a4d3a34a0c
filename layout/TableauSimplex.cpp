// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// From one solution to the next.
//
// Why a run of exchanges ends. There are finitely many bases. An exchange that moves the objective
// does so in one direction, so no basis from before it comes back. Only degenerate exchanges, which
// do not move it, can go round; after a few of these in a row the smallest symbol that may enter is
// taken, and of the rows that may be left the one with the smallest symbol (Bland's rule), until
// the objective moves again. That this ends:
//
// Suppose it goes round. Let the fickle variables be those that enter and leave on the way; as
// nothing moves, all are 0 throughout. Let t be the largest of them, c the costs of the nonbasic
// variables (0 for basic ones) where t enters, and c' those where t leaves and s enters; in the
// latter, let a_i be the coefficient of s in the row of the basic variable i. Both c and c' tell
// the same objective of all solutions of the equations, so growing s alone says
//   c'_s = c_s + the sum of c_i a_i over the i that are basic where s enters.
// Here c'_s < 0 as s enters, and c_s >= 0: s is fickle and smaller than t, so it would have entered
// in place of t. Hence c_i a_i < 0 for some i. Since c_i is not 0, i is not basic where t enters,
// so it is fickle. It is not t: c_t < 0, and a_t < 0 since t leaves. So i is smaller than t, which
// makes c_i > 0 as above, and a_i < 0. Then i, which is 0, may leave where t does, and is smaller:
// it would have left in place of t. The dual simplex is the same on the transposed tableau.
//
// Rounding is no part of this, so the number of exchanges is bounded, too.
#include <algorithm>
#include <cmath>
#include <limits>

#include "layout/Tableau.h"
#include "layout/Tolerances.h"

namespace kindora::layout {
namespace {

constexpr std::size_t kMostDegenerate = 12;
// Far above what systems of such a size take.
constexpr std::size_t kMostExchanges = 50;
constexpr std::size_t kMostExchangesOfARow = 2;
constexpr std::size_t kPatience = 20;  // times as many
constexpr int kMostRounds = 8;
// What contradicts by less of the largest constant is looked at twice.
constexpr double kClearly = 1e-6;
// By how much of the tolerance a value may leave its bounds for a better row to divide by.
constexpr double kGivesWay = 0.1;

}  // namespace

// How far a run of exchanges has come.
class Tableau::Run final {
 public:
  explicit Run(const Tableau& tableau)
      : most_((kMostExchanges + kMostExchangesOfARow * tableau.rows_.size()) *
              (tableau.isPatient_ ? kPatience : 1)),
        isPatient_(tableau.isPatient_) {}

  [[nodiscard]] bool isTooLong() const { return exchanges_ >= most_; }
  [[nodiscard]] bool bySymbol() const { return isPatient_ || degenerate_ >= kMostDegenerate; }
  void count(bool isDegenerate) {
    ++exchanges_;
    degenerate_ = isDegenerate ? degenerate_ + 1 : 0;
  }

 private:
  std::size_t most_;
  bool isPatient_;
  std::size_t exchanges_ = 0;
  std::size_t degenerate_ = 0;  // the last ones
};

// Whether an exchange may divide by the coefficient.
bool Tableau::isPivot(const LinearRow& expression, double coefficient) {
  const double size = std::abs(coefficient);
  if (size >= kSurePivot) return true;
  return size >= kLeastCoefficient && size >= kLeastPivot * expression.largest();
}

// By how much the row's basic variable may be out of its bounds.
double Tableau::toleranceOf(const Row& row) const {
  return std::max(kTolerance * std::min(1.0, column(row.basic).scale),
                  kRelativeTolerance * largestConstant_);
}

// To a feasible and optimal tableau from one that is at least one of both, but for rounding.
Tableau::Ending Tableau::settle() {
  for (int round = 0; round < kMostRounds; ++round) {
    if (dualSimplex() != Ending::done) return Ending::stuck;
    if (primalSimplex() != Ending::done) return Ending::stuck;
    if (dualLeavingRow(false) < 0) return Ending::done;
  }
  return Ending::stuck;
}

// A nonbasic variable that lowers the objective when it grows.
Symbol Tableau::primalEntering() {
  std::erase_if(candidates_, [this](Symbol symbol) {
    Column& candidate = column(symbol);
    candidate.isCandidate =
        candidate.kind == Kind::slack && candidate.basicRow < 0 && candidate.reducedCost.sign() < 0;
    return !candidate.isCandidate;
  });
  if (candidates_.empty()) return kNoSymbol;
  return *std::min_element(candidates_.begin(), candidates_.end());
}

// The ratio test: a row whose basic variable is among the first to reach its bound when the
// entering one grows. Of several the one with the largest coefficient, or the smallest symbol.
std::int32_t Tableau::primalLeavingRow(Symbol entering, bool bySymbol) {
  double least = std::numeric_limits<double>::infinity();
  // The rows that bound the entering variable, each with its coefficient and the bound.
  const auto bounding = [&](const auto& use) {
    for (const std::int32_t index : column(entering).rows) {
      const Row& candidate = row(index);
      const Kind kind = column(candidate.basic).kind;
      if (kind == Kind::free) continue;
      const double coefficient = candidate.expression.coefficient(entering);
      if (kind == Kind::slack && coefficient > 0) continue;
      if (!isPivot(candidate.expression, coefficient)) continue;
      const double room = kind == Kind::fixed ? 0 : std::max(0.0, candidate.expression.constant);
      use(index, std::abs(coefficient), room);
    }
  };
  static_cast<void>(rowsWith(entering));
  bounding([&](std::int32_t index, double coefficient, double room) {
    least = std::min(least, (room + kGivesWay * toleranceOf(row(index))) / coefficient);
  });
  std::int32_t best = -1;
  double largest = 0;
  bounding([&](std::int32_t index, double coefficient, double room) {
    if (room / coefficient > least) return;
    const bool isBetter =
        best < 0 || (bySymbol ? row(index).basic < row(best).basic : coefficient > largest);
    if (!isBetter) return;
    best = index;
    largest = coefficient;
  });
  return best;
}

// From a feasible tableau to an optimal one.
Tableau::Ending Tableau::primalSimplex() {
  Run run(*this);
  for (Symbol entering = primalEntering(); entering != kNoSymbol; entering = primalEntering()) {
    if (run.isTooLong()) return Ending::stuck;
    const std::int32_t index = primalLeavingRow(entering, run.bySymbol());
    if (index < 0) {
      // The objective is bounded below, so this reduced cost can only be what rounding left.
      if (sinceRebuild_ > 0) return Ending::stuck;
      column(entering).reducedCost.clear();
      continue;
    }
    run.count(row(index).expression.constant <= toleranceOf(row(index)));
    exchange(index, entering);
  }
  return Ending::done;
}

// A row whose basic variable is out of its bounds: the farthest, or the smallest symbol.
std::int32_t Tableau::dualLeavingRow(bool bySymbol) {
  std::erase_if(infeasible_, [this](std::int32_t index) { return !isInfeasible(row(index)); });
  if (infeasible_.empty()) return -1;
  return *std::min_element(infeasible_.begin(), infeasible_.end(),
                           [this, bySymbol](std::int32_t left, std::int32_t right) {
                             if (bySymbol) return row(left).basic < row(right).basic;
                             return std::abs(row(left).expression.constant) >
                                    std::abs(row(right).expression.constant);
                           });
}

// The dual ratio test: a nonbasic variable that brings the row's basic one to its bound at the
// least cost. Of several the one with the largest coefficient, or the smallest symbol.
Symbol Tableau::dualEntering(const Row& row, bool bySymbol) const {
  const double direction = row.expression.constant < 0 ? 1 : -1;
  Symbol best = kNoSymbol;
  double bestPull = 0;
  for (const Cell& cell : row.expression.cells()) {
    const Column& candidate = column(cell.symbol);
    const double pull = direction * cell.coefficient;
    if (candidate.kind != Kind::slack || pull <= 0 || !isPivot(row.expression, pull)) continue;
    if (best != kNoSymbol) {
      const int order = SymbolicWeight::compare(candidate.reducedCost, 1 / pull,
                                                column(best).reducedCost, 1 / bestPull);
      if (order > 0 || (order == 0 && (bySymbol || pull <= bestPull))) continue;
    }
    best = cell.symbol;
    bestPull = pull;
  }
  return best;
}

// Whether the row, whose basic variable nothing brings to its bound, can be believed.
bool Tableau::isCertain(const Row& contradicting) const {
  if (isSure_) return true;
  const LinearRow& expression = contradicting.expression;
  if (std::abs(expression.constant) <= kClearly * std::max(1.0, largestConstant_)) return false;
  const double direction = expression.constant < 0 ? 1 : -1;
  const bool isAnySmall = std::ranges::any_of(expression.cells(), [&](const Cell& cell) {
    return column(cell.symbol).kind == Kind::slack && direction * cell.coefficient > 0;
  });
  return !isAnySmall && !drifted();
}

// From an optimal tableau that may be infeasible to a feasible one.
Tableau::Ending Tableau::dualSimplex() {
  Run run(*this);
  for (std::int32_t index = dualLeavingRow(run.bySymbol()); index >= 0;
       index = dualLeavingRow(run.bySymbol())) {
    if (run.isTooLong()) return Ending::stuck;
    const Symbol entering = dualEntering(row(index), run.bySymbol());
    if (entering == kNoSymbol) {
      return isCertain(row(index)) ? Ending::contradiction : Ending::stuck;
    }
    run.count(column(entering).reducedCost.sign() == 0);
    exchange(index, entering);
  }
  return Ending::done;
}

void Tableau::exchange(std::int32_t index, Symbol entering) {
  ++exchanges_;
  ++sinceRebuild_;
  ++sinceCheck_;
  pivot(index, entering);
}

}  // namespace kindora::layout
