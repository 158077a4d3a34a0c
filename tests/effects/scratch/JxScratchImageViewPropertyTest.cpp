// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What holds after any session of covers and touches.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "effects/scratch/JxScratchImageView.h"
#include "tests/effects/scratch/ScratchFixture.h"

namespace kindora {
namespace {

int between(int low, int high) { return *rc::gen::inRange(low, high + 1); }

// Coarse, so that equal coordinates, edges and points outside are frequent.
CGPoint anyPoint() { return {between(-2, 12) * 10.0, between(-2, 12) * 10.0}; }

CGPoint finePoint() { return {between(-200, 1200) / 10.0, between(-200, 1200) / 10.0}; }

UITouch anyTouch() {
  const bool fine = between(0, 1) == 1;
  const CGPoint previous = fine ? finePoint() : anyPoint();
  const CGPoint now = between(0, 3) == 0 ? previous : fine ? finePoint() : anyPoint();
  return {static_cast<UITouchPhase>(between(0, 4)), now, previous};
}

UITouches anyTouches() {
  UITouches touches;
  for (int i = between(0, 3); i > 0; --i) touches.push_back(anyTouch());
  return touches;
}

UIImageRef anyCover() {
  const auto width = static_cast<std::size_t>(between(0, 150));
  const auto height = static_cast<std::size_t>(between(0, 150));
  switch (between(0, 2)) {
    case 0:
      return cover(width, height);
    case 1:
      return cover(width, height, 2);
    default:
      return UIImage::imageWithRaster(
          plainRaster(width, height),
          {static_cast<double>(width) - 0.3, static_cast<double>(height) * 0.7}, 1.5);
  }
}

void expectInvariants(const JxScratchImageView& view) {
  RC_ASSERT(view.maskedMatrix()->max() == (JxMatrix::Max{view.tilesX(), view.tilesY()}));
  RC_ASSERT(markedCells(view).size() == static_cast<std::size_t>(view.tilesFilled()));
  const Raster& bitmap = view.imageContext()->raster();
  RC_ASSERT(bitmap.width() == view.imageContext()->layout().width);
  RC_ASSERT(bitmap.height() == view.imageContext()->layout().height);
}

RC_GTEST_PROP(JxScratchImageViewProperty, CountsTheMarkedCellsAndNeverLosesOne, ()) {
  const auto view = scratchView({100, 100});
  view->setImage(anyCover(), static_cast<std::size_t>(between(0, 60)));
  for (int i = between(1, 30); i > 0; --i) {
    std::int32_t filled = view->tilesFilled();
    switch (between(0, 9)) {
      case 0:
        view->setImage(anyCover(), static_cast<std::size_t>(between(0, 60)));
        filled = 0;
        RC_ASSERT(view->tilesFilled() == 0);
        break;
      case 1:
        view->setFrame({{0, 0}, {between(0, 3) * 50.0, between(0, 3) * 50.0}});
        break;
      case 2:
        view->touchesBegan(anyTouches());
        break;
      default:
        view->touchesMoved(anyTouches());
    }
    RC_ASSERT(view->tilesFilled() >= filled);
    expectInvariants(*view);
  }
}

RC_GTEST_PROP(JxScratchImageViewProperty, ReportsExactlyTheSetsThatChangeTheCount, ()) {
  const auto ear = std::make_shared<Ear>();
  const auto view = scratchView({100, 100});
  view->setImage(anyCover(), static_cast<std::size_t>(between(1, 30)));
  view->setDelegate(ear);
  for (int i = between(1, 20); i > 0; --i) {
    const std::int32_t filled = view->tilesFilled();
    ear->heard.clear();
    view->touchesMoved(anyTouches());
    if (view->tilesFilled() == filled) {
      RC_ASSERT(ear->heard.empty());
    } else {
      RC_ASSERT(ear->heard == std::vector<double>{view->maskingProgress()});
    }
  }
}

RC_GTEST_PROP(JxScratchImageViewProperty, EarlierSnapshotsNeverChange, ()) {
  const auto view = scratchView({100, 100});
  view->setImage(anyCover(), static_cast<std::size_t>(between(1, 60)));
  std::vector<std::pair<UIImageRef, std::vector<Rgba8>>> snapshots;
  for (int i = between(1, 12); i > 0; --i) {
    view->touchesMoved(anyTouches());
    snapshots.emplace_back(view->image(), view->image()->raster().pixels());
  }
  for (const auto& [image, pixels] : snapshots) RC_ASSERT(image->raster().pixels() == pixels);
}

RC_GTEST_PROP(JxScratchImageViewProperty, ErasingNeverAddsToAPixel, ()) {
  const auto view = scratchView({100, 100});
  view->setImage(anyCover(), static_cast<std::size_t>(between(1, 60)));
  std::vector<Rgba8> before = view->imageContext()->raster().pixels();
  for (int i = between(1, 8); i > 0; --i) {
    view->touchesMoved(anyTouches());
    std::vector<Rgba8> after = view->image()->raster().pixels();
    RC_ASSERT(after.size() == before.size());
    for (std::size_t k = 0; k < after.size(); ++k) {
      const bool gained = after[k].alpha > before[k].alpha || after[k].red > before[k].red;
      // Premultiplied channels stay within alpha.
      const bool fringed = after[k].red > after[k].alpha;
      if (gained || fringed) RC_FAIL("a pixel gained");
    }
    before = std::move(after);
  }
}

}  // namespace
}  // namespace kindora
