// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/collection/UICollectionViewLayout.h"

namespace kindora {

void UICollectionViewLayout::setCollectionView(const UICollectionView* view) {
  collectionView_ = view;
  invalidateLayout();
}

}  // namespace kindora
