// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/ItemView.h"

#include <QHash>
#include <QVariant>
#include <algorithm>

namespace kindora {
namespace {

using Views = QHash<const QObject*, std::shared_ptr<ItemView>>;

Views& views() {
  static Views& all = *new Views;  // items may outlive what is static
  return all;
}

bool isLayout(const QQuickItem* item) {
  return dynamic_cast<const ConstraintPlacer*>(item) != nullptr;
}

CGRect geometryOf(const QQuickItem& item) {
  return {{item.x(), item.y()}, {item.width(), item.height()}};
}

}  // namespace

std::shared_ptr<ItemView> viewOfItem(QQuickItem& item) {
  std::shared_ptr<ItemView> view = views().value(&item);
  if (view) return view;
  view = std::make_shared<ItemView>(item);
  views().insert(&item, view);
  view->connectItem();
  return view;
}

ItemView::ItemView(QQuickItem& item)
    : item_(&item), isText_(item.property("lineCount").isValid()) {}

void ItemView::connectItem() {
  QQuickItem* item = item_;
  QObject::connect(item, &QObject::destroyed, item, [](QObject* gone) {
    if (const auto view = views().take(gone)) view->removeFromSuperview();
  });
  for (const auto signal : {&QQuickItem::xChanged, &QQuickItem::yChanged, &QQuickItem::widthChanged,
                            &QQuickItem::heightChanged}) {
    QObject::connect(item, signal, &connections_, [this] { followItem(); });
  }
  for (const auto signal :
       {&QQuickItem::implicitWidthChanged, &QQuickItem::implicitHeightChanged}) {
    QObject::connect(item, signal, &connections_, [this] { invalidateIntrinsicContentSize(); });
  }
  QObject::connect(item, &QQuickItem::baselineOffsetChanged, &connections_,
                   [this] { invalidateIntrinsicContentSize(); });
  QObject::connect(item, &QQuickItem::parentChanged, &connections_, [this] { joinParent(); });
  reportFrame(geometryOf(*item));
  subscription_ = observe([this] { moveItem(); });
  joinParent();
}

void ItemView::joinParent() {
  QQuickItem* parent = item_->parentItem();
  const bool isPlaced = isLayout(parent);
  setTranslatesAutoresizingMaskIntoConstraints(!constraintBased_.value_or(isPlaced));
  if (parent == nullptr || (isLayout(item_) && !isPlaced)) {
    removeFromSuperview();
    return;
  }
  const std::shared_ptr<ItemView> above = viewOfItem(*parent);
  if (superview() != above) above->addSubview(shared_from_this());
}

void ItemView::setConstraintBased(std::optional<bool> constraintBased) {
  constraintBased_ = constraintBased;
  if (item_) joinParent();
}

void ItemView::followItem() {
  if (isMoving_ || !item_) return;
  const CGRect geometry = geometryOf(*item_);
  if (geometry != presentation().frame) setFrame(geometry);
}

void ItemView::moveItem() {
  const CGRect& frame = presentation().frame;
  if (isMoving_ || !item_ || geometryOf(*item_) == frame) return;
  const CGRect wanted = frame;
  isMoving_ = true;
  item_->setPosition({wanted.origin.x, wanted.origin.y});
  item_->setSize({wanted.size.width, wanted.size.height});
  isMoving_ = false;
  // Somebody who heard of it may have moved it on.
  followItem();
}

double ItemView::metric(double implicit) const {
  return implicit > 0 || isText_ ? implicit : kNoIntrinsicMetric;
}

CGSize ItemView::intrinsicContentSize() const {
  if (!item_) return kNoIntrinsicSize;
  return {metric(item_->implicitWidth()), metric(item_->implicitHeight())};
}

double ItemView::firstBaselineFromTop() const { return item_ ? item_->baselineOffset() : 0; }

double ItemView::lastBaselineFromBottom() const {
  const double first = firstBaselineFromTop();
  if (first <= 0) return 0;
  double last = first;
  if (isText_) {
    const double lines = std::max(1, item_->property("lineCount").toInt());
    last += item_->property("contentHeight").toDouble() * (lines - 1) / lines;
  }
  return std::max(0.0, item_->implicitHeight() - last);
}

}  // namespace kindora
