// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "toolkit/collection/BasicCollectionViewDataSource.h"
#include "toolkit/collection/CellPool.h"
#include "toolkit/collection/UICollectionView.h"
#include "toolkit/collection/UICollectionViewLayout.h"

namespace kindora {

/// Cells of any class, a ReusableCell, that any layout places. Knows no pixels: a class derived
/// from it takes bounds and lays out when its own kind of view does, and shows what that answers.
/// There are cells only for what the layout has in the rectangle that it names then; a cell that
/// leaves it is used again.
template <typename Cell>
class BasicCollectionView : public UICollectionView {
 public:
  using CellRef = std::shared_ptr<Cell>;
  using CellMaker = typename CellPool<Cell>::Maker;
  using DataSource = BasicCollectionViewDataSource<Cell>;

  ~BasicCollectionView() override { layout_->setCollectionView(nullptr); }
  BasicCollectionView(const BasicCollectionView&) = delete;
  BasicCollectionView& operator=(const BasicCollectionView&) = delete;

  void registerCell(std::string_view reuseIdentifier, CellMaker maker) {
    pool_.registerCell(reuseIdentifier, std::move(maker));
  }
  /// What the layout tells of decorations whose kind is not registered is passed over.
  void registerDecorationView(std::string_view kind, CellMaker maker) {
    pool_.registerCell(kind, std::move(maker));
  }
  /// One that was used before or a new one. Stops when nobody registered the identifier.
  [[nodiscard]] CellRef dequeueReusableCell(std::string_view reuseIdentifier) {
    return pool_.dequeue(reuseIdentifier);
  }

  /// Null while the item has no cell.
  [[nodiscard]] CellRef cellForItemAtIndexPath(IndexPath path) const {
    const auto found = shown_.find(Key(path, ""));
    return found != shown_.end() ? found->second : nullptr;
  }
  /// None for what is none of the cells.
  [[nodiscard]] std::optional<IndexPath> indexPathForCell(const auto& cell) const {
    for (const auto& [key, shown] : shown_) {
      if (shown.get() == &cell && key.second.empty()) return key.first;
    }
    return std::nullopt;
  }

  /// Selects that item alone and tells the source; nothing happens while it has no cell.
  void select(IndexPath path) {
    DataSource* source = dataSource();
    if (source == nullptr || !cellForItemAtIndexPath(path)) return;
    selected_ = {path};
    source->collectionViewDidSelectItemAtIndexPath(path);
  }
  [[nodiscard]] const std::vector<IndexPath>& indexPathsForSelectedItems() const {
    return selected_;
  }

  // --- What the layout asks ---
  /// As it was taken last.
  [[nodiscard]] CGRect bounds() const override { return bounds_; }
  [[nodiscard]] int numberOfSections() const override {
    DataSource* source = dataSource();
    return source != nullptr ? source->numberOfSectionsInCollectionView() : 0;
  }
  [[nodiscard]] int numberOfItemsInSection(int section) const override {
    DataSource* source = dataSource();
    return source != nullptr ? source->collectionViewNumberOfItemsInSection(section) : 0;
  }

 protected:
  struct Placed {
    CellRef cell;  ///< or decoration
    UICollectionViewLayoutAttributesRef attributes;
  };

  explicit BasicCollectionView(std::shared_ptr<UICollectionViewLayout> layout)
      : layout_(std::move(layout)) {
    layout_->setCollectionView(this);
  }

  /// Null while there is none.
  [[nodiscard]] virtual DataSource* dataSource() const = 0;
  [[nodiscard]] UICollectionViewLayout& layout() const { return *layout_; }

  /// The layout hears of the bounds before they count.
  void takeBounds(const CGRect& bounds) {
    const bool invalidates = layout_->shouldInvalidateLayoutForBoundsChange(bounds);
    bounds_ = bounds;
    if (invalidates) layout_->invalidateLayout();
  }

  /// Puts all cells aside and the selection away, so that everything is asked for anew.
  void forgetCells() {
    selected_.clear();
    // From the last to the first, so that each place gets its own cell again, and keeps the focus.
    for (auto each = shown_.rbegin(); each != shown_.rend(); ++each) {
      pool_.recycle(std::move(each->second));
    }
    shown_.clear();
    layout_->invalidateLayout();
  }

  /// Gives each element in the rectangle a cell, and no other element. What is answered lies the
  /// higher the later it comes.
  [[nodiscard]] std::vector<Placed> layOut(const CGRect& near) {
    layout_->prepareLayout();
    auto elements = layout_->layoutAttributesForElementsInRect(near);
    std::erase_if(elements, [this](const auto& element) {
      return element->decorationKind() && !pool_.knows(*element->decorationKind());
    });
    std::ranges::stable_sort(elements, {}, [](const auto& element) { return element->zIndex(); });

    std::map<Key, CellRef> before = std::exchange(shown_, {});
    for (const auto& element : elements) {
      auto known = before.extract(keyOf(*element));
      if (!known.empty()) shown_.insert(std::move(known));
    }
    // First what has left, so that it can be used for what arrives.
    for (auto& [key, cell] : before) pool_.recycle(std::move(cell));
    std::vector<Placed> placed;
    placed.reserve(elements.size());
    for (const auto& element : elements) placed.push_back({cellOf(*element), element});
    return placed;
  }

 private:
  using Key = std::pair<IndexPath, std::string>;  // with the kind; empty for a cell

  [[nodiscard]] static Key keyOf(const UICollectionViewLayoutAttributes& element) {
    return {element.indexPath(), element.decorationKind().value_or("")};
  }
  [[nodiscard]] CellRef cellOf(const UICollectionViewLayoutAttributes& element) {
    Key key = keyOf(element);
    if (const auto known = shown_.find(key); known != shown_.end()) return known->second;
    CellRef cell = element.decorationKind()
                       ? pool_.dequeue(*element.decorationKind())
                       : dataSource()->collectionViewCellForItemAtIndexPath(element.indexPath());
    shown_.emplace(std::move(key), cell);
    return cell;
  }

  std::shared_ptr<UICollectionViewLayout> layout_;
  CellPool<Cell> pool_;
  std::map<Key, CellRef> shown_;
  std::vector<IndexPath> selected_;
  CGRect bounds_;
};

}  // namespace kindora
