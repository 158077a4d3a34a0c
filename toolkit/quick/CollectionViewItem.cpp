// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/CollectionViewItem.h"

#include <QVariant>
#include <set>

namespace kindora {

// Runs on the animation clock only while cells move.
class CollectionViewItem::Ticker final : public QAbstractAnimation {
 public:
  explicit Ticker(CollectionViewItem& item) : item_(item) {}
  int duration() const override { return -1; }
  void wake() {
    if (state() == Running) return;
    last_ = 0;
    start();
  }

 protected:
  void updateCurrentTime(int time) override {
    const int gone = time - last_;
    last_ = time;
    if (gone <= 0 || !item_.view_) return;
    item_.view_->advance(gone / 1000.0);
    if (item_.view_->isResting()) stop();
  }

 private:
  CollectionViewItem& item_;
  int last_ = 0;  // milliseconds
};

CollectionViewItem::CollectionViewItem(QQuickItem* parent)
    : CellsItem(parent), ticker_(std::make_unique<Ticker>(*this)) {}

CollectionViewItem::~CollectionViewItem() {
  ticker_->stop();
  // The collection may outlive its item.
  if (view_) view_->setPanLocation({});
}

void CollectionViewItem::setCollectionView(CollectionView* view) {
  if (view_ == view) return;
  if (view_) disconnect(view_, nullptr, this, nullptr);
  forgetItems();
  view_ = view;
  if (view_) connect(view_, &CollectionView::changed, this, &CollectionViewItem::draw);
  emit collectionViewChanged();
  tellView();
}

void CollectionViewItem::setFinger(QPointF finger) {
  if (finger_ == finger) return;
  finger_ = finger;
  emit fingerChanged();
  if (view_) view_->setPanLocation({finger.x(), finger.y()});
}

void CollectionViewItem::tellView() {
  if (!isComponentComplete() || !view_) return;
  view_->setFrame({{0, 0}, {visibleSize().width(), visibleSize().height()}});
  view_->setContentOffset({0, contentY()});
  if (!view_->isResting()) ticker_->wake();
}

void CollectionViewItem::draw() {
  if (!isComponentComplete() || !view_ || delegate() == nullptr) return;
  const CGSize content = view_->contentSize();
  setImplicitSize(content.width, content.height);
  std::set<const QObject*> shown;
  QQuickItem* before = nullptr;
  for (const auto& [path, place] : view_->shownCells()) {
    UICollectionViewCell* const cell = place.cell.get();
    shown.insert(cell);
    QQuickItem& item = itemOf(*cell, {{QStringLiteral("cell"), QVariant::fromValue(cell)}});
    item.setParentItem(this);
    item.setPosition({place.frame.origin.x, place.frame.origin.y});
    item.setSize({place.frame.size.width, place.frame.size.height});
    item.setVisible(true);
    // The focus goes from item to item in the order of the badges.
    if (before != nullptr) item.stackAfter(before);
    before = &item;
  }
  for (const auto& [cell, item] : items()) {
    if (!shown.contains(cell)) item->setVisible(false);
  }
  if (!view_->isResting()) ticker_->wake();
}

void CollectionViewItem::select(UICollectionViewCell* cell) {
  if (!view_ || cell == nullptr) return;
  if (const auto path = view_->indexPathForCell(*cell)) view_->select(*path);
}

}  // namespace kindora
