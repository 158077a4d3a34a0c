// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqml.h>
#include <QQuickItem>
#include <optional>

#include "alerts/qt/ItemView.h"
#include "toolkit/view/UIViewRenderer.h"

namespace kindora {

/// Says of any item whether constraints place it.
class ConstraintLayoutAttached : public QObject {
  Q_OBJECT
  QML_ANONYMOUS
  /// True at first for a layout's direct children, false for all others.
  Q_PROPERTY(bool constraintBased READ isConstraintBased WRITE setConstraintBased NOTIFY
                 constraintBasedChanged)

 public:
  explicit ConstraintLayoutAttached(QObject* item);

  [[nodiscard]] bool isConstraintBased() const;
  void setConstraintBased(bool constraintBased);

 signals:
  void constraintBasedChanged();

 private:
  QQuickItem* item_;  // the parent; null for what is no item
};

/// Places the items in it by constraints, in time for the next frame:
///
///   ConstraintLayout {
///       Text { id: title; text: "Title" }
///       Constraint { item: title; attribute: Constraint.Left; to: title.parent; constant: 16 }
///       Component.onCompleted: QavAutoLayout.qav_verticallyCenterInSuperview(title)
///   }
///
/// Its own size is given. It sees the implicit sizes and baselines of items, hidden ones too, and
/// follows when they change, a text's height for its new width included. Left is left in every
/// script. An item in it that also has anchors is pulled two ways. A layout that lies directly in
/// another one is placed by that and solved with it; any other stands for itself. Whatever items do
/// in answer to being placed, a pass of layout ends.
class ConstraintLayout : public QQuickItem, public ConstraintPlacer, private UIViewRenderer {
  Q_OBJECT
  QML_ELEMENT
  QML_ATTACHED(ConstraintLayoutAttached)

 public:
  explicit ConstraintLayout(QQuickItem* parent = nullptr);
  ~ConstraintLayout() override;

  static ConstraintLayoutAttached* qmlAttachedProperties(QObject* object);

 protected:
  void updatePolish() override;

 private:
  // Records of items know nothing of windows.
  [[nodiscard]] std::optional<CGPoint> originInWindow() const override { return {}; }
  void layoutScheduled() override { polish(); }
};

}  // namespace kindora
