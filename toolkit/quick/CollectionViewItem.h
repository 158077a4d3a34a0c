// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractAnimation>
#include <QPointF>
#include <QPointer>
#include <memory>

#include "toolkit/controllers/CollectionView.h"
#include "toolkit/quick/CellsItem.h"

namespace kindora {

/// Draws a collection's cells, tells it where the finger is, and keeps cells moving until they
/// rest. The item of a cell gets it in its property `cell`.
class CollectionViewItem : public kindora::CellsItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(kindora::CollectionView* collectionView READ collectionView WRITE setCollectionView
                 NOTIFY collectionViewChanged REQUIRED)
  /// In this item; null when no finger scrolls.
  Q_PROPERTY(QPointF finger READ finger WRITE setFinger NOTIFY fingerChanged)

 public:
  explicit CollectionViewItem(QQuickItem* parent = nullptr);
  ~CollectionViewItem() override;

  [[nodiscard]] CollectionView* collectionView() const { return view_; }
  void setCollectionView(CollectionView* view);
  [[nodiscard]] QPointF finger() const { return finger_; }
  void setFinger(QPointF finger);

  /// The user pressed the item of that cell.
  Q_INVOKABLE void select(kindora::UICollectionViewCell* cell);

 signals:
  void collectionViewChanged();
  void fingerChanged();

 protected:
  void tellView() override;
  void draw() override;

 private:
  class Ticker;

  QPointer<CollectionView> view_;
  QPointF finger_;
  std::unique_ptr<Ticker> ticker_;
};

}  // namespace kindora
