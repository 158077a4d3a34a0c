// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include "model/Challenge.h"
#include "toolkit/controllers/UITableViewController.h"

namespace kindora {

/// The first tab: the new challenges, which show only who sent them, and those in progress. A shake
/// delivers the next hidden one.
///
/// It shows copies of the store's lists, taken when it loads or appears, after a shake and after a
/// rejection.
class ChallengesTableViewController : public kindora::UITableViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")

 public:
  std::vector<ChallengeRef> inProgress;
  std::vector<ChallengeRef> newChallenges;
  static constexpr int NEW_CHALLENGE_INDEX = 0;
  static constexpr int IN_PROGRESS_INDEX = 1;

  ChallengesTableViewController();

  void viewDidLoad() override;
  void viewWillAppear(bool animated) override;
  void viewDidAppear(bool animated) override;
  void viewWillDisappear(bool animated) override;

  /// The rows of a section; stops for a section that is none of the two.
  [[nodiscard]] const std::vector<ChallengeRef>& getDataForSection(int section) const;
  /// Copies the store's lists; with reload shows them, animated or all at once.
  void refreshDataWithReload(bool reload, bool animated);

  int numberOfSectionsInTableView() override;
  int tableViewNumberOfRowsInSection(int section) override;
  std::string tableViewTitleForHeaderInSection(int section) override;
  void tableViewWillDisplayHeaderViewForSection(UITableViewHeaderFooterView& view,
                                                int section) override;
  UITableViewCellRef tableViewCellForRowAtIndexPath(IndexPath path) override;
  const void* tableViewIdentityForRowAtIndexPath(IndexPath path) override;
  bool tableViewShouldHighlightRowAtIndexPath(IndexPath path) override;
  void tableViewDidSelectRowAtIndexPath(IndexPath path) override;
  bool tableViewCanEditRowAtIndexPath(IndexPath path) override;
  std::string tableViewTitleForDeleteConfirmationButtonForRowAtIndexPath(IndexPath path) override;
  void tableViewCommitEditingStyleForRowAtIndexPath(UITableViewCellEditingStyle style,
                                                    IndexPath path) override;

  void prepareForSegue(const UIStoryboardSegue& segue, const std::any& sender) override;
  /// Where the screens of a challenge come back to; the list refreshes when it appears.
  void unwind(const UIStoryboardSegue& /*segue*/) {}

  bool canBecomeFirstResponder() const override { return true; }
  void motionEnded(UIEventSubtype motion) override;

 private:
  [[nodiscard]] const ChallengeRef& challengeAt(IndexPath path) const;
  void copyStore();
};

}  // namespace kindora
