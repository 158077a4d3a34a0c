// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/TableViewItem.h"

#include <QQuickWindow>
#include <QVariant>
#include <set>
#include <utility>

namespace kindora {
namespace {

void move(QQuickItem& item, double top, bool animated) {
  QMetaObject::invokeMethod(&item, "moveTo", Q_ARG(double, top), Q_ARG(bool, animated));
}

// An item that had the keyboard would take it again when it comes back, as another row.
void letGoOfFocus(QQuickItem& item) {
  if (item.hasFocus()) item.setFocus(false);
  for (QQuickItem* child : item.childItems()) letGoOfFocus(*child);
}

void putAside(QQuickItem& item) {
  letGoOfFocus(item);
  item.setParentItem(nullptr);
}

}  // namespace

TableViewItem::~TableViewItem() {
  disconnect(focus_);
  TableViewItem::forgetItems();
}

void TableViewItem::setTableView(UITableView* view) {
  if (view_ == view) return;
  if (view_) disconnect(view_, nullptr, this, nullptr);
  forgetItems();
  view_ = view;
  if (view_) {
    connect(view_, &UITableView::changed, this, &TableViewItem::drawRows);
    connect(view_, &UITableView::shifted, this, &TableViewItem::shift);
  }
  emit tableViewChanged();
  tellView();
}

void TableViewItem::forgetItems() {
  tops_.clear();
  CellsItem::forgetItems();
}

void TableViewItem::tellView() {
  if (!isComponentComplete() || !view_) return;
  view_->setBounds({{0, contentY()}, {visibleSize().width(), visibleSize().height()}});
}

// --- Rows ---

// What is measured while rows are placed may move them.
void TableViewItem::drawRows(bool animated) {
  drawsAgain_ = true;
  if (std::exchange(drawing_, true)) return;
  while (isComponentComplete() && view_ && delegate() != nullptr &&
         std::exchange(drawsAgain_, false)) {
    placeRows(animated);
    measureRows();
  }
  drawing_ = false;
}

void TableViewItem::placeRows(bool animated) {
  setImplicitHeight(view_->contentHeight());
  std::set<const QObject*> shown;
  QQuickItem* before = nullptr;
  for (const auto& [row, each] : view_->shownRows()) {
    QQuickItem& item = itemOfRow(row, each);
    const QObject* const cell = &each.view();
    const double top = view_->topOfRow(row);
    const auto [place, comes] = tops_.try_emplace(cell, top);
    if (comes) {
      item.setParentItem(this);
      QMetaObject::invokeMethod(&item, "come", Q_ARG(double, top),
                                Q_ARG(bool, animated&& each.isNew));
    } else if (std::exchange(place->second, top) != top) {
      move(item, top, animated);
    }
    // The focus goes from row to row as they stand.
    if (before != nullptr) item.stackAfter(before);
    before = &item;
    shown.insert(cell);
  }
  std::erase_if(tops_, [&](const auto& each) {
    if (shown.contains(each.first)) return false;
    QQuickItem* const item = items().at(each.first).get();
    if (animated) {
      QMetaObject::invokeMethod(item, "depart");
    } else {
      putAside(*item);
    }
    return true;
  });
}

// What is seen stays in its place, and is not seen to move there.
void TableViewItem::shift(double by) {
  for (auto& [cell, top] : tops_) {
    top += by;
    move(*items().at(cell), top, false);
  }
  emit shifted(by);
}

QQuickItem& TableViewItem::itemOfRow(int row, const UITableView::Shown& shown) {
  const QVariantMap state{
      {QStringLiteral("index"), row},
      {QStringLiteral("canEdit"), shown.canEdit},
      {QStringLiteral("deleteTitle"), QString::fromStdString(shown.deleteTitle)},
      {QStringLiteral("pressable"), shown.highlights}};
  if (const auto known = items().find(&shown.view()); known != items().end()) {
    for (auto each = state.begin(); each != state.end(); ++each) {
      known->second->setProperty(each.key().toUtf8(), each.value());
    }
    return *known->second;
  }
  QVariantMap all = state;
  all.insert({{QStringLiteral("cell"), QVariant::fromValue(shown.cell.get())},
              {QStringLiteral("header"), QVariant::fromValue(shown.header.get())},
              {QStringLiteral("reuseIdentifier"),
               QString::fromStdString(shown.view().reuseIdentifier())}});
  QQuickItem& item = itemOf(shown.view(), all);
  connect(&item, &QQuickItem::heightChanged, this, &TableViewItem::draw);
  return item;
}

void TableViewItem::measureRows() {
  std::map<int, double> heights;
  for (const auto& [row, shown] : view_->shownRows()) {
    if (const auto item = items().find(&shown.view()); item != items().end()) {
      heights.emplace(row, item->second->height());
    }
  }
  view_->setRowHeights(heights);
}

void TableViewItem::departed(QQuickItem* item) {
  for (const auto& [cell, each] : items()) {
    if (each.get() == item && !tops_.contains(cell)) putAside(*item);
  }
}

// --- The keyboard ---

void TableViewItem::itemChange(ItemChange change, const ItemChangeData& data) {
  QQuickItem::itemChange(change, data);
  if (change != ItemSceneChange) return;
  disconnect(focus_);
  if (data.window == nullptr) return;
  focus_ =
      connect(data.window, &QQuickWindow::activeFocusItemChanged, this, &TableViewItem::watchFocus);
}

void TableViewItem::watchFocus() {
  if (!view_) return;
  const QQuickItem* item = window()->activeFocusItem();
  while (item != nullptr && item->parentItem() != this) item = item->parentItem();
  view_->holdRow(item != nullptr ? item->property("index").toInt() : -1);
}

}  // namespace kindora
