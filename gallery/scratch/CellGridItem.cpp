// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/scratch/CellGridItem.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>

namespace kindora {
namespace {

constexpr float kMarkedAlpha = 0.3F;
constexpr float kLineAlpha = 0.55F;

QColor faded(QColor color, float alpha) {
  color.setAlphaF(alpha);
  return color;
}

}  // namespace

CellGridItem::CellGridItem(QQuickItem* parent) : QQuickPaintedItem(parent) {}

void CellGridItem::paint(QPainter* painter) {
  if (columns_ <= 0 || rows_ <= 0) return;
  QPainterPath outline;
  outline.addRoundedRect(boundingRect(), radius_, radius_);
  painter->setClipPath(outline);
  // On whole points, so that lines are crisp and neighbours neither overlap nor leave a gap.
  const auto edge = [](double extent, int index, int count) {
    return static_cast<int>(std::lround(extent * index / count));
  };
  const auto x = [&](int column) { return edge(width(), column, columns_); };
  const auto y = [&](int row) { return edge(height(), row, rows_); };
  for (int row = 0; row < rows_; ++row) {
    for (int column = 0; column < columns_; ++column) {
      const qsizetype place = qsizetype{row} * columns_ + column;
      if (place >= marks_.size() || marks_[place] == 0) continue;
      painter->fillRect(QRect(QPoint(x(column), y(row)), QPoint(x(column + 1) - 1, y(row + 1) - 1)),
                        faded(tint_, kMarkedAlpha));
    }
  }
  const QColor line = faded(tint_, kLineAlpha);
  for (int column = 1; column < columns_; ++column) {
    painter->fillRect(x(column), 0, 1, static_cast<int>(height()), line);
  }
  for (int row = 1; row < rows_; ++row) {
    painter->fillRect(0, y(row), static_cast<int>(width()), 1, line);
  }
}

}  // namespace kindora
