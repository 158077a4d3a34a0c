// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UITableView.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <tuple>
#include <utility>

namespace kindora {
namespace {

enum Role { kIsHeader = Qt::UserRole, kSection, kCell, kHeader, kReuse, kCanEdit, kDelete, kPress };

}  // namespace

// Rows of a section are told by identity, those without one by position.
std::tuple<int, bool, const void*, int> UITableView::Row::key() const {
  return {section, row < 0, identity, identity == nullptr ? row : 0};
}

UITableView::UITableView(UITableViewDataSource& source) : source_(source) {}

std::vector<UITableView::Row> UITableView::rowsOfSection(int section) {
  std::vector<Row> rows;
  if (!source_.tableViewTitleForHeaderInSection(section).empty()) {
    rows.push_back({.section = section});
  }
  const int count = source_.tableViewNumberOfRowsInSection(section);
  for (int row = 0; row < count; ++row) {
    rows.push_back({.section = section,
                    .row = row,
                    .identity = source_.tableViewIdentityForRowAtIndexPath({section, row})});
  }
  return rows;
}

std::vector<UITableView::Row> UITableView::allRows() {
  std::vector<Row> rows;
  const int sections = source_.numberOfSectionsInTableView();
  for (int section = 0; section < sections; ++section) {
    std::ranges::move(rowsOfSection(section), std::back_inserter(rows));
  }
  return rows;
}

void UITableView::fill(Row& row) {
  if (row.row < 0) {
    if (!row.header) row.header = std::make_shared<UITableViewHeaderFooterView>();
    row.header->textLabel.lock()->setText(source_.tableViewTitleForHeaderInSection(row.section));
    source_.tableViewWillDisplayHeaderViewForSection(*row.header, row.section);
    return;
  }
  const IndexPath path{row.section, row.row};
  recycle(row);
  row.cell = source_.tableViewCellForRowAtIndexPath(path);
  row.highlights = source_.tableViewShouldHighlightRowAtIndexPath(path);
  row.canEdit = source_.tableViewCanEditRowAtIndexPath(path);
  row.deleteTitle =
      row.canEdit ? source_.tableViewTitleForDeleteConfirmationButtonForRowAtIndexPath(path) : "";
}

void UITableView::recycle(Row& row) {
  if (row.cell) cells_.recycle(std::exchange(row.cell, nullptr));
}

void UITableView::replace(std::vector<Row> next, bool animated) {
  if (animatesChanges_ != animated) {
    animatesChanges_ = animated;
    emit animatesChangesChanged();
  }
  setEditingRow(-1);
  // A set, because a search over many friends reloads at every letter.
  std::set<std::tuple<int, bool, const void*, int>> keys;
  for (const Row& row : next) keys.insert(row.key());
  const auto wanted = [&](const Row& row) { return keys.contains(row.key()); };
  // Cells of rows that leave are reused last, since they stay in sight for a while.
  std::vector<Row> gone;
  const auto removeRow = [&](int place) {
    beginRemoveRows({}, place, place);
    gone.push_back(std::move(rows_[static_cast<std::size_t>(place)]));
    rows_.erase(rows_.begin() + place);
    endRemoveRows();
  };
  for (int i = rowCount() - 1; i >= 0; --i) {
    if (!wanted(rows_[static_cast<std::size_t>(i)])) removeRow(i);
  }
  for (std::size_t i = 0; i < next.size(); ++i) {
    const auto place = static_cast<int>(i);
    const auto here = rows_.begin() + place;
    const auto found = std::find_if(std::min(here, rows_.end()), rows_.end(),
                                    [&](const Row& row) { return row.key() == next[i].key(); });
    if (found == rows_.end()) {
      Row row = std::move(next[i]);
      fill(row);
      beginInsertRows({}, place, place);
      rows_.insert(here, std::move(row));
      endInsertRows();
      continue;
    }
    if (found != here) {
      const auto from = static_cast<int>(found - rows_.begin());
      beginMoveRows({}, from, from, {}, place);
      std::rotate(here, found, found + 1);
      endMoveRows();
    }
    Row& kept = rows_[i];
    kept.section = next[i].section;
    kept.row = next[i].row;
    kept.identity = next[i].identity;
    if (next[i].cell || next[i].header) continue;  // not to be reloaded
    fill(kept);
    emit dataChanged(index(place), index(place));
  }
  // What is left bears the identity of another row, which was listed more often before.
  while (rows_.size() > next.size()) removeRow(rowCount() - 1);
  for (Row& row : gone) recycle(row);
}

void UITableView::reloadData() {
  selected_.reset();
  replace(allRows(), false);
}

void UITableView::reloadSections(const std::vector<int>& sections,
                                 UITableViewRowAnimation animation) {
  std::vector<Row> next;
  const int count = source_.numberOfSectionsInTableView();
  for (int section = 0; section < count; ++section) {
    if (std::ranges::find(sections, section) != sections.end()) {
      std::ranges::move(rowsOfSection(section), std::back_inserter(next));
      continue;
    }
    for (const Row& row : rows_) {
      if (row.section == section) next.push_back(row);
    }
  }
  replace(std::move(next), animation == UITableViewRowAnimation::automatic);
}

void UITableView::setEditing(bool editing, bool animated) {
  if (animatesChanges_ != animated) {
    animatesChanges_ = animated;
    emit animatesChangesChanged();
  }
  if (!editing) setEditingRow(-1);
}

UITableView::Row* UITableView::rowAt(int row) {
  if (row < 0 || row >= rowCount() || rows_[static_cast<std::size_t>(row)].row < 0) return nullptr;
  return &rows_[static_cast<std::size_t>(row)];
}

void UITableView::select(int row) {
  const Row* pressed = rowAt(row);
  if (pressed == nullptr) return;
  if (editingRow_ >= 0) {
    closeRow();
    return;
  }
  selected_ = IndexPath{pressed->section, pressed->row};
  source_.tableViewDidSelectRowAtIndexPath(*selected_);
}

// A row shows no selection beyond its press, so that there is nothing to animate.
void UITableView::deselectRowAtIndexPath(IndexPath path, bool /*animated*/) {
  if (selected_ == path) selected_.reset();
}

UITableViewCellRef UITableView::cellForRowAtIndexPath(IndexPath path) const {
  const auto found = std::ranges::find_if(
      rows_, [path](const Row& row) { return row.section == path.section && row.row == path.row; });
  return found != rows_.end() && path.row >= 0 ? found->cell : nullptr;
}

void UITableView::setTableHeaderView(UISearchBar* header) {
  if (headerView_ == header) return;
  headerView_ = header;
  emit tableHeaderViewChanged();
}

void UITableView::setHighlighted(int row, bool highlighted) {
  Row* pressed = rowAt(row);
  if (pressed == nullptr || !pressed->highlights) return;
  if (highlighted && editingRow_ >= 0) return;
  pressed->cell->setHighlighted(highlighted, true);
}

void UITableView::openRow(int row) {
  const Row* swiped = rowAt(row);
  if (swiped != nullptr && swiped->canEdit) setEditingRow(row);
}

void UITableView::closeRow() { setEditingRow(-1); }

void UITableView::commitDelete(int row) {
  const Row* edited = rowAt(row);
  if (edited == nullptr || !edited->canEdit) return;
  source_.tableViewCommitEditingStyleForRowAtIndexPath(UITableViewCellEditingStyle::deleteRow,
                                                       {edited->section, edited->row});
}

void UITableView::setEditingRow(int row) {
  if (editingRow_ == row) return;
  editingRow_ = row;
  emit editingRowChanged();
}

int UITableView::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant UITableView::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const Row& row = rows_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case kIsHeader:
      return row.row < 0;
    case kSection:
      return row.section;
    case kCell:
      return QVariant::fromValue(row.cell.get());
    case kHeader:
      return QVariant::fromValue(row.header.get());
    case kReuse:
      return row.cell ? QString::fromStdString(row.cell->reuseIdentifier()) : QString();
    case kCanEdit:
      return row.canEdit;
    case kDelete:
      return QString::fromStdString(row.deleteTitle);
    case kPress:
      return row.highlights;
    default:
      return {};
  }
}

QHash<int, QByteArray> UITableView::roleNames() const {
  return {{kIsHeader, "isHeader"},  {kSection, "section"},       {kCell, "cell"},
          {kHeader, "header"},      {kReuse, "reuseIdentifier"}, {kCanEdit, "canEdit"},
          {kDelete, "deleteTitle"}, {kPress, "pressable"}};
}

}  // namespace kindora
