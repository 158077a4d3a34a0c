// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "gallery/phone/PhoneCountries.h"
#include "toolkit/controllers/UISearchController.h"
#include "toolkit/controllers/UITableViewController.h"

namespace kindora {

/// The choice of a country, which may be searched for. Choosing one goes back.
class CountryTableViewController : public kindora::UITableViewController,
                                   public UISearchResultsUpdating,
                                   public UISearchControllerDelegate {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")

 public:
  /// To be set before the screen is shown.
  std::vector<PhoneCountry> countries;
  std::string chosenCode;
  std::function<void(const PhoneCountry&)> didChoose;
  /// From viewDidLoad on.
  std::unique_ptr<UISearchController> searchController;

  CountryTableViewController();

  void viewDidLoad() override;
  int numberOfSectionsInTableView() override { return 1; }
  int tableViewNumberOfRowsInSection(int section) override;
  UITableViewCellRef tableViewCellForRowAtIndexPath(IndexPath path) override;
  void tableViewDidSelectRowAtIndexPath(IndexPath path) override;
  void updateSearchResultsForSearchController(UISearchController& controller) override;
  void didDismissSearchController(UISearchController& controller) override;

 private:
  void show(std::vector<PhoneCountry> countries);

  std::vector<PhoneCountry> shown_;
};

}  // namespace kindora
