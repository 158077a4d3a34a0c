// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqml.h>
#include <QObject>
#include <QPointF>
#include <QQuickItem>
#include <QSizeF>
#include <QVariant>

#include "alerts/helpers/QavAutoLayout.h"
#include "alerts/qt/LayoutConstraint.h"

namespace kindora {

/// The one-line layout helpers for items in QML; alerts/helpers/QavAutoLayout.h tells what each
/// makes, where it is installed and in which order several are returned:
///
///   const [top, left] = QavAutoLayout.qav_alignEdges(
///       text, QavAutoLayout.Top | QavAutoLayout.Left, picture, { top: 4, left: 8 })
///   top.constant = 12
///
/// Edges are the bits below, which are not those of Qt.Edge. Insets are an object with any of top,
/// left, bottom and right, offsets of two directions a point, sizes a size. A missing item is
/// warned of and gives null, or an empty list.
class ItemAutoLayout : public QObject {
  Q_OBJECT
  QML_NAMED_ELEMENT(QavAutoLayout)
  QML_SINGLETON

 public:
  enum Edge { None = 0, Top = 1, Left = 2, Bottom = 4, Right = 8, All = 15 };
  Q_ENUM(Edge)

  explicit ItemAutoLayout(QObject* parent = nullptr);

  Q_INVOKABLE QQuickItem* qav_commonAncestorWithView(QQuickItem* item, QQuickItem* other) const;
  /// The number of a Constraint.Attribute.
  Q_INVOKABLE int qav_layoutAttributeFromRectEdge(int edge) const;

  // --- Edges ---

  Q_INVOKABLE QVariantList qav_alignEdgesWithSuperview(QQuickItem* item, int bits,
                                                       const QVariantMap& insets = {});
  Q_INVOKABLE QVariantList qav_alignEdges(QQuickItem* item, int bits, QQuickItem* withView,
                                          const QVariantMap& insets = {});
  Q_INVOKABLE LayoutConstraint* qav_alignEdge(QQuickItem* item, int edge, QQuickItem* withView,
                                              double inset = 0);
  Q_INVOKABLE LayoutConstraint* qav_alignEdge(QQuickItem* item, int edge, int withEdge,
                                              QQuickItem* ofView, double inset = 0);

  // --- Centres and baselines ---

  Q_INVOKABLE QVariantList qav_alignCentersWithView(QQuickItem* item, QQuickItem* other,
                                                    QPointF offset = {});
  Q_INVOKABLE LayoutConstraint* qav_alignHorizontalCenterWithView(QQuickItem* item,
                                                                  QQuickItem* other,
                                                                  double offset = 0);
  Q_INVOKABLE LayoutConstraint* qav_alignVerticalCenterWithView(QQuickItem* item, QQuickItem* other,
                                                                double offset = 0);
  Q_INVOKABLE QVariantList qav_centerInSuperview(QQuickItem* item);
  Q_INVOKABLE QVariantList qav_centerInSuperviewWithOffset(QQuickItem* item, QPointF offset);
  Q_INVOKABLE LayoutConstraint* qav_horizontallyCenterInSuperview(QQuickItem* item);
  Q_INVOKABLE LayoutConstraint* qav_horizontallyCenterInSuperviewWithOffset(QQuickItem* item,
                                                                            double offset);
  Q_INVOKABLE LayoutConstraint* qav_verticallyCenterInSuperview(QQuickItem* item);
  Q_INVOKABLE LayoutConstraint* qav_verticallyCenterInSuperviewWithOffset(QQuickItem* item,
                                                                          double offset);
  Q_INVOKABLE LayoutConstraint* qav_alignBaselineWithView(QQuickItem* item, QQuickItem* other,
                                                          double offset = 0);

  // --- Sizes ---

  Q_INVOKABLE LayoutConstraint* qav_pinWidth(QQuickItem* item, double width);
  Q_INVOKABLE LayoutConstraint* qav_setMinimumWidth(QQuickItem* item, double width);
  Q_INVOKABLE LayoutConstraint* qav_setMaximumWidth(QQuickItem* item, double width);
  Q_INVOKABLE LayoutConstraint* qav_setMaximumWidthToSuperviewWidth(QQuickItem* item);
  Q_INVOKABLE LayoutConstraint* qav_setMaximumWidthToSuperviewWidthWithOffset(QQuickItem* item,
                                                                              double offset);
  Q_INVOKABLE LayoutConstraint* qav_pinHeight(QQuickItem* item, double height);
  Q_INVOKABLE LayoutConstraint* qav_setMinimumHeight(QQuickItem* item, double height);
  Q_INVOKABLE LayoutConstraint* qav_setMaximumHeight(QQuickItem* item, double height);
  Q_INVOKABLE LayoutConstraint* qav_setMaximumHeightToSuperviewHeight(QQuickItem* item);
  Q_INVOKABLE LayoutConstraint* qav_setMaximumHeightToSuperviewHeightWithOffset(QQuickItem* item,
                                                                                double offset);
  Q_INVOKABLE QVariantList qav_pinSize(QQuickItem* item, QSizeF size);
  Q_INVOKABLE LayoutConstraint* qav_pinWidthToWidthOfView(QQuickItem* item, QQuickItem* other,
                                                          double offset = 0);
  Q_INVOKABLE LayoutConstraint* qav_pinHeightToHeightOfView(QQuickItem* item, QQuickItem* other,
                                                            double offset = 0);
  Q_INVOKABLE QVariantList qav_pinSizeToSizeOfView(QQuickItem* item, QQuickItem* other,
                                                   QSizeF offset = {0, 0});

  // --- Spacing ---

  Q_INVOKABLE LayoutConstraint* qav_pinHorizontalSpacing(QQuickItem* item, double spacing,
                                                         QQuickItem* toView);
  Q_INVOKABLE LayoutConstraint* qav_pinVerticalSpacing(QQuickItem* item, double spacing,
                                                       QQuickItem* toView);
  Q_INVOKABLE QVariantList qav_pinSpacing(QQuickItem* item, QSizeF spacing, QQuickItem* toView);
};

}  // namespace kindora
