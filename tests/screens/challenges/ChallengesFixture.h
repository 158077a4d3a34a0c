// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "screens/challenges/ChallengesTableViewController.h"

#include "app/AppColors.h"
#include "screens/challenges/ChallengeTableViewCell.h"
#include "screens/inprogress/InProgressChallengeDetailViewController.h"
#include "screens/newchallenge/NewChallengeDetailViewController.h"
#include "screens/shared/PlaceholderTableViewCell.h"
#include "tests/support/TableReader.h"
#include "tests/support/app/AppFixture.h"
#include "toolkit/controllers/UIApplication.h"

namespace kindora {

class ChallengesTableViewControllerTest : public AppFixture {
 protected:
  using Lines = std::vector<std::string>;

  static ChallengesTableViewController& list() {
    return dynamic_cast<ChallengesTableViewController&>(*navigation().viewControllers().front());
  }
  static UITableView& table() { return *list().tableView(); }

  static std::string textOf(const std::weak_ptr<UILabel>& label) {
    return label.lock()->text().value_or("-");
  }

  // Every row as one line of text, as it stands in the table.
  static Lines shown() {
    const TableReader reader(table());
    Lines lines;
    for (int row = 0; row < reader.count(); ++row) {
      if (reader.isHeader(row)) {
        lines.push_back("# " + textOf(reader.header(row)->textLabel));
      } else if (const auto* placeholder = reader.cell<PlaceholderTableViewCell>(row)) {
        lines.push_back(textOf(placeholder->messageLabel));
      } else {
        const auto* cell = reader.cell<ChallengeTableViewCell>(row);
        lines.push_back(textOf(cell->challengeLabel) + " | " + textOf(cell->senderLabel));
      }
    }
    return lines;
  }
  // The cell as the controller fills it.
  template <typename Cell>
  static std::shared_ptr<Cell> cellAt(IndexPath path) {
    return std::dynamic_pointer_cast<Cell>(list().tableViewCellForRowAtIndexPath(path));
  }

  static void shake() { UIApplication::sharedApplication()->shake(); }
  static void empty(std::vector<ChallengeRef>& storeList) {
    storeList.clear();
    list().refreshDataWithReload(true, false);
  }
  // Swipes the row of the first challenge in progress open and presses its button.
  static void swipeFirstInProgress() {
    const int row = static_cast<int>(list().newChallenges.size()) + 2;
    table().openRow(row);
    table().commitDelete(row);
  }
  // The user's answer to the alert on the screen, and its way out.
  void answer(int action) {
    alert()->choose(action);
    time.advance(0.3);
  }
  static constexpr int kReject = 0;
  static constexpr int kNeverMind = 1;
};

}  // namespace kindora
