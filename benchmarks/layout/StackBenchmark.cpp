// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Rows stacked in a card: each takes its left and right from the card, its top from the row above,
// and has a height. In "Stack" edges are the variables and heights are required, in "Wishes" each
// row has a variable for its height, which content pushes and hugs.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <vector>

#include "benchmarks/layout/Sizes.h"
#include "benchmarks/support/Goals.h"
#include "benchmarks/support/HeapUse.h"
#include "layout/Solver.h"

namespace kindora::layout {
namespace {

constexpr int kKeptMemory = 32 << 20;  // bytes

struct Row {
  Variable left;
  Variable right;
  Variable top;
  Variable last;  // its bottom or its height
};

class Card final {
 public:
  Card() {
    left_ = solver_.makeVariable();
    right_ = solver_.makeVariable();
    top_ = solver_.makeVariable();
    require({{{left_}}, Relation::equal, 0});
    width_ = require({{{right_}, {left_, -1}}, Relation::equal, kWidth});
    require({{{top_}}, Relation::equal, 0});
  }

  void stack(int count) {
    Variable above = top_;
    for (int i = 0; i < count; ++i) {
      const Row row = makeRow();
      require({{{row.top}, {above, -1}}, Relation::equal, 0});
      require({{{row.last}, {row.top, -1}}, Relation::equal, kRowHeight});
      above = row.last;
    }
  }

  void stackWithWishes(int count) {
    for (int i = 0; i < count; ++i) {
      const Row row = makeRow();
      Constraint place{{{row.top}, {top_, -1}}, Relation::equal, 0};
      if (i > 0) {
        const Row& above = rows_[static_cast<std::size_t>(i - 1)];
        place.terms = {{row.top}, {above.top, -1}, {above.last, -1}};
      }
      require(place);
      require({{{row.last}}, Relation::greaterThanOrEqual, kRowHeight, kCompression});
      require({{{row.last}}, Relation::lessThanOrEqual, kRowHeight, kHugging});
    }
  }

  void setWidth(double width) {
    benchmark::DoNotOptimize(solver_.setConstant(width_, width));
    solver_.update();
  }

  [[nodiscard]] double readAll() const {
    double sum = 0;
    for (const Row& row : rows_) {
      sum += solver_.value(row.left) + solver_.value(row.right) + solver_.value(row.top) +
             solver_.value(row.last);
    }
    return sum;
  }

  // Whether the last row stands where it must.
  [[nodiscard]] bool isSolved(double width) const {
    const double top = kRowHeight * static_cast<double>(rows_.size() - 1);
    return solver_.value(rows_.back().top) == top && solver_.value(rows_.back().right) == width;
  }

  void update() { solver_.update(); }

 private:
  ConstraintId require(const Constraint& constraint) { return solver_.add(constraint).constraint; }

  Row makeRow() {
    const Row row{solver_.makeVariable(), solver_.makeVariable(), solver_.makeVariable(),
                  solver_.makeVariable()};
    require({{{row.left}, {left_, -1}}, Relation::equal, 0});
    require({{{row.right}, {right_, -1}}, Relation::equal, 0});
    rows_.push_back(row);
    return row;
  }

  Solver solver_;
  Variable left_;
  Variable right_;
  Variable top_;
  ConstraintId width_;
  std::vector<Row> rows_;
};

void build(benchmark::State& state, void (Card::*stack)(int)) {
  const int count = static_cast<int>(state.range(0));
  std::size_t allocations = 0;
  for (auto iteration : state) {
    const std::size_t before = heapuse::allocations();
    Card card;
    (card.*stack)(count);
    card.update();
    benchmark::DoNotOptimize(card.readAll());
    allocations = heapuse::allocations() - before;
    if (!card.isSolved(kWidth)) state.SkipWithError("the rows are not where they must be");
  }
  state.counters["allocations"] = static_cast<double>(allocations);
}

void resize(benchmark::State& state, void (Card::*stack)(int)) {
  Card card;
  (card.*stack)(static_cast<int>(state.range(0)));
  card.update();
  card.setWidth(kOtherWidth);  // takes the room that later changes use again
  const std::size_t before = heapuse::allocations();
  bool isWide = true;
  for (auto iteration : state) {
    isWide = !isWide;
    card.setWidth(isWide ? kOtherWidth : kWidth);
    benchmark::DoNotOptimize(card.readAll());
  }
  state.counters["allocations"] = static_cast<double>(heapuse::allocations() - before);
  if (!card.isSolved(isWide ? kOtherWidth : kWidth)) {
    state.SkipWithError("the rows are not where they must be");
  }
}

BENCHMARK_CAPTURE(build, stack, &Card::stack)->Name("Layout/Build")->Apply(sizes);
BENCHMARK_CAPTURE(resize, stack, &Card::stack)->Name("Layout/Resize")->Apply(sizes);
BENCHMARK_CAPTURE(build, wishes, &Card::stackWithWishes)->Name("Layout/BuildWishes")->Apply(sizes);
BENCHMARK_CAPTURE(resize, wishes, &Card::stackWithWishes)
    ->Name("Layout/ResizeWishes")
    ->Apply(sizes);

constexpr Goal kGoals[] = {
    {"Layout/Build/1000", "Layout/Build/100", 15},
    {"Layout/BuildWishes/1000", "Layout/BuildWishes/100", 15},
    {"Layout/Resize/1000", "Layout/Resize/100", 15},
    // A changed width against building anew, which it saves.
    {"Layout/Resize/100", "Layout/Build/100", 0.1},
    {"Layout/Resize/1000", "Layout/Build/1000", 0.1},
    {"Layout/Resize/1000", nullptr, 0, "allocations"},
    // The same with views.
    {"Layout/BuildViews/1000", "Layout/BuildViews/100", 15},
    {"Layout/ResizeViews/1000", "Layout/BuildViews/1000", 0.1},
};

}  // namespace
}  // namespace kindora::layout

int main(int argc, char** argv) {
  // Memory stays with the program, as it does in one that shows views all the time. Else the larger
  // cards are charged for the pages that the C library hands back and asks for again at each turn.
  mallopt(M_TRIM_THRESHOLD, kindora::layout::kKeptMemory);
  mallopt(M_MMAP_THRESHOLD, kindora::layout::kKeptMemory);
  return kindora::runBenchmarks(argc, argv, kindora::layout::kGoals);
}
