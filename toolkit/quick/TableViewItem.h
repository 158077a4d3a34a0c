// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMetaObject>
#include <QPointer>
#include <map>

#include "toolkit/controllers/UITableView.h"
#include "toolkit/quick/CellsItem.h"

namespace kindora {

/// Draws a table's rows and tells it how high they are and which of them has the keyboard.
///
/// The item of a row is a `TableRow` in QML: made with `cell`, `header` and `reuseIdentifier`, told
/// `index`, `canEdit`, `deleteTitle` and `pressable`, and asked to come, move and depart. It may
/// come back as another row.
class TableViewItem : public kindora::CellsItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(kindora::UITableView* tableView READ tableView WRITE setTableView NOTIFY
                 tableViewChanged REQUIRED)

 public:
  using CellsItem::CellsItem;
  ~TableViewItem() override;

  [[nodiscard]] UITableView* tableView() const { return view_; }
  void setTableView(UITableView* view);

  /// An item that was asked to depart has gone.
  Q_INVOKABLE void departed(QQuickItem* item);

 signals:
  void tableViewChanged();
  /// To keep what is seen in its place, the Flickable is to scroll on by that much.
  void shifted(double by);

 protected:
  void tellView() override;
  void draw() override { drawRows(false); }
  void forgetItems() override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;

 private:
  void drawRows(bool animated);
  void placeRows(bool animated);
  [[nodiscard]] QQuickItem& itemOfRow(int row, const UITableView::Shown& shown);
  void measureRows();
  void shift(double by);
  void watchFocus();

  QPointer<UITableView> view_;
  std::map<const QObject*, double> tops_;  // of the cells that are drawn
  QMetaObject::Connection focus_;
  bool drawing_ = false;
  bool drawsAgain_ = false;
};

}  // namespace kindora
