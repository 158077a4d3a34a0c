// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "toolkit/collection/UICollectionViewLayoutAttributes.h"
#include "toolkit/view/UIView.h"

namespace kindora {

/// A cell or a decoration of a collection of records.
class QavCollectionReusableView : public UIView {
 public:
  /// Takes the place that the layout has for it. Overriders call this one.
  virtual void applyLayoutAttributes(const UICollectionViewLayoutAttributes& attributes) {
    setFrame(attributes.frame());
  }
  /// It has left the collection and will come back for something else.
  virtual void prepareForReuse() {}

  /// The name under which it was registered.
  [[nodiscard]] const std::string& reuseIdentifier() const { return reuseIdentifier_; }

 private:
  friend class QavActionsCollectionView;
  std::string reuseIdentifier_;
};

}  // namespace kindora
