// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/LayoutConstraint.h"

#include <utility>

#include "toolkit/view/UIView.h"

namespace kindora {

LayoutConstraint::LayoutConstraint(NSLayoutConstraintRef constraint, QObject* parent)
    : QObject(parent), constraint_(std::move(constraint)) {}

double LayoutConstraint::constant() const { return constraint_->constant(); }

void LayoutConstraint::setConstant(double constant) {
  if (constraint_->constant() == constant) return;
  constraint_->setConstant(constant);
  emit constantChanged();
}

QString LayoutConstraint::description() const {
  return QString::fromStdString(constraint_->description());
}

bool LayoutConstraint::isInstalled() const { return constraint_->owner() != nullptr; }

void LayoutConstraint::remove() {
  if (const auto owner = constraint_->owner()) owner->removeConstraint(constraint_);
}

}  // namespace kindora
