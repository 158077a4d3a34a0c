// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <map>
#include <memory>
#include <vector>

#include "toolkit/collection/CellPool.h"
#include "toolkit/collection/UICollectionView.h"
#include "toolkit/collection/UICollectionViewDelegateFlowLayout.h"
#include "toolkit/collection/UICollectionViewLayout.h"
#include "toolkit/controllers/UICollectionViewCell.h"

namespace kindora {

using UICollectionViewCellRef = std::shared_ptr<UICollectionViewCell>;

/// What a collection shows and does. Operations are asked only for items that were counted.
class UICollectionViewDataSource {
 public:
  virtual ~UICollectionViewDataSource() = default;
  [[nodiscard]] virtual int numberOfSectionsInCollectionView() = 0;
  [[nodiscard]] virtual int collectionViewNumberOfItemsInSection(int section) = 0;
  [[nodiscard]] virtual UICollectionViewCellRef collectionViewCellForItemAtIndexPath(
      IndexPath path) = 0;
  virtual void collectionViewDidSelectItemAtIndexPath(IndexPath /*path*/) {}
};

/// Cells that any layout places. There are cells only for what lies in or near the visible part; a
/// cell that leaves it is reused. Knows no pixels: an item draws it, tells it what is visible and
/// where the finger is, and calls advance while cells move by themselves.
class CollectionView : public QObject, public UICollectionView {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("owned by controllers")

 public:
  using CellMaker = CellPool<UICollectionViewCell>::Maker;

  /// The layout must outlive the view.
  explicit CollectionView(UICollectionViewLayout& layout);
  ~CollectionView() override;

  void setDataSource(UICollectionViewDataSource* source);  ///< not owned
  void setDelegate(UICollectionViewDelegateFlowLayout* delegate) { delegate_ = delegate; }

  void registerCell(std::string_view reuseIdentifier, CellMaker maker) {
    cells_.registerCell(reuseIdentifier, std::move(maker));
  }
  [[nodiscard]] UICollectionViewCellRef dequeueReusableCell(std::string_view reuseIdentifier) {
    return cells_.dequeue(reuseIdentifier);
  }

  /// Asks for everything anew.
  void reloadData();
  /// Lays the cells out for the present bounds; for whoever has invalidated the layout.
  void layoutIfNeeded() { layOut(); }
  [[nodiscard]] const std::vector<IndexPath>& indexPathsForSelectedItems() const {
    return selected_;
  }

  // --- What the layout asks ---
  [[nodiscard]] CGRect bounds() const override { return bounds_; }
  [[nodiscard]] CGRect frame() const override { return frame_; }
  [[nodiscard]] CGPoint panLocation() const override { return panLocation_; }
  [[nodiscard]] int numberOfSections() const override;
  [[nodiscard]] int numberOfItemsInSection(int section) const override;
  [[nodiscard]] UICollectionViewDelegateFlowLayout* delegate() const override { return delegate_; }

  // --- What the item tells ---
  /// The place on the page, which gives the visible size too.
  void setFrame(CGRect frame);
  /// The scroll to come: the layout hears of it before it counts.
  void setContentOffset(CGPoint offset);
  /// Where the finger is, in the content; (0, 0) when it is lifted.
  void setPanLocation(CGPoint location) { panLocation_ = location; }
  void select(IndexPath path);
  /// Moves the cells on; see isResting.
  void advance(double seconds);
  [[nodiscard]] bool isResting() const { return layout_.isResting(); }

  // --- What the item draws ---
  [[nodiscard]] CGSize contentSize() const { return layout_.collectionViewContentSize(); }
  struct Shown {
    UICollectionViewCellRef cell;
    CGRect frame;  ///< in the content
  };
  /// By index path, in order.
  [[nodiscard]] const std::map<IndexPath, Shown>& shownCells() const { return shown_; }

 signals:
  /// Cells have come, gone or moved, or the content has another size.
  void changed();

 private:
  void layOut();

  UICollectionViewLayout& layout_;
  UICollectionViewDataSource* source_ = nullptr;
  UICollectionViewDelegateFlowLayout* delegate_ = nullptr;
  CellPool<UICollectionViewCell> cells_;
  std::map<IndexPath, Shown> shown_;
  std::vector<IndexPath> selected_;
  CGRect bounds_;
  CGRect frame_;
  CGPoint panLocation_;
};

}  // namespace kindora
