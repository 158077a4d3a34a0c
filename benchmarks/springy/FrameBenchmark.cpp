// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// One iteration is what a frame of a drag costs: a scroll step, tiling, a tick with the tiling that
// follows it, and the cells that are to be shown. The part of the grid that is scrolled through has
// the same number of cells in sight whatever the number of badges.
#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "benchmarks/support/Goals.h"
#include "benchmarks/support/HeapUse.h"
#include "effects/springy/BelSpringyCollectionViewFlowLayout.h"
#include "toolkit/collection/UICollectionViewDelegateFlowLayout.h"

namespace kindora {
namespace {

constexpr int kRepetitions = 9;
constexpr double kSpacing = 10;
constexpr CGSize kView{375, 667};
constexpr CGPoint kFinger{187, 333};  // in the view
constexpr double kStep = 23;
constexpr double kFrame = 1.0 / 60;

class Grid final : public UICollectionView, public UICollectionViewDelegateFlowLayout {
 public:
  explicit Grid(int badges) : badges_(static_cast<std::size_t>(badges)) {}

  void scrollTo(double y) { y_ = y; }

  [[nodiscard]] CGRect bounds() const override { return {{0, y_}, kView}; }
  [[nodiscard]] CGRect frame() const override { return {{0, 0}, kView}; }
  [[nodiscard]] CGPoint panLocation() const override { return {kFinger.x, kFinger.y + y_}; }
  [[nodiscard]] int numberOfSections() const override { return 1; }
  [[nodiscard]] int numberOfItemsInSection(int /*section*/) const override {
    return static_cast<int>(badges_.size());
  }
  [[nodiscard]] UICollectionViewDelegateFlowLayout* delegate() const override {
    return const_cast<Grid*>(this);
  }

  [[nodiscard]] CGSize collectionViewLayoutSizeForItemAtIndexPath(
      const UICollectionView& /*collectionView*/, IndexPath /*path*/) override {
    return {std::floor((kView.width - 2 * kSpacing) / 3 - kSpacing), 140};
  }
  [[nodiscard]] bool collectionViewLayoutHasUniformItemSizeInSection(
      const UICollectionView& /*collectionView*/, int /*section*/) override {
    return true;
  }
  [[nodiscard]] double collectionViewLayoutMinimumInteritemSpacingForSectionAtIndex(
      const UICollectionView& /*collectionView*/, int /*section*/) override {
    return kSpacing;
  }
  [[nodiscard]] double collectionViewLayoutMinimumLineSpacingForSectionAtIndex(
      const UICollectionView& /*collectionView*/, int /*section*/) override {
    return kSpacing;
  }
  [[nodiscard]] UIEdgeInsets collectionViewLayoutInsetForSectionAtIndex(
      const UICollectionView& /*collectionView*/, int /*section*/) override {
    return {kSpacing, kSpacing, kSpacing, kSpacing};
  }

 private:
  std::vector<std::shared_ptr<int>> badges_;  // the records; nobody looks at them here
  double y_ = 0;
};

void frame(benchmark::State& state) {
  Grid grid(static_cast<int>(state.range(0)));
  const std::size_t records = heapuse::bytes();
  heapuse::resetPeak();
  {
    BelSpringyCollectionViewFlowLayout layout;
    layout.setCollectionView(&grid);
    layout.prepareLayout();
    // Around the middle of the content, as far as the smallest grid allows.
    const double middle = (layout.collectionViewContentSize().height - kView.height) / 2;
    constexpr double kReach = 1800;
    double y = middle;
    double step = kStep;
    grid.scrollTo(y);
    layout.prepareLayout();
    std::size_t shown = 0;
    for (auto iteration : state) {
      if (std::abs(y + step - middle) > kReach) step = -step;
      y += step;
      const bool invalidates = layout.shouldInvalidateLayoutForBoundsChange({{0, y}, kView});
      benchmark::DoNotOptimize(invalidates);
      grid.scrollTo(y);
      layout.prepareLayout();
      if (layout.dynamicAnimator()->advance(kFrame)) layout.prepareLayout();
      shown += layout.layoutAttributesForElementsInRect(grid.bounds()).size();
    }
    state.counters["cellsShown"] =
        static_cast<double>(shown) / static_cast<double>(state.iterations());
    layout.setCollectionView(nullptr);
  }
  state.counters["bytesBeyondRecords"] = static_cast<double>(heapuse::peakBytes() - records);
}
BENCHMARK(frame)
    ->Name("Springy/Frame")
    ->Arg(100)
    ->Arg(10000)
    ->Arg(1000000)
    ->Repetitions(kRepetitions);

constexpr Goal kGoals[] = {
    {"Springy/Frame/1000000", "Springy/Frame/100", 1.3},
    {"Springy/Frame/1000000", "Springy/Frame/100", 1.3, "bytesBeyondRecords"},
};

}  // namespace
}  // namespace kindora

int main(int argc, char** argv) { return kindora::runBenchmarks(argc, argv, kindora::kGoals); }
