// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMap>
#include <QQuickItem>
#include <vector>

#include "effects/scratch/JxScratchImageView.h"
#include "toolkit/controllers/UIViewAnimation.h"
#include "toolkit/quick/ViewItem.h"

namespace kindora {

/// Draws a scratch-off view and feeds it fingers and the mouse. Only the tiles of the cover that a
/// scratch has changed are uploaded again. Takes the pointer for itself, so that nothing around it
/// scrolls meanwhile.
class ScratchImageViewItem : public kindora::ViewItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY radiusChanged)

 public:
  explicit ScratchImageViewItem(QQuickItem* parent = nullptr);

  /// Of the rounded corners, in points.
  [[nodiscard]] double radius() const { return radius_; }
  void setRadius(double radius);

  /// Scratches the whole cover away, as a finger would that goes over it line by line. Does nothing
  /// while it is at it.
  Q_INVOKABLE void scratchAway();
  /// Leaves the rest of the cover where it is.
  Q_INVOKABLE void stopScratchingAway();

 signals:
  void radiusChanged();

 protected:
  void viewDidChange() override;
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
  void geometryChange(const QRectF& now, const QRectF& before) override;
  void touchEvent(QTouchEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  [[nodiscard]] JxScratchImageView* scratchView() const;
  void followPath(std::size_t points);
  [[nodiscard]] QImage tileImage(std::size_t column, std::size_t row) const;

  double radius_ = 0;
  Raster shown_;
  QSizeF shownSize_;
  std::vector<UITouch> path_;  // what scratchAway has still to do
  std::size_t followed_ = 0;
  ProgressAnimation pathClock_;
  QMap<int, QPointF> previous_;  // location of each finger in the event before
};

}  // namespace kindora
