// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UITableView.h"

#include <algorithm>
#include <functional>
#include <queue>
#include <utility>

#include "toolkit/collection/NearSight.h"

namespace kindora {
namespace {

constexpr std::string_view kHeaderView = "header";
constexpr int kNowhere = -1;

}  // namespace

// Rows of a section are told by identity, those without one by position.
UITableView::Row::Key UITableView::Row::key() const {
  return {section, row < 0, identity, identity == nullptr ? row : 0};
}

UITableView::UITableView(UITableViewDataSource& source) : source_(source) {
  headers_.registerCell(kHeaderView,
                        [] { return std::make_shared<UITableViewHeaderFooterView>(); });
}

// --- Reloading ---

void UITableView::appendSection(int section, std::vector<Row>& rows) {
  if (!source_.tableViewTitleForHeaderInSection(section).empty()) {
    rows.push_back({.section = section});
  }
  const int count = source_.tableViewNumberOfRowsInSection(section);
  for (int row = 0; row < count; ++row) {
    rows.push_back({.section = section,
                    .row = row,
                    .identity = source_.tableViewIdentityForRowAtIndexPath({section, row})});
  }
}

void UITableView::reloadData() {
  selected_.reset();
  std::vector<Row> next;
  Sections all;
  const int count = source_.numberOfSectionsInTableView();
  for (int section = 0; section < count; ++section) {
    appendSection(section, next);
    all.insert(section);
  }
  replace(std::move(next), all, false);
}

void UITableView::reloadSections(const std::vector<int>& sections,
                                 UITableViewRowAnimation animation) {
  const Sections reloaded(sections.begin(), sections.end());
  std::vector<Row> next;
  const int count = source_.numberOfSectionsInTableView();
  for (int section = 0; section < count; ++section) {
    if (reloaded.contains(section)) {
      appendSection(section, next);
      continue;
    }
    next.insert(next.end(), std::ranges::lower_bound(rows_, section, {}, &Row::section),
                std::ranges::upper_bound(rows_, section, {}, &Row::section));
  }
  replace(std::move(next), reloaded, animation == UITableViewRowAnimation::automatic);
}

// For each row where it was before. Only what is shown is looked for between the rows that are the
// same at both ends: nobody sees whether the others are the same.
std::vector<int> UITableView::placesBefore(const std::vector<Row>& next) const {
  std::vector<int> places(next.size(), kNowhere);
  const auto same = [](const Row& a, const Row& b) { return a.key() == b.key(); };
  const auto [oldMiddle, newMiddle] = std::ranges::mismatch(rows_, next, same);
  const auto head = static_cast<std::size_t>(newMiddle - next.begin());
  for (std::size_t i = 0; i < head; ++i) places[i] = static_cast<int>(i);
  std::size_t oldEnd = rows_.size();
  std::size_t newEnd = next.size();
  while (oldEnd > head && newEnd > head && same(rows_[oldEnd - 1], next[newEnd - 1])) {
    places[--newEnd] = static_cast<int>(--oldEnd);
  }
  std::map<Row::Key, std::queue<int>> shown;  // a record may be listed several times
  int sought = 0;
  for (const auto& [row, unused] : shown_) {
    const auto place = static_cast<std::size_t>(row);
    if (place < head || place >= oldEnd) continue;
    shown[rows_[place].key()].push(row);
    ++sought;
  }
  for (std::size_t i = head; i < newEnd && sought > 0; ++i) {
    const auto found = shown.find(next[i].key());
    if (found == shown.end() || found->second.empty()) continue;
    places[i] = found->second.front();
    found->second.pop();
    --sought;
  }
  return places;
}

void UITableView::replace(std::vector<Row> next, const Sections& reloaded, bool animated) {
  animatesChanges_ = animated;
  setEditingRow(-1);
  const std::vector<int> before = placesBefore(next);
  std::vector<RowStack::Row> heights(next.size());
  std::map<int, int> stayed;  // from the place before to the one now
  for (std::size_t i = 0; i < next.size(); ++i) {
    heights[i].isHeader = next[i].row < 0;
    if (before[i] == kNowhere) continue;
    heights[i].height = stack_.rows()[static_cast<std::size_t>(before[i])].height;
    if (shown_.contains(before[i])) stayed.emplace(before[i], static_cast<int>(i));
  }
  // What is seen stays where it is, unless the top is in sight.
  std::optional<std::pair<int, double>> anchor;
  for (const auto& [was, is] : stayed) {
    if (bounds_.origin.y <= 0 || anchor) break;
    if (stack_.top(was + 1) > bounds_.origin.y) anchor = {is, stack_.top(was)};
  }
  rows_ = std::move(next);
  stack_.setRows(std::move(heights));
  const double shift = anchor ? stack_.top(anchor->first) - anchor->second : 0;
  bounds_.origin.y += shift;

  std::map<int, Shown> gone = std::exchange(shown_, {});
  for (const auto& [was, is] : stayed) shown_.insert({is, gone.extract(was).mapped()});
  // The keyboard is to leave with its row, and not to stay with the cell for another one.
  auto hadKeyboard = gone.extract(heldRow_);
  const auto held = stayed.find(heldRow_);
  heldRow_ = held != stayed.end() ? held->second : kNowhere;
  const auto putAside = [&] {
    for (auto each = gone.rbegin(); each != gone.rend(); ++each) recycle(each->second);
  };
  // Cells of rows that are seen leaving are used again only after this.
  if (!animated) putAside();
  showRows(reloaded, before);
  if (animated) putAside();
  if (hadKeyboard) recycle(hadKeyboard.mapped());
  tell(shift, animated);
}

// --- Cells in sight ---

// Where rows have been reloaded, with their places before.
bool UITableView::showRows(const Sections& reloaded, const std::vector<int>& before) {
  CGRect seen = bounds_;
  // A list that has become shorter is about to be scrolled back.
  seen.origin.y = std::min(seen.origin.y, std::max(0.0, stack_.height() - seen.size.height));
  const CGRect near = nearSight(seen);
  RowStack::Run run;
  if (seen.size.height > 0) {
    run = stack_.rowsBetween(near.origin.y, near.origin.y + near.size.height);
  }
  bool differs = false;
  // First what has left, so that it can be used for what arrives.
  for (auto each = shown_.begin(); each != shown_.end();) {
    if (run.contains(each->first) || each->first == heldRow_) {
      ++each;
      continue;
    }
    recycle(each->second);
    each = shown_.erase(each);
    differs = true;
  }
  const auto show = [&](int place) {
    const auto index = static_cast<std::size_t>(place);
    const Row& row = rows_[index];
    const auto [shown, arrives] = shown_.try_emplace(place);
    if (!before.empty()) shown->second.isNew = before[index] == kNowhere;
    if (!arrives && !reloaded.contains(row.section)) return;
    fill(row, shown->second);
    differs = true;
  };
  if (heldRow_ != kNowhere && heldRow_ < run.first) show(heldRow_);
  for (int place = run.first; place < run.end; ++place) show(place);
  if (heldRow_ >= run.end) show(heldRow_);
  return differs;
}

void UITableView::fill(const Row& row, Shown& shown) {
  recycle(shown);
  if (row.row < 0) {
    shown.header = headers_.dequeue(kHeaderView);
    shown.header->textLabel.lock()->setText(source_.tableViewTitleForHeaderInSection(row.section));
    source_.tableViewWillDisplayHeaderViewForSection(*shown.header, row.section);
    return;
  }
  const IndexPath path{row.section, row.row};
  shown.cell = source_.tableViewCellForRowAtIndexPath(path);
  shown.highlights = source_.tableViewShouldHighlightRowAtIndexPath(path);
  shown.canEdit = source_.tableViewCanEditRowAtIndexPath(path);
  shown.deleteTitle =
      shown.canEdit ? source_.tableViewTitleForDeleteConfirmationButtonForRowAtIndexPath(path) : "";
}

void UITableView::recycle(Shown& shown) {
  if (shown.cell) cells_.recycle(std::exchange(shown.cell, nullptr));
  if (shown.header) headers_.recycle(std::exchange(shown.header, nullptr));
}

void UITableView::tell(double shift, bool animated) {
  if (shift != 0) emit shifted(shift);
  emit changed(animated);
  // Now all cells stand in their rows.
  for (const auto& [row, shown] : shown_) {
    if (shown.cell) shown.cell->settle();
  }
}

void UITableView::setBounds(const CGRect& bounds) {
  if (bounds_ == bounds) return;
  bounds_ = bounds;
  if (showRows({}, {})) tell(0, false);
}

// What is seen stays where it is by the first row that was seen before, or the first at all; where
// the top is in sight, by the top.
int UITableView::anchorRow() const {
  if (bounds_.origin.y <= 0) return 0;
  int anchor = 0;
  for (const auto& [row, unused] : shown_) {
    if (stack_.top(row + 1) <= bounds_.origin.y) continue;
    if (stack_.rows()[static_cast<std::size_t>(row)].height) return row;
    if (anchor == 0) anchor = row;
  }
  return anchor;
}

void UITableView::setRowHeights(const std::map<int, double>& heights) {
  const int anchor = anchorRow();
  const double before = stack_.top(anchor);
  bool moved = false;
  for (const auto& [row, height] : heights) moved = stack_.setHeight(row, height) || moved;
  if (!moved) return;
  const double shift = stack_.top(anchor) - before;
  bounds_.origin.y += shift;
  showRows({}, {});
  tell(shift, false);
}

void UITableView::holdRow(int row) {
  if (heldRow_ == row) return;
  heldRow_ = row;
  if (showRows({}, {})) tell(0, false);
}

UITableViewCellRef UITableView::cellForRowAtIndexPath(IndexPath path) const {
  const auto place = [](const Row& row) { return IndexPath{row.section, row.row}; };
  const auto row = std::ranges::lower_bound(rows_, path, std::less<>(), place);
  if (row == rows_.end() || place(*row) != path) return nullptr;
  const auto shown = shown_.find(static_cast<int>(row - rows_.begin()));
  return shown != shown_.end() ? shown->second.cell : nullptr;
}

void UITableView::setTableHeaderView(UISearchBar* header) {
  if (headerView_ == header) return;
  headerView_ = header;
  emit tableHeaderViewChanged();
}

// --- What the user does ---

const UITableView::Row* UITableView::rowAt(int row) const {
  if (row < 0 || row >= rowCount() || rows_[static_cast<std::size_t>(row)].row < 0) return nullptr;
  return &rows_[static_cast<std::size_t>(row)];
}

bool UITableView::canEdit(int row) {
  const Row* wanted = rowAt(row);
  return wanted != nullptr &&
         source_.tableViewCanEditRowAtIndexPath({wanted->section, wanted->row});
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

void UITableView::setHighlighted(int row, bool highlighted) {
  const auto pressed = shown_.find(row);
  if (pressed == shown_.end() || !pressed->second.highlights) return;
  if (highlighted && editingRow_ >= 0) return;
  pressed->second.cell->setHighlighted(highlighted, true);
}

void UITableView::openRow(int row) {
  if (canEdit(row)) setEditingRow(row);
}

void UITableView::closeRow() { setEditingRow(-1); }

// An open row closes as it does by the user.
void UITableView::setEditing(bool editing, bool /*animated*/) {
  if (!editing) closeRow();
}

void UITableView::commitDelete(int row) {
  if (!canEdit(row)) return;
  const Row& edited = *rowAt(row);
  source_.tableViewCommitEditingStyleForRowAtIndexPath(UITableViewCellEditingStyle::deleteRow,
                                                       {edited.section, edited.row});
}

void UITableView::setEditingRow(int row) {
  if (editingRow_ == row) return;
  editingRow_ = row;
  emit editingRowChanged();
}

}  // namespace kindora
