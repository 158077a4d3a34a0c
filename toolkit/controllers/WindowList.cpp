// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/WindowList.h"

#include <algorithm>

#include "toolkit/controllers/UIWindow.h"

namespace kindora {
namespace {

constexpr int kHostRole = Qt::UserRole;

}  // namespace

int WindowList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(items_.size());
}

QVariant WindowList::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != kHostRole) return {};
  return QVariant::fromValue(items_[static_cast<std::size_t>(index.row())]);
}

QHash<int, QByteArray> WindowList::roleNames() const { return {{kHostRole, "host"}}; }

void WindowList::raise(UIWindow& window) {
  const auto found = std::ranges::find(items_, &window);
  const int from = static_cast<int>(found - items_.begin());
  const auto notAbove = std::ranges::count_if(items_, [&](const UIWindow* other) {
    return other != &window && other->windowLevel() <= window.windowLevel();
  });
  const int to = static_cast<int>(notAbove);
  if (found == items_.end()) {
    beginInsertRows({}, to, to);
    items_.insert(items_.begin() + to, &window);
    endInsertRows();
  } else if (from != to) {
    beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
    items_.erase(found);
    items_.insert(items_.begin() + to, &window);
    endMoveRows();
  }
}

void WindowList::remove(UIWindow& window) {
  const auto found = std::ranges::find(items_, &window);
  if (found == items_.end()) return;
  const int row = static_cast<int>(found - items_.begin());
  beginRemoveRows({}, row, row);
  items_.erase(found);
  endRemoveRows();
}

}  // namespace kindora
