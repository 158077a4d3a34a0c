// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// An image view whose image is a cover that a finger rubs away.
//
// The cover is erased exactly, in a bitmap; how much is gone is counted coarsely, in a grid with
// one cell a brush diameter. A stroke marks cells by a rule that depends on its direction, and a
// tap marks the cell at the lower-left corner of its disc: the progress figures rest on both, so
// neither is to be straightened.
//
//   view->setImage(cover, 50);
//   view->setDelegate(controller);
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "effects/scratch/BitmapContext.h"
#include "effects/scratch/JxMatrix.h"
#include "effects/scratch/JxScratchImageViewDelegate.h"
#include "toolkit/view/UIImageView.h"
#include "toolkit/view/UITouch.h"

namespace kindora {

class JxScratchImageView : public UIImageView {
 public:
  /// Does nothing when the view shows this very image; otherwise starts over with radius 30.
  void setImage(const UIImageRef& image) override;
  /// Starts over with a new cover, or none, and a brush radius in pixels of the cover.
  void setImage(const UIImageRef& image, std::size_t radius);
  /// Prepares bitmap and grid for the image that the view shows.
  void initialize();

  /// The fraction of marked cells in [0, 1]. Without a cover: not a number at first, infinite once
  /// touched. Not a number too when the cover is smaller than one brush diameter.
  [[nodiscard]] double maskingProgress() const;

  /// Scratch, and show the result. Other phases than began and moved change nothing.
  void touchesBegan(const UITouches& touches);
  void touchesMoved(const UITouches& touches);
  /// Erases, marks, reports a changed progress, and returns a new image of the bitmap as it is now,
  /// null without a cover. Does not show it.
  UIImageRef addTouches(const UITouches& touches);

  /// Marks the cell under a point, in pixels of the bitmap, y up.
  void fillTileWithPoint(CGPoint point);
  /// Marks cells from begin towards end, cell by cell diagonally, and the cell under end. Walks
  /// only when begin is at or below end in both coordinates.
  void fillTileWithTwoPoints(CGPoint begin, CGPoint end);

  [[nodiscard]] std::shared_ptr<JxScratchImageViewDelegate> delegate() const {
    return delegate_.lock();
  }
  void setDelegate(std::weak_ptr<JxScratchImageViewDelegate> delegate);
  [[nodiscard]] const std::shared_ptr<JxMatrix>& maskedMatrix() const { return maskedMatrix_; }
  void setMaskedMatrix(std::shared_ptr<JxMatrix> matrix);

  [[nodiscard]] std::size_t tilesX() const { return tilesX_; }
  [[nodiscard]] std::size_t tilesY() const { return tilesY_; }
  [[nodiscard]] std::int32_t tilesFilled() const { return tilesFilled_; }
  [[nodiscard]] std::size_t radius() const { return radius_; }
  [[nodiscard]] const std::shared_ptr<const ColorSpace>& colorSpace() const { return colorSpace_; }
  /// Null without a cover.
  [[nodiscard]] const BitmapContext* imageContext() const { return imageContext_.get(); }

 private:
  void scratch(const UITouch& touch, CGSize pixels);

  std::size_t tilesX_ = 0;
  std::size_t tilesY_ = 0;
  std::int32_t tilesFilled_ = 0;
  std::shared_ptr<const ColorSpace> colorSpace_;
  std::unique_ptr<BitmapContext> imageContext_;
  std::size_t radius_ = 0;
  std::weak_ptr<JxScratchImageViewDelegate> delegate_;
  std::shared_ptr<JxMatrix> maskedMatrix_;
};

}  // namespace kindora
