// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <set>
#include <string>
#include <vector>

#include "tests/toolkit/hosts/HostFixture.h"
#include "toolkit/controllers/UITableViewController.h"

namespace kindora {

/// Under the heading "Friends" a row for each name, read aloud as "row 0" and so on.
class NamesController final : public UITableViewController {
 public:
  std::vector<std::string> names{"Anna", "Bob", "Cleo"};
  std::set<int> editable;
  std::set<int> mute;  ///< rows that do nothing when pressed
  std::set<int> ticked;
  QUrl drawnBy;
  std::vector<int> selected;
  std::vector<int> deleted;
  int asked = 0;  ///< for a cell

  NamesController() {
    setTitle(QStringLiteral("Names"));
    tableView()->registerCell("cell", [] { return std::make_shared<UITableViewCell>(); });
  }
  [[nodiscard]] QUrl page() const override { return drawnBy; }
  [[nodiscard]] int numberOfSectionsInTableView() override { return 1; }
  [[nodiscard]] int tableViewNumberOfRowsInSection(int /*section*/) override {
    return static_cast<int>(names.size());
  }
  [[nodiscard]] std::string tableViewTitleForHeaderInSection(int /*section*/) override {
    return "Friends";
  }
  [[nodiscard]] UITableViewCellRef tableViewCellForRowAtIndexPath(IndexPath path) override {
    ++asked;
    auto cell = tableView()->dequeueReusableCell("cell");
    cell->setObjectName(QString::fromStdString(names.at(static_cast<std::size_t>(path.row))));
    cell->setAccessoryType(ticked.contains(path.row) ? UITableViewCellAccessoryType::checkmark
                                                     : UITableViewCellAccessoryType::none);
    return cell;
  }
  [[nodiscard]] const void* tableViewIdentityForRowAtIndexPath(IndexPath path) override {
    return &*known_.insert(names.at(static_cast<std::size_t>(path.row))).first;
  }
  [[nodiscard]] bool tableViewShouldHighlightRowAtIndexPath(IndexPath path) override {
    return !mute.contains(path.row);
  }
  void tableViewDidSelectRowAtIndexPath(IndexPath path) override { selected.push_back(path.row); }
  [[nodiscard]] bool tableViewCanEditRowAtIndexPath(IndexPath path) override {
    return editable.contains(path.row);
  }
  [[nodiscard]] std::string tableViewTitleForDeleteConfirmationButtonForRowAtIndexPath(
      IndexPath path) override {
    return "Remove " + names.at(static_cast<std::size_t>(path.row));
  }
  void tableViewCommitEditingStyleForRowAtIndexPath(UITableViewCellEditingStyle /*style*/,
                                                    IndexPath path) override {
    deleted.push_back(path.row);
  }

 private:
  std::set<std::string> known_;
};

/// The table of names; each row is 60 points high and has 8 below it.
class TableFixture : public HostFixture {
 protected:
  void show() {
    controller->tableView()->reloadData();
    draw(R"(TableList {
              id: list
              objectName: "list"
              prototypes: ({ "cell": look })
              Component {
                id: look
                TableCell {
                  implicitHeight: 60
                  spoken: cell?.objectName ?? ""
                  checkable: true
                  checked: cell?.hasCheckmark ?? false
                }
              }
            })",
         {{QStringLiteral("controller"),
           QVariant::fromValue<UITableViewController*>(controller.get())}});
  }
  [[nodiscard]] UITableView& table() const { return *controller->tableView(); }
  /// The row of that name in the window.
  [[nodiscard]] QRectF row(const char* name) { return place(spoken(QString::fromLatin1(name))); }
  void swipeRow(const char* name, int by) {
    const QPoint from = row(name).center().toPoint();
    swipe(from, from + QPoint(by, 0));
    time.advance(0.5);
  }
  void dragRow(const char* name, int by) {
    const QPoint from = row(name).center().toPoint();
    drag(from, from + QPoint(by, 0));
    time.advance(0.5);
  }
  /// As many rows as fill the window several times, called "0" and so on.
  void showMany(int count = 40) {
    controller->names.clear();
    for (int i = 0; i < count; ++i) controller->names.push_back(std::to_string(i));
    show();
  }
  void focus(const char* name) {
    spoken(QString::fromLatin1(name))->forceActiveFocus(Qt::TabFocusReason);
  }
  void scrollTo(double y) {
    host->setProperty("contentY", y);
    time.settle();
  }
  [[nodiscard]] double scrolled() const { return host->property("contentY").toDouble(); }

  const std::shared_ptr<NamesController> controller = makeViewController<NamesController>();
};

}  // namespace kindora
