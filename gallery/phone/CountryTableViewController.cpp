// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/phone/CountryTableViewController.h"

#include <utility>

#include "gallery/phone/CountryTableViewCell.h"
#include "toolkit/controllers/UINavigationController.h"

namespace kindora {
namespace {

constexpr std::string_view kCountryCell = "countryCell";
constexpr double kSearchBarHeight = 48;

}  // namespace

CountryTableViewController::CountryTableViewController() {
  setTitle(QStringLiteral("Country"));
  tableView()->registerCell(kCountryCell, CountryTableViewCell::fromPrototype);
}

void CountryTableViewController::viewDidLoad() {
  UITableViewController::viewDidLoad();
  searchController = std::make_unique<UISearchController>();
  searchController->delegate = this;
  searchController->searchResultsUpdater = this;
  searchController->dimsBackgroundDuringPresentation = false;
  searchController->hidesNavigationBarDuringPresentation = false;
  searchController->searchBar()->setFrame({{0, 0}, {0, kSearchBarHeight}});
  tableView()->setTableHeaderView(searchController->searchBar());
  show(countries);
}

void CountryTableViewController::show(std::vector<PhoneCountry> countriesToShow) {
  shown_ = std::move(countriesToShow);
  tableView()->reloadData();
}

int CountryTableViewController::tableViewNumberOfRowsInSection(int /*section*/) {
  return static_cast<int>(shown_.size());
}

UITableViewCellRef CountryTableViewController::tableViewCellForRowAtIndexPath(IndexPath path) {
  auto cell = std::dynamic_pointer_cast<CountryTableViewCell>(
      tableView()->dequeueReusableCell(kCountryCell));
  const PhoneCountry& country = shown_.at(static_cast<std::size_t>(path.row));
  connected(cell->nameLabel)->setText(country.name);
  connected(cell->codeLabel)->setText("+" + country.callingCode);
  cell->setAccessoryType(country.code == chosenCode ? UITableViewCellAccessoryType::checkmark
                                                    : UITableViewCellAccessoryType::none);
  return cell;
}

void CountryTableViewController::tableViewDidSelectRowAtIndexPath(IndexPath path) {
  const PhoneCountry country = shown_.at(static_cast<std::size_t>(path.row));
  tableView()->deselectRowAtIndexPath(path, true);
  searchController->searchBar()->resignFirstResponder();
  if (didChoose) didChoose(country);
  if (UINavigationController* navigation = navigationController()) {
    navigation->popViewController(true);
  }
}

void CountryTableViewController::updateSearchResultsForSearchController(
    UISearchController& controller) {
  show(countriesMatching(countries, controller.searchBar()->text().toStdString()));
}

void CountryTableViewController::didDismissSearchController(UISearchController& /*controller*/) {
  show(countries);
}

}  // namespace kindora
