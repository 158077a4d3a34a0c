// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractAnimation>
#include <QPointF>
#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>
#include <map>
#include <memory>

#include "toolkit/controllers/CollectionView.h"

namespace kindora {

/// Draws a collection's cells inside whatever scrolls: it is as large as the content, is told what
/// of it is visible and where the finger is, and keeps cells moving until they rest.
class CollectionViewItem : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(kindora::CollectionView* collectionView READ collectionView WRITE setCollectionView
                 NOTIFY collectionViewChanged REQUIRED)
  /// Makes the item of a cell, which gets the cell in its property `cell`.
  Q_PROPERTY(
      QQmlComponent* delegate READ delegate WRITE setDelegate NOTIFY delegateChanged REQUIRED)
  Q_PROPERTY(QSizeF visibleSize READ visibleSize WRITE setVisibleSize NOTIFY visibleSizeChanged)
  Q_PROPERTY(double contentY READ contentY WRITE setContentY NOTIFY contentYChanged)
  /// In this item; null when no finger scrolls.
  Q_PROPERTY(QPointF finger READ finger WRITE setFinger NOTIFY fingerChanged)

 public:
  explicit CollectionViewItem(QQuickItem* parent = nullptr);
  ~CollectionViewItem() override;

  [[nodiscard]] CollectionView* collectionView() const { return view_; }
  void setCollectionView(CollectionView* view);
  [[nodiscard]] QQmlComponent* delegate() const { return delegate_; }
  void setDelegate(QQmlComponent* delegate);
  [[nodiscard]] QSizeF visibleSize() const { return visibleSize_; }
  void setVisibleSize(QSizeF size);
  [[nodiscard]] double contentY() const { return contentY_; }
  void setContentY(double contentY);
  [[nodiscard]] QPointF finger() const { return finger_; }
  void setFinger(QPointF finger);

  /// The user pressed the item of that cell.
  Q_INVOKABLE void select(kindora::UICollectionViewCell* cell);

 signals:
  void collectionViewChanged();
  void delegateChanged();
  void visibleSizeChanged();
  void contentYChanged();
  void fingerChanged();

 protected:
  void componentComplete() override;

 private:
  class Ticker;

  void tellView();
  void draw();
  [[nodiscard]] QQuickItem* itemOf(const UICollectionViewCellRef& cell);

  QPointer<CollectionView> view_;
  QPointer<QQmlComponent> delegate_;
  QSizeF visibleSize_;
  double contentY_ = 0;
  QPointF finger_;
  // A cell that is put aside keeps its item for the next time.
  std::map<UICollectionViewCell*, std::unique_ptr<QQuickItem>> items_;
  std::unique_ptr<Ticker> ticker_;
};

}  // namespace kindora
