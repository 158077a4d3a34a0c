// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "screens/picker/KindoraTableViewController.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#include "app/AppColors.h"
#include "model/Friends.h"
#include "screens/picker/FriendTableViewCell.h"
#include "screens/shared/PlaceholderTableViewCell.h"
#include "tests/support/TableReader.h"
#include "tests/support/app/AppFixture.h"

namespace kindora {

inline UserRef user(const std::string& name) {
  return std::make_shared<User>(name, UIImage::imageWithRaster(Raster(1, 1)), std::nullopt);
}

// The picker of a challenge, pushed onto the first tab, among the friends Anna, Diana, Joe.
class KindoraTableViewControllerTest : public AppFixture {
 protected:
  using Screen = KindoraTableViewController;
  using Names = std::vector<std::string>;

  KindoraTableViewControllerTest() {
    challenge->title = "Cup o' Coffee";
    challenge->challengeImage = UIImage::imageWithRaster(Raster(2, 2));
    friends() = {anna, diana, joe};
    open();
  }

  void open() {
    screen = std::dynamic_pointer_cast<Screen>(
        mainStoryboard().instantiateViewController("KindoraTableViewController"));
    screen->challenge = challenge;
    navigation().pushViewController(screen, false);
    time.settle();
  }
  static std::vector<UserRef>& friends() { return Friends::sharedInstance().friendUsers; }

  [[nodiscard]] UISearchBar& bar() const { return *screen->searchController->searchBar(); }
  [[nodiscard]] UIBarButtonItem& send() const {
    return *screen->navigationItem()->rightBarButtonItem();
  }
  [[nodiscard]] std::string title() const { return screen->title().toStdString(); }
  // What the first section lists.
  [[nodiscard]] Names shown() const {
    const TableReader reader(*screen->tableView());
    Names names;
    for (int row = 0; row < reader.count(); ++row) {
      if (const auto* cell = reader.cell<FriendTableViewCell>(row)) {
        names.push_back(*cell->nameLabel.lock()->text());
      }
    }
    return names;
  }
  // Those of the rows that bear a tick.
  [[nodiscard]] Names ticked() const {
    const TableReader reader(*screen->tableView());
    Names names;
    for (int row = 0; row < reader.count(); ++row) {
      const auto* cell = reader.cell<FriendTableViewCell>(row);
      if (cell != nullptr && cell->hasCheckmark()) names.push_back(*cell->nameLabel.lock()->text());
    }
    return names;
  }
  void press(int row) { screen->tableView()->select(row); }
  void search(const char* text) {
    bar().press();
    bar().edit(QString::fromUtf8(text));
  }
  [[nodiscard]] PlaceholderTableViewCell& inviteRow() const {
    const TableReader reader(*screen->tableView());
    return *reader.cell<PlaceholderTableViewCell>(reader.count() - 1);
  }

  const ChallengeRef challenge = std::make_shared<Challenge>();
  const UserRef anna = user("Anna");
  const UserRef diana = user("Diana");
  const UserRef joe = user("Joe");
  std::shared_ptr<Screen> screen;
};

}  // namespace kindora
