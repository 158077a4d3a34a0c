// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/ConstraintLayout.h"

namespace kindora {

ConstraintLayoutAttached::ConstraintLayoutAttached(QObject* item)
    : QObject(item), item_(qobject_cast<QQuickItem*>(item)) {
  if (item_ == nullptr) qWarning("ConstraintLayout.constraintBased is for items");
}

bool ConstraintLayoutAttached::isConstraintBased() const {
  return item_ != nullptr && !viewOfItem(*item_)->translatesAutoresizingMaskIntoConstraints();
}

void ConstraintLayoutAttached::setConstraintBased(bool constraintBased) {
  if (item_ == nullptr) return;
  const bool before = isConstraintBased();
  viewOfItem(*item_)->setConstraintBased(constraintBased);
  if (before != constraintBased) emit constraintBasedChanged();
}

ConstraintLayout::ConstraintLayout(QQuickItem* parent) : QQuickItem(parent) {
  viewOfItem(*this)->setRenderer(*this);
  polish();
}

ConstraintLayout::~ConstraintLayout() { viewOfItem(*this)->removeRenderer(*this); }

ConstraintLayoutAttached* ConstraintLayout::qmlAttachedProperties(QObject* object) {
  return new ConstraintLayoutAttached(object);
}

void ConstraintLayout::updatePolish() { viewOfItem(*this)->layoutIfNeeded(); }

}  // namespace kindora
