// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Cells and decorations as view records, in any layout, with scrolling. There are records for what
// is in sight and for as much again on every side, so that focus can move on to what is scrolled
// away; what goes farther is used again.
#pragma once

#include <memory>
#include <vector>

#include "alerts/card/QavCollectionReusableView.h"
#include "toolkit/collection/BasicCollectionView.h"
#include "toolkit/collection/UICollectionViewDelegateFlowLayout.h"
#include "toolkit/view/UIScrollView.h"

namespace kindora {

using QavActionsCollectionViewDataSource = BasicCollectionViewDataSource<QavCollectionReusableView>;

class QavActionsCollectionView final : public UIScrollView,
                                       public BasicCollectionView<QavCollectionReusableView> {
 public:
  explicit QavActionsCollectionView(std::shared_ptr<UICollectionViewLayout> layout);

  void setDataSource(std::weak_ptr<QavActionsCollectionViewDataSource> source);
  void setDelegate(std::weak_ptr<UICollectionViewDelegateFlowLayout> delegate);

  /// Asks for everything anew at the next layout; also for whoever has changed the layout.
  void reloadData();

  // --- What the layout asks ---
  using BasicCollectionView::bounds;
  [[nodiscard]] CGRect frame() const override { return UIView::frame(); }
  [[nodiscard]] CGPoint panLocation() const override { return {}; }
  [[nodiscard]] UICollectionViewDelegateFlowLayout* delegate() const override;

 protected:
  [[nodiscard]] QavActionsCollectionViewDataSource* dataSource() const override;
  void layoutSubviews() override;
  void didScroll() override;

 private:
  void bringIntoOrder(const std::vector<CellRef>& views);

  std::weak_ptr<QavActionsCollectionViewDataSource> source_;
  std::weak_ptr<UICollectionViewDelegateFlowLayout> delegate_;
};

}  // namespace kindora
