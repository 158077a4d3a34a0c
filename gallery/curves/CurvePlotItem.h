// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QList>
#include <QPointF>
#include <QQuickPaintedItem>

namespace kindora {

/// Draws a curve through points: x from 0 at the left to 1 at the right, y from lowest at the
/// bottom to highest at the top, with a dot for each point, and dashed lines where y is 0 and 1.
/// What is not a number leaves a gap.
class CurvePlotItem : public QQuickPaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QList<QPointF> points READ points WRITE setPoints NOTIFY plotChanged)
  Q_PROPERTY(double lowest READ lowest WRITE setLowest NOTIFY plotChanged)
  Q_PROPERTY(double highest READ highest WRITE setHighest NOTIFY plotChanged)
  Q_PROPERTY(QColor tint READ tint WRITE setTint NOTIFY plotChanged)
  /// Where the lines for 0 and 1 lie, in points below the top.
  Q_PROPERTY(double zeroY READ zeroY NOTIFY plotChanged)
  Q_PROPERTY(double oneY READ oneY NOTIFY plotChanged)

 public:
  explicit CurvePlotItem(QQuickItem* parent = nullptr);

  [[nodiscard]] const QList<QPointF>& points() const { return points_; }
  void setPoints(const QList<QPointF>& points) { assign(points_, points); }
  [[nodiscard]] double lowest() const { return lowest_; }
  void setLowest(double lowest) { assign(lowest_, lowest); }
  [[nodiscard]] double highest() const { return highest_; }
  void setHighest(double highest) { assign(highest_, highest); }
  [[nodiscard]] const QColor& tint() const { return tint_; }
  void setTint(const QColor& tint) { assign(tint_, tint); }
  [[nodiscard]] double zeroY() const { return place({0, 0}).y(); }
  [[nodiscard]] double oneY() const { return place({0, 1}).y(); }

  void paint(QPainter* painter) override;

 signals:
  void plotChanged();

 protected:
  void geometryChange(const QRectF& now, const QRectF& before) override;

 private:
  [[nodiscard]] QPointF place(QPointF point) const;
  template <typename Value>
  void assign(Value& field, const Value& value) {
    if (field == value) return;
    field = value;
    emit plotChanged();
    update();
  }

  QList<QPointF> points_;
  double lowest_ = 0;
  double highest_ = 1;
  QColor tint_ = Qt::black;
};

}  // namespace kindora
