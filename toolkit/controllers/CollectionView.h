// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <map>
#include <memory>

#include "toolkit/collection/BasicCollectionView.h"
#include "toolkit/collection/UICollectionViewDelegateFlowLayout.h"
#include "toolkit/controllers/UICollectionViewCell.h"

namespace kindora {

using UICollectionViewCellRef = std::shared_ptr<UICollectionViewCell>;
using UICollectionViewDataSource = BasicCollectionViewDataSource<UICollectionViewCell>;

/// A collection for QML, with cells in or near its visible part. Knows no pixels: an item draws it,
/// tells it what is visible and where the finger is, and calls advance while cells move by
/// themselves.
class CollectionView : public QObject, public BasicCollectionView<UICollectionViewCell> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("owned by controllers")

 public:
  /// The layout must outlive the view.
  explicit CollectionView(UICollectionViewLayout& layout);

  void setDataSource(UICollectionViewDataSource* source) { source_ = source; }  ///< not owned
  void setDelegate(UICollectionViewDelegateFlowLayout* delegate) { delegate_ = delegate; }

  /// Asks for everything anew.
  void reloadData();
  /// Lays the cells out for the present bounds; for whoever has invalidated the layout.
  void layoutIfNeeded() { showCells(); }

  // --- What the layout asks ---
  [[nodiscard]] CGRect frame() const override { return frame_; }
  [[nodiscard]] CGPoint panLocation() const override { return panLocation_; }
  [[nodiscard]] UICollectionViewDelegateFlowLayout* delegate() const override { return delegate_; }

  // --- What the item tells ---
  /// The place on the page, which gives the visible size too.
  void setFrame(CGRect frame);
  /// The scroll to come.
  void setContentOffset(CGPoint offset);
  /// Where the finger is, in the content; (0, 0) when it is lifted.
  void setPanLocation(CGPoint location) { panLocation_ = location; }
  /// Moves the cells on; see isResting.
  void advance(double seconds);
  /// Puts the cells where they are to rest, at once.
  Q_INVOKABLE void settle();
  [[nodiscard]] bool isResting() const { return layout().isResting(); }

  // --- What the item draws ---
  [[nodiscard]] CGSize contentSize() const { return layout().collectionViewContentSize(); }
  struct Shown {
    UICollectionViewCellRef cell;
    CGRect frame;  ///< in the content
  };
  /// By index path, in order.
  [[nodiscard]] const std::map<IndexPath, Shown>& shownCells() const { return shown_; }

 signals:
  /// Cells have come, gone or moved, or the content has another size.
  void changed();

 protected:
  [[nodiscard]] UICollectionViewDataSource* dataSource() const override { return source_; }

 private:
  void showCells();

  UICollectionViewDataSource* source_ = nullptr;
  UICollectionViewDelegateFlowLayout* delegate_ = nullptr;
  std::map<IndexPath, Shown> shown_;
  CGRect frame_;
  CGPoint panLocation_;
};

}  // namespace kindora
