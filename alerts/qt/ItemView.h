// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <memory>
#include <optional>

#include "platform/Subscription.h"
#include "toolkit/view/UIView.h"

namespace kindora {

/// An item that places its children by constraints.
class ConstraintPlacer {
 public:
  virtual ~ConstraintPlacer() = default;
};

/// Stands for an item where layout is made by constraints, so that all that is said of views can be
/// said of items:
///
///   qav_pinWidth(viewOfItem(*picture), 120);
///   qav_alignEdgesWithSuperview(viewOfItem(*text), UIRectEdge::left | UIRectEdge::right);
///
/// The records of items lie in each other as the items do, up to a ConstraintPlacer that does not
/// lie directly in another one; that layout places them. Its direct children are placed by
/// constraints, all other items keep the geometry that they are given, unless
/// setConstraintBased says otherwise. Whichever side changes the geometry, the other follows.
///
/// The implicit size is what the content takes. An implicit width or height of 0 is none, but for
/// text, which takes nothing while it is empty. Without a baseline an item stands on its bottom
/// edge. The lines of a text count as equally high.
class ItemView final : public UIView {
 public:
  explicit ItemView(QQuickItem& item);

  /// Null once the item has gone.
  [[nodiscard]] QQuickItem* item() const { return item_; }
  /// Whether constraints place the item, whatever it lies in; none restores what goes by its
  /// parent.
  void setConstraintBased(std::optional<bool> constraintBased);

  [[nodiscard]] CGSize intrinsicContentSize() const override;
  [[nodiscard]] double firstBaselineFromTop() const override;
  [[nodiscard]] double lastBaselineFromBottom() const override;

 private:
  friend std::shared_ptr<ItemView> viewOfItem(QQuickItem& item);

  void connectItem();
  void joinParent();
  void followItem();
  void moveItem();
  [[nodiscard]] double metric(double implicit) const;

  QPointer<QQuickItem> item_;
  const bool isText_;
  std::optional<bool> constraintBased_;
  bool isMoving_ = false;
  Subscription subscription_;
  QObject connections_;  // end with this record
};

/// The record of an item, made when it is first asked for; it lives as long as the item.
[[nodiscard]] std::shared_ptr<ItemView> viewOfItem(QQuickItem& item);

}  // namespace kindora
