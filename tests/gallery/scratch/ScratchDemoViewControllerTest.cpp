// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/scratch/ScratchDemoViewController.h"

#include "tests/gallery/GalleryFixture.h"

namespace kindora {
namespace {

class ScratchDemoViewControllerTest : public GalleryFixture {
 protected:
  ScratchDemoViewControllerTest() {
    const std::vector<Rgba8> pixels(400 * 400, Rgba8{90, 90, 90, 255});
    fakes.bundle->setImage("scratchImage", UIImage::imageWithRaster(Raster(400, 400, pixels)));
    screen = &open<ScratchDemoViewController>(kScratchRow);
    cover = screen->scratchImageView.lock();
    cover->reportFrame({{0, 0}, {400, 400}});
  }
  void tap(CGPoint point) { cover->touchesBegan({{UITouchPhase::began, point, point}}); }

  ScratchDemoViewController* screen = nullptr;
  std::shared_ptr<JxScratchImageView> cover;
};

TEST_F(ScratchDemoViewControllerTest, OpensWithAWholeCoverAndItsGrid) {
  EXPECT_EQ(screen->columns(), 4);
  EXPECT_EQ(screen->rows(), 4);
  EXPECT_EQ(screen->marks(), QByteArray(16, '\0'));
  EXPECT_EQ(screen->progressText(), QStringLiteral("0 % gone, 0 of 16 cells marked"));
  EXPECT_TRUE(screen->isGridShown());
}

// A tap marks the cell under the lower left of its disc.
TEST_F(ScratchDemoViewControllerTest, MarksAreReadFromTheTopLeft) {
  int told = 0;
  QObject::connect(screen, &ScratchDemoViewController::gridChanged, screen, [&] { ++told; });
  tap({160, 40});
  QByteArray expected(16, '\0');
  expected[1] = '\1';
  EXPECT_EQ(screen->marks(), expected);
  EXPECT_EQ(told, 1);
  EXPECT_EQ(screen->progress(), 1.0 / 16);
  EXPECT_EQ(screen->progressText(), QStringLiteral("6 % gone, 1 of 16 cells marked"));
}

TEST_F(ScratchDemoViewControllerTest, StartingAnewPutsTheCoverBack) {
  int told = 0;
  QObject::connect(screen, &ScratchDemoViewController::startedAnew, screen, [&] { ++told; });
  tap({160, 40});
  screen->startAnew();
  EXPECT_EQ(told, 1);
  EXPECT_EQ(screen->progress(), 0);
  EXPECT_EQ(screen->marks(), QByteArray(16, '\0'));
}

TEST_F(ScratchDemoViewControllerTest, AnotherRadiusIsAnotherGrid) {
  tap({160, 40});
  screen->brushRadius()->setValue(25);
  EXPECT_EQ(cover->radius(), 25U);
  EXPECT_EQ(screen->columns(), 8);
  EXPECT_EQ(screen->marks(), QByteArray(64, '\0'));
}

TEST_F(ScratchDemoViewControllerTest, TheGridIsHiddenAndShown) {
  int told = 0;
  QObject::connect(screen, &ScratchDemoViewController::gridShownChanged, screen, [&] { ++told; });
  screen->setGridShown(false);
  screen->setGridShown(false);
  EXPECT_FALSE(screen->isGridShown());
  EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace kindora
