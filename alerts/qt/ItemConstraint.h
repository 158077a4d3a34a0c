// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqml.h>
#include <QObject>
#include <QPointer>
#include <QQmlParserStatus>
#include <QQuickItem>

#include "toolkit/view/NSLayoutConstraint.h"

namespace kindora {

/// One constraint, declared:
///
///   Constraint { item: a; attribute: Constraint.Left; to: b; toAttribute: Constraint.Right
///                constant: 8 }
///
/// It is installed on the nearest item that holds both, or on the item itself for a constant size,
/// and anew whenever something but the constant changes. It ends with the first of its items.
class ItemConstraint : public QObject, public QQmlParserStatus {
  Q_OBJECT
  QML_NAMED_ELEMENT(Constraint)
  Q_INTERFACES(QQmlParserStatus)
  Q_PROPERTY(QQuickItem* item READ item WRITE setItem NOTIFY changed REQUIRED)
  Q_PROPERTY(Attribute attribute READ attribute WRITE setAttribute NOTIFY changed REQUIRED)
  Q_PROPERTY(Relation relation READ relation WRITE setRelation NOTIFY changed)
  /// None for a constant size.
  Q_PROPERTY(QQuickItem* to READ to WRITE setTo NOTIFY changed)
  /// The item's own attribute, unless it is set.
  Q_PROPERTY(Attribute toAttribute READ toAttribute WRITE setToAttribute NOTIFY changed)
  Q_PROPERTY(double multiplier READ multiplier WRITE setMultiplier NOTIFY changed)
  /// Points.
  Q_PROPERTY(double constant READ constant WRITE setConstant NOTIFY changed)
  /// 0 to 1000, which is required.
  Q_PROPERTY(double priority READ priority WRITE setPriority NOTIFY changed)
  Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY changed)

 public:
  enum Attribute {
    NotAnAttribute = 0,
    Left = 1,
    Right = 2,
    Top = 3,
    Bottom = 4,
    Width = 7,
    Height = 8,
    CenterX = 9,
    CenterY = 10,
    Baseline = 11,
    FirstBaseline = 12,
  };
  Q_ENUM(Attribute)
  enum Relation { LessThanOrEqual = -1, Equal = 0, GreaterThanOrEqual = 1 };
  Q_ENUM(Relation)

  explicit ItemConstraint(QObject* parent = nullptr);
  ~ItemConstraint() override;

  [[nodiscard]] QQuickItem* item() const { return item_; }
  void setItem(QQuickItem* item);
  [[nodiscard]] Attribute attribute() const { return attribute_; }
  void setAttribute(Attribute attribute);
  [[nodiscard]] Relation relation() const { return relation_; }
  void setRelation(Relation relation);
  [[nodiscard]] QQuickItem* to() const { return to_; }
  void setTo(QQuickItem* item);
  [[nodiscard]] Attribute toAttribute() const;
  void setToAttribute(Attribute attribute);
  [[nodiscard]] double multiplier() const { return multiplier_; }
  void setMultiplier(double multiplier);
  [[nodiscard]] double constant() const { return constant_; }
  void setConstant(double constant);
  [[nodiscard]] double priority() const { return priority_; }
  void setPriority(double priority);
  [[nodiscard]] bool isActive() const { return active_; }
  void setActive(bool active);

  void classBegin() override {}
  void componentComplete() override;

 signals:
  void changed();

 private:
  template <typename Value>
  void assign(Value& field, Value value);
  void watch(QQuickItem* before, QQuickItem* item);
  void install();
  void uninstall();

  QPointer<QQuickItem> item_;
  QPointer<QQuickItem> to_;
  Attribute attribute_ = NotAnAttribute;
  Attribute toAttribute_ = NotAnAttribute;
  Relation relation_ = Equal;
  double multiplier_ = 1;
  double constant_ = 0;
  double priority_ = kLayoutPriorityRequired;
  bool active_ = true;
  bool namesTwo_ = false;
  bool isComplete_ = false;
  NSLayoutConstraintRef constraint_;
};

}  // namespace kindora
