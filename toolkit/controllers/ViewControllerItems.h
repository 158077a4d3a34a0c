// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <memory>

namespace kindora {

class UINavigationItem;
class UITabBarItem;
class UIViewController;

/// What bars show of a controller: its title, and the items of the bars above and below it.
class ViewControllerItems {
 public:
  ViewControllerItems(const ViewControllerItems&) = delete;
  ViewControllerItems& operator=(const ViewControllerItems&) = delete;

  [[nodiscard]] const QString& title() const { return title_; }
  /// Also the title that the navigation bar shows.
  void setTitle(const QString& title);
  [[nodiscard]] UINavigationItem* navigationItem() { return navigationItem_.get(); }
  [[nodiscard]] UITabBarItem* tabBarItem() { return tabBarItem_.get(); }

 protected:
  explicit ViewControllerItems(UIViewController& self);
  ~ViewControllerItems();

 private:
  UIViewController& self_;
  QString title_;
  std::unique_ptr<UINavigationItem> navigationItem_;
  std::unique_ptr<UITabBarItem> tabBarItem_;
};

}  // namespace kindora
