// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A spring, a scratch cover and a springy grid, in numbers.
#include <iomanip>
#include <iostream>
#include <memory>
#include <vector>

#include "effects/keyframes/KeyframePlayback.h"
#include "effects/keyframes/TovSpringAnimation.h"
#include "effects/scratch/JxScratchImageView.h"
#include "effects/springy/BelSpringyCollectionViewFlowLayout.h"
#include "toolkit/collection/UICollectionView.h"

using namespace kindora;

namespace {

void spring() {
  TovSpringAnimation spring;
  spring.setDamping(10);
  spring.setStiffness(100);
  spring.setFromValue(NSValue::numberWithDouble(0));
  spring.setToValue(NSValue::numberWithDouble(200));
  spring.setDuration(spring.durationForEpsilon(0.001));

  const KeyframePlayback playback(spring);  // what shows, at each moment since the start
  std::cout << "spring of " << spring.duration() << " s:";
  for (const double seconds : {0.0, 0.2, 0.4, 1.0}) {
    std::cout << ' ' << playback.valueAt(seconds).doubleValue();
  }
  std::cout << '\n';
}

void scratch() {
  const std::vector<Rgba8> grey(300 * 200, Rgba8{128, 128, 128, 255});
  const auto view = std::make_shared<JxScratchImageView>();
  view->setFrame({{0, 0}, {300, 200}});
  view->setImage(UIImage::imageWithRaster(Raster(300, 200, grey)), 10);  // a brush of 20 pixels

  view->touchesBegan({{UITouchPhase::began, {10, 90}, {10, 90}}});
  for (double x = 20; x <= 290; x += 10) {
    view->touchesMoved({{UITouchPhase::moved, {x, 90}, {x - 10, 90}}});
  }
  std::cout << "scratched away: " << view->maskingProgress() << ", below the finger "
            << int{view->image()->raster().pixel(150, 90).alpha} << ", elsewhere "
            << int{view->image()->raster().pixel(150, 150).alpha} << '\n';
}

// A hundred cells in a view of 320 x 480.
class Grid final : public UICollectionView {
 public:
  CGRect visible{{0, 0}, {320, 480}};
  CGPoint finger;

  [[nodiscard]] CGRect bounds() const override { return visible; }
  [[nodiscard]] CGRect frame() const override { return {{0, 0}, visible.size}; }
  [[nodiscard]] CGPoint panLocation() const override { return finger; }
  [[nodiscard]] int numberOfSections() const override { return 1; }
  [[nodiscard]] int numberOfItemsInSection(int /*section*/) const override { return 100; }
  [[nodiscard]] UICollectionViewDelegateFlowLayout* delegate() const override { return nullptr; }
};

void springyGrid() {
  Grid grid;
  BelSpringyCollectionViewFlowLayout layout;
  layout.setCollectionView(&grid);
  layout.prepareLayout();
  const auto near = layout.layoutAttributesForItemAtIndexPath({0, 0});
  const auto far = layout.layoutAttributesForItemAtIndexPath({0, 40});
  std::cout << "grid: " << near->center().y << ' ' << far->center().y << '\n';

  grid.finger = {32, 32};  // the finger is on the first cell and scrolls by 30
  (void)layout.shouldInvalidateLayoutForBoundsChange({{0, 30}, grid.visible.size});
  grid.visible.origin.y = 30;
  layout.prepareLayout();
  std::cout << "scrolled: " << near->center().y << ' ' << far->center().y << '\n';

  while (!layout.isResting()) layout.advance(1.0 / 60);
  std::cout << "at rest: " << near->center().y << ' ' << far->center().y << '\n';
}

}  // namespace

int main() {
  std::cout << std::fixed << std::setprecision(2);
  spring();
  scratch();
  springyGrid();
}
