// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The stacked rows as views: each row a view in a card, placed by four constraints. What the engine
// adds to the solver: views and constraints made, taken over, and frames given.
#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

#include "benchmarks/layout/Sizes.h"
#include "benchmarks/support/HeapUse.h"
#include "toolkit/view/NSLayoutConstraint.h"
#include "toolkit/view/UIView.h"

namespace kindora {
namespace {

using layout::kOtherWidth;
using layout::kRowHeight;
using layout::kWidth;
using Attribute = NSLayoutAttribute;

class ViewCard final {
 public:
  ViewCard() { setWidth(kWidth); }

  void stack(int count) {
    for (int i = 0; i < count; ++i) {
      auto row = std::make_shared<UIView>();
      row->setTranslatesAutoresizingMaskIntoConstraints(false);
      card_->addSubview(row);
      relate(row, Attribute::left, card_, Attribute::left);
      relate(row, Attribute::right, card_, Attribute::right);
      if (rows_.empty()) {
        relate(row, Attribute::top, card_, Attribute::top);
      } else {
        relate(row, Attribute::top, rows_.back(), Attribute::bottom);
      }
      row->addConstraint(std::make_shared<NSLayoutConstraint>(NSLayoutConstraint::Parts{
          .firstItem = row, .firstAttribute = Attribute::height, .constant = kRowHeight}));
      rows_.push_back(std::move(row));
    }
  }

  void setWidth(double width) { card_->setFrame({{0, 0}, {width, 480}}); }
  void layOut() { card_->layoutIfNeeded(); }

  [[nodiscard]] double readAll() const {
    double sum = 0;
    for (const auto& row : rows_) {
      const CGRect frame = row->frame();
      sum += frame.origin.x + frame.origin.y + frame.size.width + frame.size.height;
    }
    return sum;
  }

  // Whether the last row stands where it must.
  [[nodiscard]] bool isSolved(double width) const {
    const double top = kRowHeight * static_cast<double>(rows_.size() - 1);
    return rows_.back()->frame() == CGRect{{0, top}, {width, kRowHeight}};
  }

 private:
  void relate(const UIViewRef& view, Attribute attribute, const UIViewRef& other,
              Attribute otherAttribute) {
    card_->addConstraint(std::make_shared<NSLayoutConstraint>(
        NSLayoutConstraint::Parts{.firstItem = view,
                                  .firstAttribute = attribute,
                                  .secondItem = other,
                                  .secondAttribute = otherAttribute}));
  }

  UIViewRef card_ = std::make_shared<UIView>();
  std::vector<UIViewRef> rows_;
};

void buildViews(benchmark::State& state) {
  std::size_t allocations = 0;
  for (auto iteration : state) {
    const std::size_t before = heapuse::allocations();
    ViewCard card;
    card.stack(static_cast<int>(state.range(0)));
    card.layOut();
    benchmark::DoNotOptimize(card.readAll());
    allocations = heapuse::allocations() - before;
    if (!card.isSolved(kWidth)) state.SkipWithError("the rows are not where they must be");
  }
  state.counters["allocations"] = static_cast<double>(allocations);
}

void resizeViews(benchmark::State& state) {
  ViewCard card;
  card.stack(static_cast<int>(state.range(0)));
  card.layOut();
  bool isWide = false;
  for (auto iteration : state) {
    isWide = !isWide;
    card.setWidth(isWide ? kOtherWidth : kWidth);
    card.layOut();
    benchmark::DoNotOptimize(card.readAll());
  }
  if (!card.isSolved(isWide ? kOtherWidth : kWidth)) {
    state.SkipWithError("the rows are not where they must be");
  }
}

BENCHMARK(buildViews)->Name("Layout/BuildViews")->Apply(layout::sizes);
BENCHMARK(resizeViews)->Name("Layout/ResizeViews")->Apply(layout::sizes);

}  // namespace
}  // namespace kindora
