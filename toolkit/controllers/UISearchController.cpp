// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UISearchController.h"

namespace kindora {

UISearchController::UISearchController() {
  connect(&searchBar_, &UISearchBar::pressed, this, [this] { setActive(true); });
  connect(&searchBar_, &UISearchBar::edited, this, [this] {
    if (active_) {
      update();
    } else {
      setActive(true);  // which asks for the results of the text too
    }
  });
  connect(&searchBar_, &UISearchBar::cancelled, this, [this] { setActive(false); });
}

void UISearchController::setActive(bool active) {
  if (active_ == active) return;
  active_ = active;
  searchBar_.setShowsCancelButton(active);
  if (active) {
    update();
    return;
  }
  searchBar_.setText({});
  searchBar_.resignFirstResponder();
  if (delegate != nullptr) delegate->didDismissSearchController(*this);
}

void UISearchController::update() {
  if (searchResultsUpdater != nullptr) {
    searchResultsUpdater->updateSearchResultsForSearchController(*this);
  }
}

}  // namespace kindora
