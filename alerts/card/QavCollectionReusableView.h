// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/collection/ReusableCell.h"
#include "toolkit/collection/UICollectionViewLayoutAttributes.h"
#include "toolkit/view/UIView.h"

namespace kindora {

/// A cell or a decoration of a collection of records.
class QavCollectionReusableView : public UIView, public ReusableCell {
 public:
  /// Takes the place that the layout has for it. Overriders call this one.
  virtual void applyLayoutAttributes(const UICollectionViewLayoutAttributes& attributes) {
    setFrame(attributes.frame());
  }
  void prepareForReuse() override {
    removeFromSuperview();
    ReusableCell::prepareForReuse();
  }
};

}  // namespace kindora
