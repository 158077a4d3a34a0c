// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <set>
#include <string>
#include <vector>

#include "model/Challenge.h"
#include "model/User.h"
#include "toolkit/controllers/UINavigationItem.h"
#include "toolkit/controllers/UISearchController.h"
#include "toolkit/controllers/UIStoryboard.h"
#include "toolkit/controllers/UITableViewController.h"

namespace kindora {

/// Where the user picks the friends to whom a challenge is passed on. Ticks stay through searches;
/// sending wraps the challenge up again, marks it as passed on and leaves the screen.
class KindoraTableViewController : public kindora::UITableViewController,
                                   public UISearchResultsUpdating,
                                   public UISearchControllerDelegate {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")

 public:
  /// What is passed on. Needed only once it has been sent, when the screen stops without it.
  ChallengeRef challenge;
  /// By identity: two friends of one name are two.
  std::set<UserRef> chosenFriends;
  /// The rows of the first section: all friends, or those that a search has found.
  std::vector<UserRef> displayFriends;
  std::unique_ptr<UISearchController> searchController;

  KindoraTableViewController();

  void viewDidLoad() override;
  void viewWillAppear(bool animated) override;

  int numberOfSectionsInTableView() override;
  int tableViewNumberOfRowsInSection(int section) override;
  UITableViewCellRef tableViewCellForRowAtIndexPath(IndexPath path) override;
  const void* tableViewIdentityForRowAtIndexPath(IndexPath path) override;
  void tableViewDidSelectRowAtIndexPath(IndexPath path) override;

  /// Stops when there is no such row.
  [[nodiscard]] const UserRef& userForRow(int row) const;

  void updateSearchResultsForSearchController(UISearchController& controller) override;
  void didDismissSearchController(UISearchController& controller) override;
  /// Lists all friends.
  void refreshData();

  void sendChallenge();
  void animateSendChallenge();
  void alertSendChallenge();

  /// Where the invitation screen comes back to.
  void unwindToKindora(const UIStoryboardSegue& /*segue*/) {}

 private:
  [[nodiscard]] UIBarButtonItem& sendButton();
  void showCheckmark(const UserRef& user, bool chosen);
  void showNumberChosen();
  void didDismissAlert();
};

}  // namespace kindora
