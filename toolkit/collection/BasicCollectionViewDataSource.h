// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "platform/Geometry.h"

namespace kindora {

/// What a collection shows and does. Operations are asked only for items that were counted.
template <typename Cell>
class BasicCollectionViewDataSource {
 public:
  virtual ~BasicCollectionViewDataSource() = default;
  [[nodiscard]] virtual int numberOfSectionsInCollectionView() { return 1; }
  [[nodiscard]] virtual int collectionViewNumberOfItemsInSection(int section) = 0;
  /// A configured cell, from dequeueReusableCell.
  [[nodiscard]] virtual std::shared_ptr<Cell> collectionViewCellForItemAtIndexPath(
      IndexPath path) = 0;
  virtual void collectionViewDidSelectItemAtIndexPath(IndexPath /*path*/) {}
};

}  // namespace kindora
