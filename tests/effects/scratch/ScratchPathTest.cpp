// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/scratch/ScratchPath.h"

#include <gtest/gtest.h>

#include <limits>

#include "effects/scratch/JxScratchImageView.h"

namespace kindora {
namespace {

TEST(ScratchPath, GoesFromRightToLeftInLinesABrushApart) {
  const auto lines = scratchPath({300, 200}, 25, 10);
  ASSERT_EQ(lines.size(), 4u);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    EXPECT_EQ(lines[i].front(), (CGPoint{300, 25.0 + 50.0 * static_cast<double>(i)}));
    EXPECT_EQ(lines[i].back(), (CGPoint{0, 25.0 + 50.0 * static_cast<double>(i)}));
  }
}

TEST(ScratchPath, TakesStepsOfTheGivenLength) {
  const auto lines = scratchPath({30, 10}, 5, 10);
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0], (std::vector<CGPoint>{{30, 5}, {20, 5}, {10, 5}, {0, 5}}));
}

TEST(ScratchPath, KeepsTheLastLineInside) {
  const auto lines = scratchPath({10, 11}, 5, 10);
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[1].front().y, 11);
}

TEST(ScratchPath, IsEmptyWithoutSizeRadiusOrStep) {
  EXPECT_TRUE(scratchPath({0, 10}, 5, 1).empty());
  EXPECT_TRUE(scratchPath({10, -1}, 5, 1).empty());
  EXPECT_TRUE(scratchPath({10, 10}, 0, 1).empty());
  EXPECT_TRUE(scratchPath({10, 10}, 5, 0).empty());
  EXPECT_TRUE(scratchPath({10, 10}, std::numeric_limits<double>::quiet_NaN(), 1).empty());
}

TEST(ScratchPath, MarksEveryCellOfACover) {
  JxScratchImageView view;
  view.setFrame({{0, 0}, {320, 320}});
  view.setImage(UIImage::imageWithRaster(Raster(640, 640), 2), 50);
  for (const auto& line : scratchPath({320, 320}, 25, 12)) {
    view.touchesBegan({{UITouchPhase::began, line[0], line[0]}});
    for (std::size_t i = 1; i < line.size(); ++i) {
      view.touchesMoved({{UITouchPhase::moved, line[i], line[i - 1]}});
    }
  }
  EXPECT_EQ(view.maskingProgress(), 1);
}

}  // namespace
}  // namespace kindora
