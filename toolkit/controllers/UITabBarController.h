// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/controllers/ControllerList.h"
#include "toolkit/controllers/UITabBar.h"
#include "toolkit/controllers/UIViewController.h"

namespace kindora {

/// Screens side by side, one of them selected by the tab bar below.
class UITabBarController : public kindora::UIViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")
  Q_PROPERTY(kindora::ControllerList* pages READ pages CONSTANT)
  Q_PROPERTY(kindora::UITabBar* tabBar READ tabBar CONSTANT)
  Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectedIndexChanged)

 public:
  explicit UITabBarController(const std::vector<UIViewControllerRef>& viewControllers);
  ~UITabBarController() override;

  [[nodiscard]] const std::vector<UIViewControllerRef>& viewControllers() const {
    return pages_.items();
  }
  [[nodiscard]] ControllerList* pages() { return &pages_; }
  [[nodiscard]] UITabBar* tabBar() { return &tabBar_; }
  [[nodiscard]] int selectedIndex() const { return selectedIndex_; }
  /// Shows that tab. An index that no tab has is ignored.
  void setSelectedIndex(int index);
  /// The user pressed a tab: selects it, or pops the selected one to its root unless the way back
  /// is hidden there. Nothing happens while the tab bar takes no input.
  Q_INVOKABLE void pressTab(int index);

  [[nodiscard]] std::vector<UIViewController*> visibleChildren() const override;
  [[nodiscard]] QUrl page() const override;
  bool goBack() override;

 signals:
  void selectedIndexChanged();

 private:
  [[nodiscard]] const UIViewControllerRef& selected() const;

  ControllerList pages_;
  UITabBar tabBar_;
  int selectedIndex_ = 0;
};

}  // namespace kindora
