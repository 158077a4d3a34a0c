// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/ControllerList.h"

#include <algorithm>

#include "toolkit/controllers/UIViewController.h"

namespace kindora {
namespace {

constexpr int kControllerRole = Qt::UserRole;

}  // namespace

int ControllerList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : count();
}

QVariant ControllerList::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != kControllerRole) return {};
  return QVariant::fromValue(items_[static_cast<std::size_t>(index.row())].get());
}

QHash<int, QByteArray> ControllerList::roleNames() const {
  return {{kControllerRole, "controller"}};
}

void ControllerList::append(const Item& item) {
  beginInsertRows({}, count(), count());
  items_.push_back(item);
  endInsertRows();
  emit countChanged();
}

void ControllerList::remove(const Item& item) {
  const auto found = std::find(items_.begin(), items_.end(), item);
  if (found == items_.end()) return;
  const Item kept = *found;  // alive until whoever draws it has heard that the row is gone
  const int row = static_cast<int>(found - items_.begin());
  beginRemoveRows({}, row, row);
  items_.erase(found);
  endRemoveRows();
  emit countChanged();
}

void ControllerList::assign(const std::vector<Item>& items) {
  const auto shared = static_cast<std::size_t>(
      std::mismatch(items_.begin(), items_.end(), items.begin(), items.end()).first -
      items_.begin());
  while (items_.size() > shared) remove(Item(items_.back()));
  while (items_.size() < items.size()) append(items[items_.size()]);
}

}  // namespace kindora
