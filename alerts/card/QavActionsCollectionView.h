// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Cells and decorations as view records, in any layout, with scrolling. There are records for what
// is in sight and for as much again on every side, so that focus can move on to what is scrolled
// away; what goes farther is used again.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "alerts/card/QavCollectionReusableView.h"
#include "toolkit/collection/UICollectionView.h"
#include "toolkit/collection/UICollectionViewDelegateFlowLayout.h"
#include "toolkit/collection/UICollectionViewLayout.h"
#include "toolkit/view/UIScrollView.h"

namespace kindora {

class QavActionsCollectionView;

/// What a collection of records shows. Asked only for items that were counted.
class QavActionsCollectionViewDataSource {
 public:
  virtual ~QavActionsCollectionViewDataSource() = default;
  [[nodiscard]] virtual int numberOfSectionsInCollectionView(
      const QavActionsCollectionView& /*collectionView*/) const {
    return 1;
  }
  [[nodiscard]] virtual int collectionViewNumberOfItemsInSection(
      const QavActionsCollectionView& collectionView, int section) const = 0;
  /// A configured cell, from dequeueReusableCell.
  [[nodiscard]] virtual std::shared_ptr<QavCollectionReusableView>
  collectionViewCellForItemAtIndexPath(QavActionsCollectionView& collectionView,
                                       IndexPath path) = 0;
};

class QavActionsCollectionView final : public UIScrollView, public UICollectionView {
 public:
  using ViewRef = std::shared_ptr<QavCollectionReusableView>;
  using ViewMaker = std::function<ViewRef()>;

  explicit QavActionsCollectionView(std::shared_ptr<UICollectionViewLayout> layout);
  ~QavActionsCollectionView() override;

  void setDataSource(std::weak_ptr<QavActionsCollectionViewDataSource> source);
  void setDelegate(std::weak_ptr<UICollectionViewDelegateFlowLayout> delegate);

  void registerCell(const std::string& reuseIdentifier, ViewMaker maker);
  void registerDecorationView(const std::string& kind, ViewMaker maker);
  /// One that was used before or a new one. The identifier must have been registered.
  [[nodiscard]] ViewRef dequeueReusableCell(const std::string& reuseIdentifier);

  /// Asks for everything anew at the next layout; also for whoever has changed the layout.
  void reloadData();
  /// Null while the item has no cell.
  [[nodiscard]] ViewRef cellForItemAtIndexPath(IndexPath path) const;
  /// None for a view that is none of the cells.
  [[nodiscard]] std::optional<IndexPath> indexPathForCell(const UIView& cell) const;

  // --- What the layout asks ---
  /// As it was at the last layout.
  [[nodiscard]] CGRect bounds() const override { return bounds_; }
  [[nodiscard]] CGRect frame() const override { return UIView::frame(); }
  [[nodiscard]] CGPoint panLocation() const override { return {}; }
  [[nodiscard]] int numberOfSections() const override;
  [[nodiscard]] int numberOfItemsInSection(int section) const override;
  [[nodiscard]] UICollectionViewDelegateFlowLayout* delegate() const override;

 protected:
  void layoutSubviews() override;
  void didScroll() override;

 private:
  using Key = std::pair<IndexPath, std::string>;  // with the kind; empty for a cell

  [[nodiscard]] static Key keyOf(const UICollectionViewLayoutAttributes& attributes);
  void takeBounds();
  void layOut();
  [[nodiscard]] ViewRef makeView(const UICollectionViewLayoutAttributes& attributes);
  [[nodiscard]] ViewRef dequeue(const std::string& identifier);
  void recycle(const ViewRef& view);
  void bringIntoOrder(const std::vector<ViewRef>& views);

  std::shared_ptr<UICollectionViewLayout> layout_;
  std::weak_ptr<QavActionsCollectionViewDataSource> source_;
  std::weak_ptr<UICollectionViewDelegateFlowLayout> delegate_;
  std::map<std::string, ViewMaker> makers_;
  std::map<std::string, std::vector<ViewRef>> unused_;
  std::map<Key, ViewRef> shown_;
  CGRect bounds_;
};

}  // namespace kindora
