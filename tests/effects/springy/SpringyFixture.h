// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A collection view and a delegate that answer what they are told to.
#pragma once

#include <functional>
#include <vector>

#include "toolkit/collection/UICollectionView.h"
#include "toolkit/collection/UICollectionViewDelegateFlowLayout.h"
#include "toolkit/collection/UICollectionViewLayoutAttributes.h"

namespace kindora {

class FakeCollectionView final : public UICollectionView {
 public:
  /// One section of items in a view of that size, not scrolled.
  explicit FakeCollectionView(int items, CGSize size = {320, 480})
      : itemsOfSections{items}, currentBounds{{0, 0}, size}, currentFrame{{0, 0}, size} {}

  [[nodiscard]] CGRect bounds() const override { return currentBounds; }
  [[nodiscard]] CGRect frame() const override { return currentFrame; }
  [[nodiscard]] CGPoint panLocation() const override { return finger; }
  [[nodiscard]] int numberOfSections() const override {
    return static_cast<int>(itemsOfSections.size());
  }
  [[nodiscard]] int numberOfItemsInSection(int section) const override {
    return itemsOfSections[static_cast<std::size_t>(section)];
  }
  [[nodiscard]] UICollectionViewDelegateFlowLayout* delegate() const override {
    return flowDelegate;
  }

  void resize(CGSize size) { currentBounds.size = currentFrame.size = size; }

  std::vector<int> itemsOfSections;
  CGRect currentBounds;
  CGRect currentFrame;
  CGPoint finger;
  UICollectionViewDelegateFlowLayout* flowDelegate = nullptr;
};

class FakeFlowDelegate final : public UICollectionViewDelegateFlowLayout {
 public:
  [[nodiscard]] CGSize collectionViewLayoutSizeForItemAtIndexPath(
      const UICollectionView& /*collectionView*/, IndexPath path) override {
    ++sizesAsked;
    return sizeOfItem(path);
  }
  [[nodiscard]] bool collectionViewLayoutHasUniformItemSizeInSection(
      const UICollectionView& /*collectionView*/, int /*section*/) override {
    return uniform;
  }
  [[nodiscard]] double collectionViewLayoutMinimumInteritemSpacingForSectionAtIndex(
      const UICollectionView& /*collectionView*/, int /*section*/) override {
    return interitemSpacing;
  }
  [[nodiscard]] double collectionViewLayoutMinimumLineSpacingForSectionAtIndex(
      const UICollectionView& /*collectionView*/, int /*section*/) override {
    return lineSpacing;
  }
  [[nodiscard]] UIEdgeInsets collectionViewLayoutInsetForSectionAtIndex(
      const UICollectionView& /*collectionView*/, int /*section*/) override {
    return insets;
  }

  std::function<CGSize(IndexPath)> sizeOfItem = [](IndexPath) { return CGSize{90, 140}; };
  bool uniform = false;
  double interitemSpacing = 10;
  double lineSpacing = 10;
  UIEdgeInsets insets{10, 10, 10, 10};
  int sizesAsked = 0;
};

inline std::vector<int> rowsOf(const std::vector<UICollectionViewLayoutAttributesRef>& cells) {
  std::vector<int> rows;
  for (const auto& cell : cells) rows.push_back(cell->indexPath().row);
  return rows;
}

inline std::vector<CGRect> framesOf(const std::vector<UICollectionViewLayoutAttributesRef>& cells) {
  std::vector<CGRect> frames;
  for (const auto& cell : cells) frames.push_back(cell->frame());
  return frames;
}

/// More than any content of the tests.
inline constexpr CGRect kEverything{{-1e6, -1e6}, {2e6, 2e9}};

}  // namespace kindora
