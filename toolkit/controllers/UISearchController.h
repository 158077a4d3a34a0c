// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include "toolkit/controllers/UISearchBar.h"

namespace kindora {

class UISearchController;

/// Shows what was found; asked when the search becomes active and at every change of its text.
class UISearchResultsUpdating {
 public:
  virtual ~UISearchResultsUpdating() = default;
  virtual void updateSearchResultsForSearchController(UISearchController& controller) = 0;
};

class UISearchControllerDelegate {
 public:
  virtual ~UISearchControllerDelegate() = default;
  virtual void didDismissSearchController(UISearchController& /*controller*/) {}
};

/// A search over the screen that owns it: active from the moment at which the user presses its bar
/// or types into it until the user cancels or the program ends it, with an empty text again then.
class UISearchController : public QObject {
  Q_OBJECT

 public:
  UISearchController();

  UISearchResultsUpdating* searchResultsUpdater = nullptr;  ///< not owned
  UISearchControllerDelegate* delegate = nullptr;           ///< not owned
  /// Whether what is searched is dimmed and takes no presses until there is a text.
  bool dimsBackgroundDuringPresentation = true;
  bool hidesNavigationBarDuringPresentation = true;

  [[nodiscard]] UISearchBar* searchBar() { return &searchBar_; }
  [[nodiscard]] bool isActive() const { return active_; }
  void setActive(bool active);

 private:
  void update();

  UISearchBar searchBar_;
  bool active_ = false;
};

}  // namespace kindora
