// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QColor>
#include <QQuickPaintedItem>

namespace kindora {

/// Draws a grid of equal cells over its whole place, the marked ones tinted.
class CellGridItem : public QQuickPaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(int columns READ columns WRITE setColumns NOTIFY gridChanged)
  Q_PROPERTY(int rows READ rows WRITE setRows NOTIFY gridChanged)
  /// A byte a cell, not 0 when it is marked, line by line from the top left.
  Q_PROPERTY(QByteArray marks READ marks WRITE setMarks NOTIFY gridChanged)
  /// Of the grid's round corners, in points.
  Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY gridChanged)
  Q_PROPERTY(QColor tint READ tint WRITE setTint NOTIFY gridChanged)

 public:
  explicit CellGridItem(QQuickItem* parent = nullptr);

  [[nodiscard]] int columns() const { return columns_; }
  void setColumns(int columns) { assign(columns_, columns); }
  [[nodiscard]] int rows() const { return rows_; }
  void setRows(int rows) { assign(rows_, rows); }
  [[nodiscard]] const QByteArray& marks() const { return marks_; }
  void setMarks(const QByteArray& marks) { assign(marks_, marks); }
  [[nodiscard]] double radius() const { return radius_; }
  void setRadius(double radius) { assign(radius_, radius); }
  [[nodiscard]] const QColor& tint() const { return tint_; }
  void setTint(const QColor& tint) { assign(tint_, tint); }

  void paint(QPainter* painter) override;

 signals:
  void gridChanged();

 private:
  template <typename Value>
  void assign(Value& field, const Value& value) {
    if (field == value) return;
    field = value;
    emit gridChanged();
    update();
  }

  int columns_ = 0;
  int rows_ = 0;
  QByteArray marks_;
  double radius_ = 0;
  QColor tint_ = Qt::black;
};

}  // namespace kindora
