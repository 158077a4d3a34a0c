// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A sectioned table: the rows of all sections one below another, each section led by its header.
// What it shows comes from a data source. There are cells only in and near sight; a reload compares
// rows by identity, so that rows which stay keep theirs, and is told once. Knows no pixels: an item
// draws it and tells it what is in sight and how high rows are.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "platform/Geometry.h"
#include "toolkit/collection/CellPool.h"
#include "toolkit/collection/RowStack.h"
#include "toolkit/controllers/UISearchBar.h"
#include "toolkit/controllers/UITableViewCell.h"

namespace kindora {

enum class UITableViewRowAnimation { none, automatic };
enum class UITableViewCellEditingStyle { none, deleteRow };

using UITableViewCellRef = std::shared_ptr<UITableViewCell>;

/// What a table shows and does. Operations are asked only for sections and rows that were counted.
class UITableViewDataSource {
 public:
  virtual ~UITableViewDataSource() = default;
  [[nodiscard]] virtual int numberOfSectionsInTableView() = 0;
  [[nodiscard]] virtual int tableViewNumberOfRowsInSection(int section) = 0;
  /// A section with an empty title has no header.
  [[nodiscard]] virtual std::string tableViewTitleForHeaderInSection(int /*section*/) { return {}; }
  virtual void tableViewWillDisplayHeaderViewForSection(UITableViewHeaderFooterView& /*view*/,
                                                        int /*section*/) {}
  [[nodiscard]] virtual UITableViewCellRef tableViewCellForRowAtIndexPath(IndexPath path) = 0;
  /// What makes the row the same row after a reload; rows without an identity are told by position.
  [[nodiscard]] virtual const void* tableViewIdentityForRowAtIndexPath(IndexPath /*path*/) {
    return nullptr;
  }
  /// False for a row that does nothing when pressed.
  [[nodiscard]] virtual bool tableViewShouldHighlightRowAtIndexPath(IndexPath /*path*/) {
    return true;
  }
  virtual void tableViewDidSelectRowAtIndexPath(IndexPath /*path*/) {}
  [[nodiscard]] virtual bool tableViewCanEditRowAtIndexPath(IndexPath /*path*/) { return false; }
  [[nodiscard]] virtual std::string tableViewTitleForDeleteConfirmationButtonForRowAtIndexPath(
      IndexPath /*path*/) {
    return "Delete";
  }
  virtual void tableViewCommitEditingStyleForRowAtIndexPath(UITableViewCellEditingStyle /*style*/,
                                                            IndexPath /*path*/) {}
};

class UITableView : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("owned by table view controllers")
  Q_PROPERTY(int editingRow READ editingRow NOTIFY editingRowChanged)
  Q_PROPERTY(
      kindora::UISearchBar* tableHeaderView READ tableHeaderView NOTIFY tableHeaderViewChanged)

 public:
  using CellMaker = CellPool<UITableViewCell>::Maker;

  explicit UITableView(UITableViewDataSource& source);

  /// How cells of that kind are made: the prototype's class with its outlets connected.
  void registerCell(std::string_view reuseIdentifier, CellMaker maker) {
    cells_.registerCell(reuseIdentifier, std::move(maker));
  }
  /// A cell that is no longer shown, or a new one. Stops when nobody registered the kind.
  [[nodiscard]] UITableViewCellRef dequeueReusableCell(std::string_view reuseIdentifier) {
    return cells_.dequeue(reuseIdentifier);
  }

  void reloadData();
  void reloadSections(const std::vector<int>& sections, UITableViewRowAnimation animation);
  /// Opens nothing: with false it closes the row that was swiped open.
  void setEditing(bool editing, bool animated);
  /// Pressed and not deselected since. Kept for the platform's interface: a row shows no selection.
  [[nodiscard]] std::optional<IndexPath> indexPathForSelectedRow() const { return selected_; }
  void deselectRowAtIndexPath(IndexPath path, bool animated);
  /// The cell that shows the row now; null when there is no such row, or far from sight.
  [[nodiscard]] UITableViewCellRef cellForRowAtIndexPath(IndexPath path) const;
  /// A search bar above all rows, which scrolls with them; null for none.
  [[nodiscard]] UISearchBar* tableHeaderView() const { return headerView_; }
  void setTableHeaderView(UISearchBar* header);

  // --- What the user does; rows count over the whole list, headers included ---
  /// While a row is open, a press on any row closes that one and does nothing else.
  Q_INVOKABLE void select(int row);
  Q_INVOKABLE void setHighlighted(int row, bool highlighted);
  /// Swiped open, so that the delete button shows; closes another open row.
  Q_INVOKABLE void openRow(int row);
  Q_INVOKABLE void closeRow();
  Q_INVOKABLE void commitDelete(int row);
  /// The open row, or -1.
  [[nodiscard]] int editingRow() const { return editingRow_; }

  // --- What the item tells ---
  /// What is in sight of the rows.
  void setBounds(const CGRect& bounds);
  /// How high these rows have turned out to be.
  void setRowHeights(const std::map<int, double>& heights);
  /// The row that has the keyboard keeps its cell out of sight, too; -1 for none.
  void holdRow(int row);

  // --- What the item draws ---
  [[nodiscard]] int rowCount() const { return static_cast<int>(rows_.size()); }
  [[nodiscard]] double contentHeight() const { return stack_.height(); }
  struct Shown {
    UITableViewCellRef cell;                              ///< null for a header
    std::shared_ptr<UITableViewHeaderFooterView> header;  ///< null for a row
    bool canEdit = false;
    bool highlights = false;
    std::string deleteTitle;
    bool isNew = false;  ///< listed by the last reload and not before
    [[nodiscard]] UIReusableCell& view() const {
      return cell ? static_cast<UIReusableCell&>(*cell) : *header;
    }
  };
  /// Those in or near sight, by row.
  [[nodiscard]] const std::map<int, Shown>& shownRows() const { return shown_; }
  [[nodiscard]] double topOfRow(int row) const { return stack_.top(row); }
  /// Whether the last reload shows how rows come, go and move.
  [[nodiscard]] bool animatesChanges() const { return animatesChanges_; }

 signals:
  void editingRowChanged();
  void tableHeaderViewChanged();
  /// Rows above have come, gone or grown: to stay in sight, what is seen scrolls on by that much.
  void shifted(double by);
  /// Cells have come, gone or moved, or the content has another height.
  void changed(bool animated);

 private:
  struct Row {
    int section = 0;
    int row = -1;  // -1 is the header
    const void* identity = nullptr;
    /// What makes it the same row as before.
    using Key = std::tuple<int, bool, const void*, int>;
    [[nodiscard]] Key key() const;
  };
  using Sections = std::set<int>;

  void appendSection(int section, std::vector<Row>& rows);
  [[nodiscard]] std::vector<int> placesBefore(const std::vector<Row>& next) const;
  void replace(std::vector<Row> next, const Sections& reloaded, bool animated);
  bool showRows(const Sections& reloaded, const std::vector<int>& before);
  void fill(const Row& row, Shown& shown);
  void recycle(Shown& shown);
  [[nodiscard]] int anchorRow() const;
  void tell(double shift, bool animated);
  void setEditingRow(int row);
  [[nodiscard]] const Row* rowAt(int row) const;
  [[nodiscard]] bool canEdit(int row);

  UITableViewDataSource& source_;
  CellPool<UITableViewCell> cells_;
  CellPool<UITableViewHeaderFooterView> headers_;
  std::vector<Row> rows_;
  RowStack stack_;
  std::map<int, Shown> shown_;
  CGRect bounds_;
  std::optional<IndexPath> selected_;
  UISearchBar* headerView_ = nullptr;
  int editingRow_ = -1;
  int heldRow_ = -1;
  bool animatesChanges_ = false;
};

}  // namespace kindora
