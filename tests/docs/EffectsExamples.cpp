// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "effects/keyframes/KeyframePlayback.h"
#include "effects/keyframes/TovSpringAnimation.h"
#include "effects/scratch/JxScratchImageView.h"
#include "effects/springy/BelSpringyCollectionViewFlowLayout.h"
#include "toolkit/collection/UICollectionView.h"

namespace kindora {
namespace {

const std::vector<Rgba8> grey(300 * 200, Rgba8{128, 128, 128, 255});

TEST(EffectsExamples, APlaybackTellsWhatShows) {
  TovSpringAnimation animation;
  animation.setFromValue(NSValue::numberWithDouble(0));
  animation.setToValue(NSValue::numberWithDouble(200));
  const double elapsed = animation.duration();
  NSValue shown;
  const auto show = [&](const NSValue& value) { shown = value; };
  bool told = false;
  const auto tellDelegate = [&] { told = true; };
#include "examples/effects/keyframes/KeyframePlayback.h.1"
  EXPECT_TRUE(told);
}

TEST(EffectsExamples, ACoverAndItsBrush) {
  class Controller : public JxScratchImageViewDelegate {
    void jxScratchImageView(JxScratchImageView&, double) override {}
  };
  const auto controller = std::make_shared<Controller>();
  const auto cover = UIImage::imageWithRaster(Raster(300, 200, grey));
  const auto view = std::make_shared<JxScratchImageView>();
#include "examples/effects/scratch/JxScratchImageView.h.1"
  EXPECT_EQ(view->maskingProgress(), 0);
}

TEST(EffectsExamples, AFingerScratches) {
#include "examples/docs/effects.md.1"
  EXPECT_GT(view->maskingProgress(), 0);
}

TEST(EffectsExamples, ASpringGoesBackAndForth) {
#include "examples/docs/effects.md.4"
  EXPECT_NEAR(playback.valueAt(0.2).doubleValue(), 167.79, 0.005);
}

// A hundred cells in a view of 320 x 480.
class Grid final : public UICollectionView {
 public:
  CGRect bounds() const override { return {{0, 0}, {320, 480}}; }
  CGRect frame() const override { return {{0, 0}, {320, 480}}; }
  CGPoint panLocation() const override { return {}; }
  int numberOfSections() const override { return 1; }
  int numberOfItemsInSection(int) const override { return 100; }
  UICollectionViewDelegateFlowLayout* delegate() const override { return nullptr; }
};

TEST(EffectsExamples, AGridComesToRest) {
  Grid grid;
  const CGSize size = grid.bounds().size;
#include "examples/docs/effects.md.6"
  EXPECT_TRUE(layout.isResting());
}

}  // namespace
}  // namespace kindora
