// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "effects/springy/BelSpringyCollectionViewFlowLayout.h"
#include "toolkit/controllers/CollectionView.h"
#include "toolkit/controllers/UIViewController.h"

namespace kindora {

/// A thousand coloured cells, numbered from 1, whose rows lag behind the finger.
class SpringyGridViewController : public kindora::UIViewController,
                                  public UICollectionViewDataSource,
                                  public UICollectionViewDelegateFlowLayout {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")
  Q_PROPERTY(kindora::CollectionView* collectionView READ shownCollectionView CONSTANT)
  Q_PROPERTY(QString caption READ caption NOTIFY captionChanged)

 public:
  static constexpr int kCells = 1000;

  SpringyGridViewController();

  /// Places the cells; outlives the view that it lays out.
  const std::unique_ptr<BelSpringyCollectionViewFlowLayout> layout;
  const std::unique_ptr<CollectionView> collectionView;

  void viewDidLoad() override;
  /// What there is to do here, or which cell was pressed last.
  [[nodiscard]] const QString& caption() const { return caption_; }

  int numberOfSectionsInCollectionView() override { return 1; }
  int collectionViewNumberOfItemsInSection(int /*section*/) override { return kCells; }
  UICollectionViewCellRef collectionViewCellForItemAtIndexPath(IndexPath path) override;
  void collectionViewDidSelectItemAtIndexPath(IndexPath path) override;

  /// Squares, as many a row as fit at 80 points or more, and never fewer than three.
  CGSize collectionViewLayoutSizeForItemAtIndexPath(const UICollectionView& collectionView,
                                                    IndexPath path) override;
  bool collectionViewLayoutHasUniformItemSizeInSection(const UICollectionView& collectionView,
                                                       int section) override;
  double collectionViewLayoutMinimumInteritemSpacingForSectionAtIndex(
      const UICollectionView& collectionView, int section) override;
  double collectionViewLayoutMinimumLineSpacingForSectionAtIndex(
      const UICollectionView& collectionView, int section) override;
  UIEdgeInsets collectionViewLayoutInsetForSectionAtIndex(const UICollectionView& collectionView,
                                                          int section) override;

 signals:
  void captionChanged();

 private:
  [[nodiscard]] CollectionView* shownCollectionView() const { return collectionView.get(); }

  QString caption_ = QStringLiteral("Pull the 1,000 cells, and let go");
};

}  // namespace kindora
