// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/curves/CurvePlotItem.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>

namespace kindora {
namespace {

constexpr double kMargin = 4;  // so that line and dots at the edge are whole
constexpr double kLine = 1.5;
constexpr float kLineAlpha = 0.5F;
constexpr double kDot = 2;  // radius
const QColor kGuide(0xC4, 0xC4, 0xC4);

}  // namespace

CurvePlotItem::CurvePlotItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
  setAntialiasing(true);
}

void CurvePlotItem::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickPaintedItem::geometryChange(now, before);
  emit plotChanged();
}

QPointF CurvePlotItem::place(QPointF point) const {
  const double range = highest_ > lowest_ ? highest_ - lowest_ : 1;
  return {kMargin + point.x() * (width() - 2 * kMargin),
          height() - kMargin - (point.y() - lowest_) / range * (height() - 2 * kMargin)};
}

void CurvePlotItem::paint(QPainter* painter) {
  painter->setPen(QPen(kGuide, 1, Qt::DashLine));
  for (const double level : {0.0, 1.0}) {
    const double y = std::round(place({0, level}).y()) + 0.5;
    painter->drawLine(QPointF(0, y), QPointF(width(), y));
  }

  QPainterPath path;
  bool inGap = true;
  for (const QPointF& point : points_) {
    if (!std::isfinite(point.y())) {
      inGap = true;
      continue;
    }
    inGap ? path.moveTo(place(point)) : path.lineTo(place(point));
    inGap = false;
  }
  painter->setBrush(Qt::NoBrush);
  QColor lineColor = tint_;
  lineColor.setAlphaF(kLineAlpha);
  painter->setPen(QPen(lineColor, kLine, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter->drawPath(path);

  painter->setPen(Qt::NoPen);
  painter->setBrush(tint_);
  for (const QPointF& point : points_) {
    if (std::isfinite(point.y())) painter->drawEllipse(place(point), kDot, kDot);
  }
}

}  // namespace kindora
