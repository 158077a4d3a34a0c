// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A sectioned table as a list model: the rows of all sections one below another, each section led
// by its header. What it shows comes from a data source; a reload compares the rows by identity, so
// that rows which stay are kept and only the others come and go.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "platform/Geometry.h"
#include "toolkit/collection/CellPool.h"
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

class UITableView : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("owned by table view controllers")
  Q_PROPERTY(int editingRow READ editingRow NOTIFY editingRowChanged)
  Q_PROPERTY(bool animatesChanges READ animatesChanges NOTIFY animatesChangesChanged)
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
  /// The cell that shows the row now; null when there is no such row.
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
  [[nodiscard]] bool animatesChanges() const { return animatesChanges_; }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

 signals:
  void editingRowChanged();
  void animatesChangesChanged();
  void tableHeaderViewChanged();

 private:
  struct Row {
    int section = 0;
    int row = -1;  // -1 is the header
    const void* identity = nullptr;
    UITableViewCellRef cell;
    std::shared_ptr<UITableViewHeaderFooterView> header;
    bool canEdit = false;
    bool highlights = false;
    std::string deleteTitle;
    /// What makes it the same row as before.
    [[nodiscard]] std::tuple<int, bool, const void*, int> key() const;
  };

  [[nodiscard]] std::vector<Row> rowsOfSection(int section);
  [[nodiscard]] std::vector<Row> allRows();
  void fill(Row& row);
  void replace(std::vector<Row> next, bool animated);
  void setEditingRow(int row);
  void recycle(Row& row);
  [[nodiscard]] Row* rowAt(int row);

  UITableViewDataSource& source_;
  CellPool<UITableViewCell> cells_;
  std::vector<Row> rows_;
  std::optional<IndexPath> selected_;
  UISearchBar* headerView_ = nullptr;
  int editingRow_ = -1;
  bool animatesChanges_ = false;
};

}  // namespace kindora
